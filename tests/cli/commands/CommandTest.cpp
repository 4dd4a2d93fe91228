#include <algorithm>
#include <csignal>
#include <gtest/gtest.h>
#include <pugixml.hpp>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include <tsxport/DialectFacts.h>
#include <tsxtimes/TimeValue.h>

#include "CommandLine.h"
#include "CommandTexts.h"
#include "support/Golden.h"

namespace {

using test::Attributes;
using test::Complaint;
using test::Lines;
using test::Outcome;
using test::Parsed;
using test::Sandbox;
using Strings = std::vector<std::string>;

// A table of months from 2000-01 on, some of which have other texts in place of the value.
std::string MonthlyTable(int count, const std::vector<std::pair<int, std::string>>& others = {}) {
  std::string text = "date,value\n";
  for (int i = 0; i < count; ++i) {
    std::string value = std::to_string(50 + 10 * (i % 12) + (i * i) % 7 + i);
    for (const auto& [at, other] : others) {
      if (at == i) value = other;
    }
    text += tsxtimes::TimeText({tsxtimes::TimeUnit::kMonth}, 24000 + i) + "," + value + "\n";
  }
  return text;
}

std::string ComplaintAbout(const std::string& table, const std::string& arguments = "") {
  const Sandbox box;
  box.Put("sales.csv", table);
  return Complaint(box, "fit sales.csv " + arguments);
}

TEST(FitCommand, WritesAWellFormedDocumentOfTheModelAskedFor) {
  const Sandbox box;
  box.PutData("airpassengers.csv");
  const Outcome outcome =
      box.Run("fit airpassengers.csv --model winters-multiplicative -o air.xml");
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_EQ(outcome.err, "");
  test::ExpectWellFormed(box.Content("air.xml"));
  const auto document = Parsed(box.Content("air.xml"));
  EXPECT_EQ(Attributes(document, "/TSCXML/Header/Application/@name"), Strings{"tsxport"});
  EXPECT_EQ(Attributes(document, "//ExpSmoothingModel/@modelName"), Strings{"airpassengers"});
  EXPECT_EQ(Attributes(document, "//ExpSmoothingModel/@variableID"), Strings{"value"});
  EXPECT_EQ(Attributes(document, "//ESMultiplicativeWinters/@seasonLength"), Strings{"12"});
  EXPECT_EQ(Attributes(document, "//Periods/Year/@firstCaseIndex"), Strings{"1949"});
  EXPECT_EQ(Attributes(document, "//Periods/Month/@firstCaseIndex"), Strings{"0"});
  EXPECT_EQ(Attributes(document, "//Periods/@forcedSeasonLength"), Strings{});
}

TEST(FitCommand, EveryKindHasItsElement) {
  const std::pair<const char*, const char*> kinds[] = {
      {"simple", "ESSimple"},
      {"simple-seasonal", "ESSimpleSeasonal"},
      {"brown", "ESBrown"},
      {"holt", "ESHolt"},
      {"damped-trend", "ESDampedTrend"},
      {"winters-additive", "ESAdditiveWinters"},
      {"winters-multiplicative", "ESMultiplicativeWinters"}};
  const Sandbox box;
  box.Put("sales.csv", MonthlyTable(48));
  for (const auto& [option, element] : kinds) {
    const Outcome outcome = box.Run("fit sales.csv -o - --model " + std::string(option));
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    const auto document = Parsed(outcome.out);
    EXPECT_EQ(document.select_nodes(("//" + std::string(element)).c_str()).size(), 1U) << option;
  }
}

TEST(FitCommand, WithoutAnOutputASummaryIsPrinted) {
  const Sandbox box;
  box.PutData("nile.csv");
  const Outcome outcome = box.Run("fit nile.csv");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.err, "");
  EXPECT_NE(outcome.out.find("value, yearly from 1871 to 1970, 100 cases\n"), std::string::npos);
  EXPECT_NE(outcome.out.find("lowest normalised BIC of 4 kinds"), std::string::npos);
  EXPECT_EQ(box.Files(), Strings{"nile.csv"});
}

TEST(FitCommand, SummaryOfAKindAskedForGivesNoReason) {
  const Sandbox box;
  box.PutData("nile.csv");
  EXPECT_EQ(box.Run("fit nile.csv --model simple").out.find("BIC of"), std::string::npos);
}

TEST(FitCommand, WithAnOutputTheChoiceIsStillTold) {
  const Sandbox box;
  box.PutData("nile.csv");
  const Strings lines = Lines(box.Run("fit nile.csv -o m.xml").out);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_TRUE(lines[0].starts_with("nile: ")) << lines[0];
  EXPECT_NE(lines[0].find("lowest normalised BIC of 4 kinds"), std::string::npos);
  EXPECT_EQ(lines[1], "wrote m.xml (1 model)");
}

TEST(FitCommand, EverySeriesOfTheTestDataIsFitted) {
  for (const char* name :
       {"airpassengers", "bjsales", "co2", "discoveries", "intermittent_a", "intermittent_b",
        "johnsonjohnson", "lakehuron", "ldeaths", "lynx", "nile", "nottem", "presidents",
        "seatbelts", "sunspot_year", "tf_sim", "ukgas", "usaccdeaths", "wwwusage"}) {
    const Sandbox box;
    box.PutData(std::string(name) + ".csv");
    const Outcome outcome = box.Run("fit " + std::string(name) + ".csv -o - --model simple");
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    test::ExpectWellFormed(outcome.out);
  }
}

// One demand of 6 in the third month: the levels are 6 and 3, the rate is 2 throughout. Absolute
// errors 2, 2, 4, 2 at weight 0.1 leave a level of 2.18. The sum of their squares is 28.
TEST(Croston, DocumentIsTheOneWorkedByHand) {
  const Sandbox box;
  box.Put("part.csv", "date,sold\n2000-01,0\n2000-02,0\n2000-03,6\n2000-04,0\n");
  const Outcome outcome = box.Run("fit part.csv --model croston -o -");
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  test::ExpectWellFormed(outcome.out);
  const std::size_t model = outcome.out.find("\t<CrostonModel");
  ASSERT_NE(model, std::string::npos) << outcome.out;
  test::ExpectGolden("cli/commands/golden/croston.xml", outcome.out.substr(model));
}

TEST(Croston, TransformationIsToldAndTheSubmodelsAreThree) {
  const Sandbox box;
  box.PutData("intermittent_a.csv");
  const auto document =
      Parsed(box.Run("fit intermittent_a.csv --model croston --transform sqrt -o -").out);
  EXPECT_EQ(Attributes(document, "//CrostonModel/Transformation/@function"), Strings{"squareRoot"});
  EXPECT_EQ(document.select_nodes("//CrostonModel/*/ESSimple/StateLevel").size(), 3U);
  EXPECT_EQ(Attributes(document, "//EstimationInfo/@periodLength"), Strings{"120"});
  EXPECT_EQ(Attributes(document, "//EstimationInfo/@degreesOfFreedom"), Strings{"118"});
}

TEST(Croston, IsChosenForIntermittentDemandAndTheReasonTold) {
  const Sandbox box;
  box.PutData("intermittent_b.csv");
  EXPECT_EQ(box.Run("fit intermittent_b.csv -o m.xml").out,
            "intermittent_b: croston (intermittent demand: 135 of 150 cases are zero and none is "
            "negative; not compared with smoothing)\nwrote m.xml (1 model)\n");
}

TEST(Croston, SummaryTellsWhatTheLevelsMean) {
  const Sandbox box;
  box.Put("part.csv", "date,sold\n2000-01,0\n2000-02,0\n2000-03,6\n2000-04,0\n");
  const Strings lines = Lines(box.Run("fit part.csv").out);
  ASSERT_EQ(lines.size(), 8U);
  EXPECT_EQ(lines[2], "  model       Croston's method, 1 demand");
  EXPECT_EQ(lines[3],
            "  why         intermittent demand: 3 of 4 cases are zero and none is negative; not "
            "compared with smoothing");
  EXPECT_EQ(lines[4],
            "  weights     sizes 0.1000 (not estimated), intervals 0.1000 (not estimated), errors "
            "0.1000 (not estimated)");
  EXPECT_EQ(lines[6], "  residuals   too few for a Ljung-Box test");
  EXPECT_EQ(lines[7],
            "  state       a demand of 6 every 3 periods: 2 a period; mean absolute error 2.18");
}

TEST(Croston, ForecastsAreTheRateForEveryPeriod) {
  const Sandbox box;
  box.Put("part.csv", "date,sold\n2000-01,0\n2000-02,0\n2000-03,6\n2000-04,0\n");
  const Strings lines = Lines(box.Run("fit part.csv --forecast 2").out);
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_TRUE(lines[1].starts_with("part,2000-05,2,0,")) << lines[1];
  EXPECT_TRUE(lines[2].starts_with("part,2000-06,2,0,")) << lines[2];
}

TEST(Croston, IsDrawn) {
  const Sandbox box;
  box.PutData("intermittent_a.csv");
  EXPECT_EQ(box.Run("fit intermittent_a.csv --plot a.svg").status, 0);
  test::ExpectWellFormed(box.Content("a.svg"));
  EXPECT_NE(box.Content("a.svg").find("Croston's method</text>"), std::string::npos);
}

TEST(Croston, StandsBesideSmoothingInOneDocument) {
  const Sandbox box;
  box.PutData("seatbelts.csv");
  const auto document = Parsed(box.Run("fit seatbelts.csv --variable kms --variable law -o -").out);
  EXPECT_EQ(Attributes(document, "//CrostonModel/@variableID"), Strings{"law"});
  EXPECT_EQ(Attributes(document, "//ExpSmoothingModel/@variableID"), Strings{"kms"});
}

// A constant series is fitted without error by a level that learns nothing.
TEST(Format, EveryDialectIsWrittenWithARootOfItsOwn) {
  const Sandbox box;
  box.PutData("nile.csv");
  std::set<std::string> roots;
  for (const tsx::DialectFacts& dialect : tsx::kDialects) {
    const Outcome outcome =
        box.Run("fit nile.csv --model simple -o - --format " + std::string(dialect.name));
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    roots.insert(Parsed(outcome.out).document_element().name());
  }
  EXPECT_EQ(roots.size(), std::size(tsx::kDialects));
}

TEST(Pmml, DocumentIsTheOneWorkedByHand) {
  const Sandbox box;
  box.Put("sales.csv", "date,sold\n2000-01,5\n2000-02,5\n2000-03,5\n2000-04,5\n");
  const Outcome outcome = box.Run("fit sales.csv --model simple --format pmml -o -");
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  test::ExpectWellFormed(outcome.out);
  const std::size_t dictionary = outcome.out.find("\t<DataDictionary");
  ASSERT_NE(dictionary, std::string::npos) << outcome.out;
  test::ExpectGolden("cli/commands/golden/simple.pmml", outcome.out.substr(dictionary));
}

TEST(Pmml, IsWrittenForEveryKindOfSmoothing) {
  const Sandbox box;
  box.PutData("airpassengers.csv");
  for (const char* kind : {"simple", "simple-seasonal", "brown", "holt", "damped-trend",
                           "winters-additive", "winters-multiplicative"}) {
    const Outcome outcome =
        box.Run("fit airpassengers.csv --format pmml -o - --model " + std::string(kind));
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    const auto document = Parsed(outcome.out);
    EXPECT_EQ(document.select_nodes("/PMML/TimeSeriesModel/ExponentialSmoothing").size(), 1U);
    EXPECT_EQ(document.select_nodes("//TimeValue").size(), 144U);
    EXPECT_EQ(Attributes(document, "//DataField/@name"), (Strings{"value", "Month"}));
  }
}

TEST(Pmml, ChoosesAmongKindsOfSmoothing) {
  const Sandbox box;
  box.PutData("nile.csv");
  const Outcome outcome = box.Run("fit nile.csv --format pmml -o m.pmml");
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_NE(outcome.out.find("lowest normalised BIC of 4 kinds"), std::string::npos);
  EXPECT_TRUE(Parsed(box.Content("m.pmml")).child("PMML"));
}

TEST(Pmml, RefusesWhatItHasNoPlaceForAndWritesNothing) {
  const std::string end = ", so its readers would forecast wrongly; use --format tscxml";
  const Sandbox box;
  box.PutData("presidents.csv");
  box.PutData("intermittent_a.csv");
  box.PutData("nile.csv");
  box.Put("m.pmml", "old");
  EXPECT_EQ(Complaint(box, "fit nile.csv --model croston --format pmml -o m.pmml"),
            "tsxport: --model croston: --format pmml has no place for it" + end);
  EXPECT_EQ(Complaint(box, "fit nile.csv --transform log --format pmml -o m.pmml"),
            "tsxport: --transform: --format pmml has no place for it" + end);
  EXPECT_EQ(Complaint(box, "fit presidents.csv --format pmml -o m.pmml"),
            "tsxport: presidents.csv:2:9: the value at 1945-Q1 is missing: --format pmml has no "
            "place for that" +
                end + " (series \"presidents\")");
  EXPECT_EQ(Complaint(box, "fit intermittent_a.csv --format pmml -o m.pmml"),
            "tsxport: intermittent_a.csv:2:9: 67 of 120 cases are zero and none is negative, which "
            "asks for Croston's method: --format pmml has no place for it" +
                end + " or name a --model (series \"intermittent_a\")");
  EXPECT_EQ(box.Content("m.pmml"), "old");
}

TEST(Pmml, SkippedPeriodIsAMissingValueUnlessItIsAGap) {
  const Sandbox box;
  box.Put("sales.csv", "date,v\n2000-01,5\n2000-02,6\n2000-04,4\n2000-05,5\n2000-06,7\n");
  EXPECT_EQ(
      Complaint(box, "fit sales.csv --format pmml"),
      "tsxport: sales.csv:4:9: the value at 2000-03 is missing: --format pmml has no place for "
      "that, so its readers would forecast wrongly; use --format tscxml (series \"sales\")");
  const Outcome gap = box.Run("fit sales.csv --format pmml --gaps --model simple -o -");
  EXPECT_EQ(gap.status, 0) << gap.err;
  EXPECT_EQ(Parsed(gap.out).select_nodes("//TimeValue").size(), 5U);
}

TEST(Pmml, EverySeriesIsLookedAt) {
  const Sandbox box;
  box.Put("sales.csv",
          "date,a,b\n2000-01,5,1\n2000-02,6,2\n2000-03,4,\n2000-04,5,3\n2000-05,7,2\n");
  EXPECT_EQ(Complaint(box, "fit sales.csv --format pmml"),
            "tsxport: sales.csv:4:11: the value at 2000-03 is missing: --format pmml has no place "
            "for that, so its readers would forecast wrongly; use --format tscxml (series "
            "\"sales/b\")");
}

TEST(Pmml, SeriesShareADocument) {
  const Sandbox box;
  box.PutData("seatbelts.csv");
  const Outcome outcome = box.Run(
      "fit seatbelts.csv --variable kms --variable drivers --model simple --format pmml -o -");
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  const auto document = Parsed(outcome.out);
  EXPECT_EQ(Attributes(document, "/PMML/TimeSeriesModel/@modelName"),
            (Strings{"seatbelts/kms", "seatbelts/drivers"}));
  EXPECT_EQ(Attributes(document, "//DataField/@name"), (Strings{"drivers", "Month"}));
}

TEST(Pmml, HopelessSeriesIsNoReasonToRefuseTheOthers) {
  const Sandbox box;
  box.Put("sales.csv",
          "shop,date,v\na,2000-01-01,1\na,2000-01-02,\na,2000-01-20,3\na,2000-02-11,2\n"
          "a,2000-05-04,4\nb,2000-01-01,5\nb,2000-01-02,6\nb,2000-01-03,4\nb,2000-01-04,5\n");
  const Outcome outcome = box.Run("fit sales.csv --id shop --model simple --format pmml -o -");
  EXPECT_EQ(outcome.status, 3) << outcome.err;
  EXPECT_EQ(Attributes(Parsed(outcome.out), "//TimeSeriesModel/@modelName"), Strings{"sales/b"});
}

TEST(Pmml, KindAskedForIsTakenForIntermittentDemandToo) {
  const Sandbox box;
  box.PutData("intermittent_a.csv");
  const Outcome outcome = box.Run("fit intermittent_a.csv --format pmml --model simple -o -");
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_TRUE(Parsed(outcome.out).child("PMML"));
}

TEST(Variables, AllColumnsOfNumbersAreModelsOfOneCalendar) {
  const Sandbox box;
  box.PutData("seatbelts.csv");
  const Outcome outcome = box.Run("fit seatbelts.csv -o - --model simple");
  ASSERT_EQ(outcome.status, 0) << outcome.err;
  const auto document = Parsed(outcome.out);
  EXPECT_EQ(
      Attributes(document, "//ExpSmoothingModel/@modelName"),
      (Strings{"seatbelts/drivers", "seatbelts/kms", "seatbelts/petrol_price", "seatbelts/law"}));
  EXPECT_EQ(Attributes(document, "//ExpSmoothingModel/@dateSpecID"), Strings(4, "1"));
  EXPECT_EQ(Attributes(document, "//DateSpecification/@dateSpecID"), Strings{"1"});
}

TEST(Variables, ThoseAskedForAreTakenInOrder) {
  const Sandbox box;
  box.PutData("seatbelts.csv");
  const Outcome outcome =
      box.Run("fit seatbelts.csv --variable kms --variable drivers -o - --model simple");
  EXPECT_EQ(Attributes(Parsed(outcome.out), "//ExpSmoothingModel/@variableID"),
            (Strings{"kms", "drivers"}));
}

TEST(Variables, LongTableSharesCalendarsOfSeriesThatStartTogether) {
  std::string table = "shop,date,sales\n";
  for (const auto& [shop, first] :
       {std::pair("a", 24000), std::pair("b", 24003), std::pair("c", 24000)}) {
    for (int i = 0; i < 12; ++i) {
      table += std::string(shop) + "," +
               tsxtimes::TimeText({tsxtimes::TimeUnit::kMonth}, first + i) + "," +
               std::to_string((i * 7) % 5) + "\n";
    }
  }
  const Sandbox box;
  box.Put("sales.csv", table);
  const Outcome outcome = box.Run("fit sales.csv --id shop -o - --model simple");
  ASSERT_EQ(outcome.status, 0) << outcome.err;
  const auto document = Parsed(outcome.out);
  EXPECT_EQ(Attributes(document, "//ExpSmoothingModel/@modelName"),
            (Strings{"sales/a", "sales/b", "sales/c"}));
  EXPECT_EQ(Attributes(document, "//ExpSmoothingModel/@dateSpecID"), (Strings{"1", "2", "1"}));
}

TEST(Names, OptionsReachTheDocument) {
  const Sandbox box;
  box.PutData("nile.csv");
  const auto document = Parsed(
      box.Run("fit nile.csv -o - --model simple --name 'The Nile' --descriptor '10^8 m^3 & more'")
          .out);
  EXPECT_EQ(Attributes(document, "//ExpSmoothingModel/@modelName"), Strings{"The Nile"});
  EXPECT_EQ(Attributes(document, "//ExpSmoothingModel/@modelDescriptor"),
            Strings{"10^8 m^3 & more"});
}

TEST(Season, OtherThanTheCalendarsIsForced) {
  const Sandbox box;
  box.Put("sales.csv", MonthlyTable(48));
  const auto document =
      Parsed(box.Run("fit sales.csv -o - --model winters-additive --season 6").out);
  EXPECT_EQ(Attributes(document, "//Periods/@forcedSeasonLength"), Strings{"6"});
  EXPECT_EQ(Attributes(document, "//ESAdditiveWinters/@seasonLength"), Strings{"6"});
}

TEST(Season, ThatOfTheCalendarIsNotForced) {
  const Sandbox box;
  box.Put("sales.csv", MonthlyTable(48));
  const auto document =
      Parsed(box.Run("fit sales.csv -o - --model winters-additive --season 12").out);
  EXPECT_EQ(Attributes(document, "//Periods/@forcedSeasonLength"), Strings{});
}

TEST(Gaps, SkippedMonthIsAMissingValueUnlessGapsAreAskedFor) {
  Strings lines = Lines(MonthlyTable(36));
  lines.erase(lines.begin() + 21);  // 2001-09, the 21st month
  std::string table;
  for (const std::string& line : lines) table += line + "\n";
  const Sandbox box;
  box.Put("sales.csv", table);

  const Outcome missing = box.Run("fit sales.csv -o - --model simple");
  EXPECT_EQ(Parsed(missing.out).select_nodes("//GapList").size(), 0U);
  EXPECT_EQ(Attributes(Parsed(missing.out), "//EstimationInfo/@periodLength"), Strings{"36"});

  const Outcome gap = box.Run("fit sales.csv -o - --model simple --gaps");
  EXPECT_STREQ(Parsed(gap.out).select_node("//GapList").node().text().get(), "20");
  EXPECT_EQ(Attributes(Parsed(gap.out), "//EstimationInfo/@periodLength"), Strings{"35"});
  EXPECT_NE(box.Run("fit sales.csv --gaps").out.find("35 cases, 1 gap\n"), std::string::npos);
}

TEST(Gaps, SeasonalModelTakesNone) {
  Strings lines = Lines(MonthlyTable(36));
  lines.erase(lines.begin() + 21);
  std::string table;
  for (const std::string& line : lines) table += line + "\n";
  EXPECT_EQ(ComplaintAbout(table, "--gaps --model winters-additive"),
            "tsxport: sales.csv:2:9: winters-additive has seasons, which gaps would shift; leave "
            "--gaps out or choose a model without (series \"sales\")");
}

TEST(Gaps, RunningNumbersHaveNone) {
  EXPECT_EQ(ComplaintAbout("n,value\n1,5\n2,6\n4,5\n5,7\n6,8\n", "--gaps"),
            "tsxport: --gaps: running numbers have no gaps; without it, skipped numbers become "
            "missing values");
}

TEST(FirstCaseDay, IsWrittenOnRequestOnlyAndBreaksWellFormedness) {
  const Sandbox box;
  std::string table = "date,value\n";
  for (int i = 10; i < 30; ++i) {
    table += "2021-03-" + std::to_string(i) + "," + std::to_string(i % 7) + "\n";
  }
  box.Put("sales.csv", table);
  const Outcome without = box.Run("fit sales.csv -o - --model simple");
  EXPECT_EQ(without.out.find("FirstCaseDay"), std::string::npos);
  const Outcome with = box.Run("fit sales.csv -o - --model simple --first-case-day");
  EXPECT_EQ(with.status, 0);
  EXPECT_NE(with.out.find("<FirstCaseDay\n\t\t\t\tday=\"10\"\n\t\t\t\tmonth=\"3\"\n"
                          "\t\t\t\tmonth=\"2021\"/>"),
            std::string::npos)
      << with.out;
}

TEST(FirstCaseDay, NeedsDays) {
  EXPECT_EQ(ComplaintAbout(MonthlyTable(20), "--first-case-day"),
            "tsxport: --first-case-day: the calendar of 'sales' (monthly) has no days");
}

TEST(Forecast, IsCsvOnStandardOutputAndTheSummaryMovesAway) {
  const Sandbox box;
  box.PutData("airpassengers.csv");
  const Outcome outcome = box.Run("fit airpassengers.csv --forecast 14 --model holt");
  EXPECT_EQ(outcome.status, 0);
  const Strings lines = Lines(outcome.out);
  ASSERT_EQ(lines.size(), 15U);
  EXPECT_EQ(lines[0], "series,time,forecast,lower95,upper95");
  EXPECT_TRUE(lines[1].starts_with("airpassengers,1961-01,")) << lines[1];
  EXPECT_TRUE(lines[14].starts_with("airpassengers,1962-02,")) << lines[14];
  EXPECT_NE(outcome.err.find("Holt's linear trend"), std::string::npos);
}

TEST(Forecast, LimitsLieAroundTheForecast) {
  const Sandbox box;
  box.PutData("nile.csv");
  for (const std::string& line : Lines(box.Run("fit nile.csv --forecast 5").out)) {
    if (line.starts_with("series")) continue;
    Strings cells;
    std::istringstream in(line);
    for (std::string cell; std::getline(in, cell, ',');) cells.push_back(cell);
    ASSERT_EQ(cells.size(), 5U);
    EXPECT_LT(std::stod(cells[3]), std::stod(cells[2]));
    EXPECT_GT(std::stod(cells[4]), std::stod(cells[2]));
  }
}

TEST(Forecast, GoesOnOverWeekends) {
  const Sandbox box;
  std::string table = "date,value\n";
  for (const int day : {2, 3, 6, 7, 8, 9, 10, 13, 14, 15, 16, 17}) {
    table += "2020-01-" + std::string(day < 10 ? "0" : "") + std::to_string(day) + "," +
             std::to_string(day * 3 % 7) + "\n";
  }
  box.Put("sales.csv", table);
  const Strings lines = Lines(box.Run("fit sales.csv --forecast 2 --model simple").out);
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_TRUE(lines[1].starts_with("sales,2020-01-20,")) << lines[1];
}

TEST(Plot, IsWrittenBesideTheSummary) {
  const Sandbox box;
  box.PutData("nile.csv");
  const Outcome outcome = box.Run("fit nile.csv --plot nile.svg");
  EXPECT_EQ(outcome.status, 0);
  EXPECT_NE(outcome.out.find("wrote nile.svg\n"), std::string::npos);
  test::ExpectWellFormed(box.Content("nile.svg"));
}

TEST(Jobs, OutputIsTheSameWhateverTheirNumber) {
  std::string table = "id,date,value\n";
  for (int id = 0; id < 9; ++id) {
    for (int i = 0; i < 40; ++i) {
      table += "s" + std::to_string(id) + "," +
               tsxtimes::TimeText({tsxtimes::TimeUnit::kMonth}, 24000 + i) + "," +
               std::to_string(20 + i % 12 + (i * i * (id + 3)) % 11) + "\n";
    }
  }
  table += "short,2000-01,1\n";
  const Sandbox box;
  box.Put("sales.csv", table);
  std::vector<Outcome> outcomes;
  Strings documents;
  for (const char* jobs : {"1", "2", "8"}) {
    const std::string options = "fit sales.csv --id id --forecast 3 -o m.xml --jobs ";
    outcomes.push_back(box.Run(options + jobs));
    documents.push_back(box.Content("m.xml"));
  }
  EXPECT_EQ(outcomes[0].status, 3);
  for (const std::size_t i : {1U, 2U}) {
    EXPECT_EQ(outcomes[i].status, outcomes[0].status);
    EXPECT_EQ(outcomes[i].out, outcomes[0].out);
    EXPECT_EQ(outcomes[i].err, outcomes[0].err);
    EXPECT_EQ(documents[i], documents[0]);
  }
}

TEST(Progress, IsNotDrawnInAPipe) {
  const Sandbox box;
  box.Put("sales.csv", MonthlyTable(300));
  const Outcome outcome = box.Run("fit sales.csv");
  EXPECT_EQ(outcome.err, "");
}

TEST(HopelessSeries, IsNamedAndTheOthersAreWritten) {
  const Sandbox box;
  box.Put("sales.csv",
          "id,date,value\na,2000-01,5\nb,2000-01,6\nb,2000-02,7\nb,2000-03,5\nb,2000-04,8\n");
  const Outcome outcome = box.Run("fit sales.csv --id id -o m.xml");
  EXPECT_EQ(outcome.status, 3);
  EXPECT_EQ(outcome.err,
            "tsxport: sales.csv:2:11: the model needs 3 cases that are not missing, the series has "
            "1 (series \"sales/a\")\n");
  EXPECT_EQ(Attributes(Parsed(box.Content("m.xml")), "//ExpSmoothingModel/@modelName"),
            Strings{"sales/b"});
}

TEST(HopelessSeries, AloneIsBadInput) {
  EXPECT_EQ(
      ComplaintAbout("date,value\n2000-01,5\n2000-02,6\n"),
      "tsxport: sales.csv:2:9: the model needs 3 cases that are not missing, the series has 2 "
      "(series \"sales\")");
}

TEST(HopelessSeries, AllOfThemAreOneLine) {
  EXPECT_EQ(
      ComplaintAbout("date,a,b\n2000-01,5,1\n2000-02,6,2\n"),
      "tsxport: sales.csv:2:9: the model needs 3 cases that are not missing, the series has 2 "
      "(series \"sales/a\"); none of the 2 series can be fitted");
}

TEST(HopelessSeries, NegativeValueUnderTheLogarithm) {
  EXPECT_EQ(ComplaintAbout(MonthlyTable(30, {{4, "-3"}}), "--transform log"),
            "tsxport: sales.csv:6:9: -3: the logarithm needs values above 0 (series \"sales\")");
}

TEST(HopelessSeries, TimesWithoutARegularStep) {
  EXPECT_EQ(ComplaintAbout("n,value\n1,5\n2,6\n3,5\n1000,7\n"),
            "tsxport: sales.csv:2:3: the times follow no regular step: the 4 times there are would "
            "be spread over 1000 cases (numbered) (series \"sales\")");
}

TEST(BadInput, WordAmongNumbers) {
  EXPECT_EQ(ComplaintAbout(MonthlyTable(20, {{15, "twelve"}})),
            "tsxport: sales.csv:17:9: 'twelve' is not a number (column \"value\")");
}

TEST(BadInput, InfinityAmongNumbers) {
  EXPECT_EQ(ComplaintAbout(MonthlyTable(20, {{0, "inf"}})),
            "tsxport: sales.csv:2:9: 'inf' is not a number (column \"value\")");
}

TEST(BadInput, ImpossibleTime) {
  EXPECT_EQ(ComplaintAbout("date,value\n1999-12,5\n1999-13,6\n"),
            "tsxport: sales.csv:3:1: '1999-13': there is no month 13");
}

TEST(BadInput, RepeatedTime) {
  EXPECT_EQ(ComplaintAbout("date,value\n1999-12,5\n1999-12,6\n"),
            "tsxport: sales.csv:3:1: '1999-12' repeats the time '1999-12' of line 2");
}

TEST(BadInput, RaggedLine) {
  EXPECT_EQ(ComplaintAbout("date,value\n1999-12,5,7\n"),
            "tsxport: sales.csv:2:11: the line has 3 cells, the header has 2");
}

TEST(BadInput, NulByte) {
  EXPECT_EQ(ComplaintAbout(std::string("date,value\n1999-12,\0", 20)),
            "tsxport: sales.csv:2:9: there is a NUL byte");
}

TEST(BadInput, MissingFile) {
  const Sandbox box;
  EXPECT_EQ(Complaint(box, "fit none.csv"),
            "tsxport: none.csv: cannot be read: No such file or directory");
}

TEST(BadInput, UnknownVariable) {
  EXPECT_EQ(ComplaintAbout(MonthlyTable(20), "--variable sales"),
            "tsxport: --variable: sales.csv has no column 'sales'; it has date, value");
}

TEST(BadInput, UnknownOption) {
  EXPECT_NE(ComplaintAbout(MonthlyTable(20), "--seasons 12").find("--seasons"), std::string::npos);
}

TEST(BadInput, FileNameWithALineEndStaysOnOneLine) {
  const Sandbox box;
  EXPECT_EQ(Complaint(box, "fit 'a\nb.csv'"),
            "tsxport: a?b.csv: cannot be read: No such file or directory");
}

TEST(BadInput, LeavesAnExistingOutputAlone) {
  const Sandbox box;
  box.Put("sales.csv", MonthlyTable(20, {{15, "twelve"}}));
  box.Put("m.xml", "old");
  box.Put("p.svg", "old");
  Complaint(box, "fit sales.csv -o m.xml --plot p.svg");
  EXPECT_EQ(box.Content("m.xml"), "old");
  EXPECT_EQ(box.Content("p.svg"), "old");
  EXPECT_EQ(box.Files(), (Strings{"m.xml", "p.svg", "sales.csv"}));
}

TEST(StandardInput, IsReadForADash) {
  const Sandbox box;
  box.PutData("nile.csv");
  const Outcome outcome = box.Run("fit - -o - --model simple --name nile < nile.csv");
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_EQ(Attributes(Parsed(outcome.out), "//ExpSmoothingModel/@modelName"), Strings{"nile"});
}

TEST(Outputs, MustNotFallOnTheInputOrOnEachOther) {
  const Sandbox box;
  box.Put("sales.csv", MonthlyTable(20));
  EXPECT_EQ(Complaint(box, "fit sales.csv -o ./sales.csv"),
            "tsxport: -o: './sales.csv' is the input file");
  EXPECT_EQ(Complaint(box, "fit sales.csv --plot sales.csv"),
            "tsxport: --plot: 'sales.csv' is the input file");
  EXPECT_EQ(Complaint(box, "fit sales.csv -o a --plot a"),
            "tsxport: --plot: 'a' is the file of -o");
  EXPECT_EQ(box.Content("sales.csv"), MonthlyTable(20));
}

TEST(Outputs, MustNotFallOnEachOtherUnderTwoNames) {
  const Sandbox box;
  box.Put("sales.csv", MonthlyTable(20));
  EXPECT_EQ(Complaint(box, "fit sales.csv -o ./a --plot a"),
            "tsxport: --plot: 'a' is the file of -o");
  EXPECT_EQ(box.Run("--version", "ln -s a link;").status, 0);
  EXPECT_EQ(Complaint(box, "fit sales.csv -o link --plot a"),
            "tsxport: --plot: 'a' is the file of -o");
  EXPECT_FALSE(box.Has("a"));
}

TEST(Outputs, FullDeviceEndsWithStatusOne) {
  const Sandbox box;
  box.Put("sales.csv", MonthlyTable(20));
  const Outcome file = box.Run("fit sales.csv -o /dev/full");
  EXPECT_EQ(file.status, 1);
  EXPECT_EQ(file.err, "tsxport: /dev/full: cannot be written: No space left on device\n");
  const Outcome standard = box.Run("fit sales.csv > /dev/full");
  EXPECT_EQ(standard.status, 1);
  EXPECT_EQ(standard.err, "tsxport: standard output: cannot be written\n");
}

TEST(Outputs, NothingIsHalfWrittenWhenOneOfTwoFails) {
  const Sandbox box;
  box.Put("sales.csv", MonthlyTable(20));
  box.Put("m.xml", "old");
  const Outcome outcome = box.Run("fit sales.csv -o m.xml --plot none/p.svg");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.err, "tsxport: none/p.svg: cannot be written: No such file or directory\n");
  EXPECT_EQ(box.Content("m.xml"), "old");
  EXPECT_EQ(box.Files(), (Strings{"m.xml", "sales.csv"}));
}

// Nobody reads the pipe, so the command waits there with the drawing beside its place.
TEST(Outputs, NothingIsHalfWrittenWhenASignalEndsTheCommand) {
  const Sandbox box;
  box.Put("sales.csv", MonthlyTable(20));
  box.Put("p.svg", "old");
  const std::string temporary = "ls -A | grep -q '^[.]tsxport[.].*[.]tmp$'";
  const Outcome outcome =
      box.Run("fit sales.csv -o pipe --plot p.svg & for i in $(seq 1000); do " + temporary +
                  " && break; sleep 0.02; done; " + temporary + " && kill -TERM $!; wait $!",
              "mkfifo pipe;");
  EXPECT_EQ(outcome.status, 128 + SIGTERM);
  EXPECT_EQ(box.Content("p.svg"), "old");
  EXPECT_EQ(box.Files(), (Strings{"p.svg", "pipe", "sales.csv"}));
}

TEST(Outputs, FileThatGrowsPastALimitIsToldLikeAFullDisk) {
  const Sandbox box;
  box.Put("sales.csv", MonthlyTable(20));
  box.Put("m.xml", "old");
  const Outcome outcome = box.Run("fit sales.csv -o m.xml", "ulimit -f 1;");
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.err, "tsxport: m.xml: cannot be written: File too large\n");
  EXPECT_EQ(box.Content("m.xml"), "old");
  EXPECT_EQ(box.Files(), (Strings{"m.xml", "sales.csv"}));
}

TEST(Pages, HelpAndVersionGoToStandardOutput) {
  const Sandbox box;
  for (const char* arguments : {"--help", "fit --help", "--version", "fit -h"}) {
    const Outcome outcome = box.Run(arguments);
    EXPECT_EQ(outcome.status, 0);
    EXPECT_NE(outcome.out, "");
    EXPECT_EQ(outcome.err, "");
  }
}

TEST(Pages, NoSubcommandIsAnError) {
  const Sandbox box;
  EXPECT_NE(Complaint(box, "").find("--help"), std::string::npos);
}

}  // namespace
