#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <string>
#include <vector>

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
using Numbers = std::vector<double>;

Outcome FitData(const std::string& name, const std::string& arguments) {
  const Sandbox box;
  box.PutData(name + ".csv");
  return box.Run("fit " + name + ".csv " + arguments);
}

// The document of a run that goes well.
pugi::xml_document DocumentOf(const std::string& name, const std::string& arguments) {
  const Outcome outcome = FitData(name, arguments + " -o -");
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  return Parsed(outcome.out);
}

// Estimates with their standard errors where `path` selects EstimatedParameter elements.
Numbers Estimates(const pugi::xml_document& document, const std::string& path) {
  Numbers numbers;
  for (const pugi::xpath_node& node : document.select_nodes(path.c_str())) {
    std::istringstream in(node.node().text().get());
    for (double number = 0; in >> number;) numbers.push_back(number);
  }
  return numbers;
}

void ExpectNear(const Numbers& actual, const Numbers& expected, double relativeTolerance) {
  ASSERT_EQ(actual.size(), expected.size());
  for (std::size_t i = 0; i < expected.size(); ++i) {
    EXPECT_NEAR(actual[i], expected[i], relativeTolerance * std::abs(expected[i])) << i;
  }
}

// The first numbers behind time and series in the lines of a forecast table.
Numbers ForecastsIn(const std::string& table) {
  Numbers numbers;
  const Strings lines = Lines(table);
  for (std::size_t i = 1; i < lines.size(); ++i) {
    const std::size_t time = lines[i].find(',') + 1;
    numbers.push_back(std::strtod(lines[i].c_str() + lines[i].find(',', time) + 1, nullptr));
  }
  return numbers;
}

std::string SeatbeltsWithFuture(const std::string& rows) {
  const Sandbox box;
  box.PutData("seatbelts.csv");
  return box.Content("seatbelts.csv") + rows;
}

constexpr char kAirline[] = "--model 'arima(0,1,1)(0,1,1)' --transform log ";
constexpr char kLaw[] =
    "--variable drivers --model 'arima(1,0,0)(1,0,0)' --transform log --predictor law ";

// Estimates, likelihoods and forecasts to compare with are those of arima() and predict() of R
// 4.2.2 by maximum likelihood, stopped at a relative tolerance of 1e-14. R writes MA and numerator
// coefficients with the opposite signs.

TEST(ArimaCommand, AirlineModelIsThatOfR) {
  const auto document = DocumentOf("airpassengers", kAirline);
  EXPECT_EQ(Attributes(document, "//ARIMAModel/@seasonLength"), Strings{"12"});
  EXPECT_EQ(Attributes(document, "//MovingAverage//LagTerm/@lag"), (Strings{"1", "12"}));
  EXPECT_EQ(document.select_nodes("//ARIMAModel/ConstantTerm").size(), 0U);
  ExpectNear(Estimates(document, "//MovingAverage//EstimatedParameter"),
             {0.40183, 0.08964, 0.55694, 0.07310}, 1e-3);
  EXPECT_NEAR(document.select_node("//Statistic[@type='logLikelihood']").node().text().as_double(),
              244.7, 0.005);
}

TEST(ArimaCommand, EachMethodHasItsState) {
  const std::pair<const char*, const char*> methods[] = {
      {"ml", "ARIMAMLState"}, {"ml-theta", "ARIMAMLSpState"}, {"cls", "ARIMACLSState"}};
  for (const auto& [method, state] : methods) {
    const auto document =
        DocumentOf("airpassengers", kAirline + ("--method " + std::string(method)));
    EXPECT_EQ(document.select_nodes(("//ARIMAModel/" + std::string(state)).c_str()).size(), 1U)
        << method;
  }
}

TEST(ArimaCommand, ThetaRecursionIsTheSameLikelihood) {
  const auto document = DocumentOf("airpassengers", kAirline + std::string("--method ml-theta"));
  ExpectNear(Estimates(document, "//MovingAverage//EstimatedParameter"),
             {0.40183, 0.08964, 0.55694, 0.07310}, 1e-3);
}

TEST(ArimaCommand, ForecastsAreThoseOfR) {
  const Outcome outcome = FitData("airpassengers", kAirline + std::string("--forecast 3"));
  const Strings lines = Lines(outcome.out);
  ASSERT_EQ(lines.size(), 4U);
  EXPECT_TRUE(lines[1].starts_with("airpassengers,1961-01,")) << lines[1];
  ExpectNear(ForecastsIn(outcome.out), {450.42237, 425.71720, 479.00683}, 1e-5);
  EXPECT_NE(outcome.err.find("ARIMA(0,1,1)(0,1,1)12 of the logarithm"), std::string::npos);
}

TEST(ArimaCommand, LagListsLeaveLagsOut) {
  const auto document = DocumentOf("wwwusage", "--model 'arima([1,3],1,0)'");
  EXPECT_EQ(Attributes(document, "//Autoregression//LagTerm/@lag"), (Strings{"1", "3"}));
  const Numbers estimates = Estimates(document, "//Autoregression//EstimatedParameter");
  ASSERT_EQ(estimates.size(), 4U);
  EXPECT_NEAR(estimates[0], 0.80415, 2e-5);
  EXPECT_NEAR(estimates[1], 0.07053, 2e-5);
  EXPECT_NEAR(estimates[2], -0.00270, 2e-5);
  EXPECT_NEAR(estimates[3], 0.07042, 2e-5);
}

TEST(ArimaCommand, MissingValuesArePassedOver) {
  const Outcome outcome = FitData("presidents", "--model 'arima(1,0,0)(1,0,0)'");
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_NE(outcome.out.find("120 cases, 6 missing\n"), std::string::npos);
}

TEST(ArimaCommand, ConstantIsThereOnRequest) {
  const char kTerm[] = "//ARIMAModel/ConstantTerm/EstimatedParameter";
  const std::pair<const char*, std::size_t> models[] = {
      {"--model 'arima(0,1,1)'", 0},
      {"--model 'arima(0,1,1)' --constant", 1},
      {"--model 'arima(1,0,0)'", 1},
      {"--model 'arima(1,0,0)' --no-constant", 0}};
  for (const auto& [arguments, count] : models) {
    EXPECT_EQ(DocumentOf("nile", arguments).select_nodes(kTerm).size(), count) << arguments;
  }
}

TEST(ArimaCommand, SeasonIsForcedLikeThatOfSmoothing) {
  const auto document = DocumentOf("airpassengers", "--model 'arima(0,1,1)(0,1,1)' --season 6");
  EXPECT_EQ(Attributes(document, "//Periods/@forcedSeasonLength"), Strings{"6"});
  EXPECT_EQ(Attributes(document, "//MovingAverage//LagTerm/@lag"), (Strings{"1", "6"}));
}

TEST(ArimaSummary, TellsModelEstimatesAndFit) {
  const Strings lines = Lines(FitData("airpassengers", kAirline).out);
  ASSERT_EQ(lines.size(), 10U);
  EXPECT_EQ(lines[1], "  series      value, monthly from 1949-01 to 1960-12, 144 cases");
  EXPECT_EQ(lines[2],
            "  model       ARIMA(0,1,1)(0,1,1)12 of the logarithm, exact maximum likelihood");
  EXPECT_EQ(lines[3], "  estimates                   estimate      s.e.");
  EXPECT_TRUE(lines[4].starts_with("              MA 1            0.4018")) << lines[4];
  EXPECT_TRUE(lines[5].starts_with("              seasonal MA 12  0.5569")) << lines[5];
  EXPECT_EQ(lines[6],
            "              signs of Box and Jenkins: 1 - phi B, 1 - theta B, omega0 - omega1 B");
  EXPECT_TRUE(lines[7].starts_with("  likelihood  log-likelihood 244.7, AIC -485.39, BIC "))
      << lines[7];
  EXPECT_TRUE(lines[8].starts_with("  fit         RMSE ")) << lines[8];
  EXPECT_TRUE(lines[9].starts_with("  residuals   Ljung-Box Q(18) ")) << lines[9];
}

TEST(ArimaSummary, IsOneLineBesideADocument) {
  EXPECT_EQ(FitData("nile", "--model 'arima(1,0,0)' -o m.xml").out,
            "nile: ARIMA(1,0,0) with a constant\nwrote m.xml (1 model)\n");
}

TEST(ArimaSummary, PlotNamesTheModel) {
  const Sandbox box;
  box.PutData("airpassengers.csv");
  EXPECT_EQ(box.Run("fit airpassengers.csv --plot a.svg " + std::string(kAirline)).status, 0);
  test::ExpectWellFormed(box.Content("a.svg"));
  EXPECT_NE(box.Content("a.svg").find("ARIMA(0,1,1)(0,1,1)12 of the logarithm</text>"),
            std::string::npos);
}

TEST(ArimaPredictor, RegressionIsThatOfR) {
  const auto document = DocumentOf("seatbelts", kLaw);
  EXPECT_EQ(Attributes(document, "//ARIMAModel/@variableID"), Strings{"drivers"});
  EXPECT_EQ(Attributes(document, "//PredictorEffect/@variableID"), Strings{"law"});
  ExpectNear(Estimates(document, "//ConstantTerm/EstimatedParameter"), {7.43545, 0.02941}, 1e-3);
  ExpectNear(Estimates(document, "//Autoregression//EstimatedParameter"),
             {0.41899, 0.07247, 0.64157, 0.05948}, 1e-3);
  ExpectNear(Estimates(document, "//PredictorEffect//EstimatedParameter"), {-0.24110, 0.04149},
             1e-3);
}
// The example of the README.
TEST(ArimaPredictor, WithAnOutlierOnSeasonalDifferencesIsThatOfR) {
  const auto document =
      DocumentOf("seatbelts",
                 "--variable drivers --model 'arima(0,1,1)(0,1,1)' --transform log --predictor "
                 "law:diff=1,sdiff=1 --outlier level@1973-11");
  ExpectNear(Estimates(document, "//MovingAverage//EstimatedParameter"),
             {0.77408, 0.05640, 0.84701, 0.07210}, 1e-3);
  ExpectNear(Estimates(document, "//PredictorEffect//EstimatedParameter"), {-0.25012, 0.04687},
             1e-3);
  ExpectNear(Estimates(document, "//OutlierEffect/EstimatedParameter"), {-0.18368, 0.04604}, 1e-3);
  EXPECT_EQ(Attributes(document, "//OutlierEffect/@startIndex"), Strings{"58"});
}
// As the regression of the differences on those of the leading indicator, 3 and 4 periods ago.
TEST(ArimaPredictor, NumeratorWithDelayIsThatOfR) {
  const auto document =
      DocumentOf("bjsales", "--model 'arima(0,1,1)' --predictor lead:delay=3,num=1,diff=1");
  EXPECT_EQ(Attributes(document, "//PredictorEffect/Transformation/@delay"), Strings{"3"});
  ExpectNear(Estimates(document, "//MovingAverage//EstimatedParameter"), {-0.57600, 0.05415}, 1e-3);
  ExpectNear(Estimates(document, "//PredictorEffect/Numerator//EstimatedParameter"),
             {4.31719, 0.17129, -1.97460, 0.17315}, 1e-3);
}

TEST(ArimaPredictor, DenominatorIsFittedAndTold) {
  const Outcome outcome =
      FitData("bjsales", "--model 'arima(0,1,1)' --constant --predictor lead:delay=3,den=1,diff=1");
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_NE(outcome.out.find("lead denominator 1  0.7"), std::string::npos) << outcome.out;
  EXPECT_NE(outcome.out.find("  predictors  lead, delayed by 3, differenced once\n"),
            std::string::npos);
}

TEST(ArimaPredictor, IsNoSeriesItself) {
  const auto document = DocumentOf("bjsales", "--model 'arima(0,1,1)' --predictor lead");
  EXPECT_EQ(Attributes(document, "//ARIMAModel/@modelName"), Strings{"bjsales"});
}

TEST(ArimaPredictor, RowsBehindTheSeriesAreItsFuture) {
  const Sandbox box;
  const std::string forecast = std::string(kLaw) + "--forecast 3";
  box.Put("with.csv", SeatbeltsWithFuture("1985-01,,,,1\n1985-02,,,,1\n1985-03,,,,1\n"));
  const Outcome with = box.Run("fit with.csv " + forecast);
  ASSERT_EQ(with.status, 0) << with.err;
  EXPECT_NE(with.err.find("monthly from 1969-01 to 1984-12, 192 cases\n"), std::string::npos);
  EXPECT_TRUE(Lines(with.out)[1].starts_with("with,1985-01,")) << with.out;
  ExpectNear(ForecastsIn(with.out), {1464.9216, 1265.6364, 1318.7899}, 1e-4);

  box.Put("without.csv", SeatbeltsWithFuture("1985-01,,,,0\n1985-02,,,,0\n1985-03,,,,0\n"));
  ExpectNear(ForecastsIn(box.Run("fit without.csv " + forecast).out),
             {1864.3253, 1610.7059, 1678.3515}, 1e-4);
}

TEST(ArimaPredictor, IsNeededAsFarAsTheForecast) {
  const Sandbox box;
  box.Put("seatbelts.csv", SeatbeltsWithFuture("1985-01,,,,1\n1985-02,,,,1\n"));
  EXPECT_EQ(Complaint(box, "fit seatbelts.csv --forecast 3 " + std::string(kLaw)),
            "tsxport: seatbelts.csv:195:12: --forecast 3 needs 3 values of the predictor 'law' "
            "after 1984-12, where the series ends; there are 2 (series \"seatbelts\")");
  EXPECT_EQ(box.Run("fit seatbelts.csv --forecast 2 " + std::string(kLaw)).status, 0);
}

TEST(ArimaPredictor, DelayNeedsNoFuture) {
  const Outcome outcome = FitData(
      "bjsales", "--model 'arima(0,1,1)' --predictor lead:delay=3,num=1,diff=1 --forecast 3");
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_EQ(Lines(outcome.out).size(), 4U);
}

TEST(ArimaPredictor, PlotLooksAsFarAheadAsThePredictorIsKnown) {
  const Sandbox box;
  box.PutData("bjsales.csv");
  EXPECT_EQ(box.Run("fit bjsales.csv --model 'arima(0,1,1)' --predictor lead --plot a.svg").status,
            0);
  test::ExpectWellFormed(box.Content("a.svg"));
}

TEST(ArimaPredictor, MissingValueWithinTheSeries) {
  const Sandbox box;
  box.Put("sales.csv", "n,y,x\n1,5,1\n2,6,NA\n3,4,2\n4,7,1\n5,5,2\n6,7,3\n7,4,1\n8,5,2\n");
  EXPECT_EQ(Complaint(box, "fit sales.csv --model 'arima(0,0,0)' --predictor x"),
            "tsxport: sales.csv:3:5: the predictor 'x' has no value at 2, which lies within the "
            "series (series \"sales\")");
}

TEST(ArimaPredictor, ValueOutsideTheDomainOfItsTransformation) {
  EXPECT_EQ(FitData("seatbelts",
                    "--variable drivers --model 'arima(1,0,0)' --predictor "
                    "law:transform=log")
                .err,
            "tsxport: seatbelts.csv:2:37: predictor 'law', 0: the logarithm needs values above 0 "
            "(series \"seatbelts\")\n");
}

TEST(ArimaOutlier, LevelShiftOfTheNileIsThatOfR) {
  const auto document = DocumentOf("nile", "--model 'arima(1,0,0)' --outlier level@1899");
  EXPECT_EQ(Attributes(document, "//OutlierEffect/@type"), Strings{"level"});
  EXPECT_EQ(Attributes(document, "//OutlierEffect/@startIndex"), Strings{"28"});
  ExpectNear(Estimates(document, "//OutlierEffect/EstimatedParameter"), {-249.07477, 32.80376},
             1e-3);
  ExpectNear(Estimates(document, "//ConstantTerm/EstimatedParameter"), {1098.51675, 27.85538},
             1e-3);
}

TEST(ArimaOutlier, IsToldWithTypeTimeAndSize) {
  const Outcome outcome = FitData("nile", "--model 'arima(1,0,0)' --outlier level@1899");
  EXPECT_NE(outcome.out.find("  outliers    level from 1899: -249.07 (s.e. 33)\n"),
            std::string::npos)
      << outcome.out;
}

TEST(ArimaOutlier, TimeThatTheSeriesHasNot) {
  const Sandbox box;
  box.PutData("nile.csv");
  EXPECT_EQ(Complaint(box, "fit nile.csv --model 'arima(1,0,0)' --outlier level@1999"),
            "tsxport: nile.csv: --outlier 'level@1999': the series has no such time; it runs from "
            "1871 to 1970 (yearly) (series \"nile\")");
}

TEST(ArimaOutlier, CountsCasesFromTheFirstOneOfTheFit) {
  const Sandbox box;
  std::string table = "date,y\n2000-01,\n2000-02,\n";
  for (int i = 0; i < 20; ++i) {
    const int month = 2 + i;
    table += std::to_string(2000 + month / 12) + "-" + (month % 12 < 9 ? "0" : "") +
             std::to_string(month % 12 + 1) + "," + std::to_string(10 + i * i % 7) + "\n";
  }
  box.Put("sales.csv", table);
  const Outcome outcome =
      box.Run("fit sales.csv --model 'arima(0,0,0)' --outlier additive@2000-06 -o -");
  EXPECT_EQ(Attributes(Parsed(outcome.out), "//EstimationInfo/@periodStartIndex"), Strings{"2"});
  EXPECT_EQ(Attributes(Parsed(outcome.out), "//OutlierEffect/@startIndex"), Strings{"3"});
  EXPECT_NE(box.Run("fit sales.csv --model 'arima(0,0,0)' --outlier additive@2000-06")
                .out.find("additive at 2000-06: "),
            std::string::npos);
}

TEST(ArimaOutlier, ThatOfTheNileIsFound) {
  const Outcome outcome = FitData("nile", "--model 'arima(0,0,0)' --detect-outliers");
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_NE(outcome.out.find("  outliers    level from 1899: -2"), std::string::npos)
      << outcome.out;
}

TEST(ArimaOutlier, WhereNoneIsFoundTheSummarySaysSo) {
  const Outcome outcome = FitData("lakehuron", "--model 'arima(2,0,0)' --detect-outliers");
  EXPECT_NE(outcome.out.find("  outliers    none found\n"), std::string::npos) << outcome.out;
}

TEST(ArimaOutlier, GivenOnesStayBesideThoseFound) {
  const auto document =
      DocumentOf("nile", "--model 'arima(0,0,0)' --detect-outliers --outlier additive@1950");
  EXPECT_EQ(document.select_nodes("//OutlierEffect[@startIndex='28'][@type='level']").size(), 1U);
  EXPECT_EQ(document.select_nodes("//OutlierEffect[@startIndex='79'][@type='additive']").size(),
            1U);
}

TEST(AutoArima, FindsOrdersAndTellsWhy) {
  const Outcome outcome = FitData("airpassengers", "--model auto-arima --transform log");
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_NE(outcome.out.find("  model       ARIMA(0,1,1)(0,1,1)12 of the logarithm"),
            std::string::npos)
      << outcome.out;
  EXPECT_NE(outcome.out.find("  why         lowest AICc of "), std::string::npos) << outcome.out;
}

TEST(AutoArima, TellsItsChoiceBesideADocument) {
  const Strings lines = Lines(FitData("nile", "--model auto-arima -o m.xml").out);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_TRUE(lines[0].starts_with("nile: ARIMA(")) << lines[0];
  EXPECT_NE(lines[0].find("(lowest AICc of "), std::string::npos) << lines[0];
}

TEST(AutoArima, SeasonOfOneMeansNoSeasons) {
  EXPECT_EQ(
      FitData("airpassengers", "--model auto-arima --transform log --season 1").out.find(")("),
      std::string::npos);
}

TEST(AutoArima, GapsLeaveNoSeasons) {
  const Sandbox box;
  std::string table = "date,y\n";
  for (int i = 0; i < 60; ++i) {
    if (i == 20) continue;
    table += std::to_string(2000 + i / 12) + "-" + (i % 12 < 9 ? "0" : "") +
             std::to_string(i % 12 + 1) + "," + std::to_string(i % 12 * 10 + i * i % 7) + "\n";
  }
  box.Put("sales.csv", table);
  const Outcome outcome = box.Run("fit sales.csv --gaps --model auto-arima");
  EXPECT_EQ(outcome.status, 0) << outcome.err;
  EXPECT_EQ(outcome.out.find(")("), std::string::npos) << outcome.out;
}

TEST(AutoArima, PredictorIsDifferencedWithTheSeriesUnlessToldOtherwise) {
  const char kDiff[] = "//PredictorEffect/Transformation/@nonSeasonalDiff";
  EXPECT_EQ(Attributes(DocumentOf("bjsales", "--model auto-arima --predictor lead"), kDiff),
            Strings{"1"});
  EXPECT_EQ(Attributes(DocumentOf("bjsales", "--model auto-arima --predictor lead:diff=0"), kDiff),
            Strings{});
}

TEST(AutoArima, HopelessSeriesIsNamed) {
  const Sandbox box;
  box.Put("sales.csv", "n,y\n1,5\n2,6\n");
  const std::string line = Complaint(box, "fit sales.csv --model auto-arima");
  EXPECT_TRUE(line.starts_with("tsxport: sales.csv:2:3: ")) << line;
}

TEST(ArimaHopeless, ShortSeriesIsRefusedByEveryOrder) {
  const Sandbox box;
  box.Put("sales.csv", "n,y\n1,5\n2,6\n3,4\n4,7\n5,5\n");
  for (const char* model :
       {"arima(2,1,2)", "arima(100,5,100)", "arima([1000],0,[1000])", "arima(0,0,0)(1,1,1)"}) {
    for (const char* method : {"ml", "ml-theta", "cls"}) {
      const std::string line = Complaint(
          box, "fit sales.csv --season 12 --model '" + std::string(model) + "' --method " + method);
      EXPECT_TRUE(line.starts_with("tsxport: sales.csv:2:3: the model needs ")) << line;
    }
  }
}

TEST(ArimaHopeless, ConstantSeriesIsRefusedByEveryOrder) {
  const Sandbox box;
  std::string table = "n,y\n";
  for (int i = 1; i <= 60; ++i) table += std::to_string(i) + ",5\n";
  box.Put("sales.csv", table);
  for (const char* model : {"arima(0,0,0)", "arima(1,0,1)", "arima(0,1,1)(0,1,1)"}) {
    for (const char* method : {"ml", "ml-theta", "cls"}) {
      const std::string line = Complaint(
          box, "fit sales.csv --season 12 --model '" + std::string(model) + "' --method " + method);
      EXPECT_NE(line.find("the series is constant"), std::string::npos) << line;
    }
  }
}

TEST(ArimaHopeless, MissingValueUnderAMethodThatKnowsNone) {
  EXPECT_EQ(FitData("presidents", "--model 'arima(1,0,0)' --method cls")
                .err.find("tsxport: presidents.csv:16:9: 1948-Q3 is missing: "),
            0U);
}

TEST(ArimaHopeless, SkippedPeriodUnderAMethodThatKnowsNone) {
  const Sandbox box;
  box.Put("sales.csv",
          "date,y\n2000-01,5\n2000-02,6\n2000-04,4\n2000-05,7\n2000-06,5\n2000-07,6\n");
  EXPECT_EQ(Complaint(box, "fit sales.csv --model 'arima(1,0,0)' --method cls"),
            "tsxport: sales.csv:4:9: 2000-03 is missing: the method cls knows no missing values; "
            "the method ml does (series \"sales\")");
}

TEST(ArimaHopeless, SeriesAmongOthersIsNamedAndTheOthersAreWritten) {
  const Sandbox box;
  std::string table = "id,n,y\na,1,5\na,2,6\n";
  for (int i = 1; i <= 30; ++i) {
    table += "b," + std::to_string(i) + "," + std::to_string(i * i * 7 % 23) + "\n";
  }
  box.Put("sales.csv", table);
  const Outcome outcome = box.Run("fit sales.csv --id id --model 'arima(1,0,0)' -o m.xml");
  EXPECT_EQ(outcome.status, 3);
  EXPECT_TRUE(outcome.err.starts_with("tsxport: sales.csv:2:5: ")) << outcome.err;
  EXPECT_NE(outcome.err.find("(series \"sales/a\")\n"), std::string::npos) << outcome.err;
  EXPECT_EQ(Attributes(Parsed(box.Content("m.xml")), "//ARIMAModel/@modelName"),
            Strings{"sales/b"});
}

TEST(ArimaHopeless, SeasonOfTimesWithoutOne) {
  EXPECT_EQ(FitData("nile", "--model 'arima(0,1,1)(0,1,1)'").err,
            "tsxport: nile.csv:2:6: the second parenthesis of arima(p,d,q)(P,D,Q) needs a season, "
            "and yearly times have none; give its length with --season (series \"nile\")\n");
}

TEST(ArimaBadInput, OptionsEndWithStatusTwoAndWriteNothing) {
  const Sandbox box;
  box.PutData("bjsales.csv");
  for (const char* arguments :
       {"--model 'arima(1,1'", "--model 'arima(x,1,1)'", "--model 'arima(1,1,1)' --predictor none",
        "--model 'arima(1,1,1)' --predictor lead:den=x", "--predictor lead",
        "--model 'arima(1,1,1)' --outlier then", "--model 'arima(1,1,1)' --method best",
        "--model 'arima(1,1,1)' --format pmml", "--model holt --detect-outliers"}) {
    EXPECT_NE(Complaint(box, "fit bjsales.csv -o m.xml " + std::string(arguments)), "");
  }
  EXPECT_EQ(box.Files(), Strings{"bjsales.csv"});
}

TEST(ArimaJobs, OutputIsTheSameWhateverTheirNumber) {
  std::string table = "id,n,y,x\n";
  for (int id = 0; id < 7; ++id) {
    for (int i = 1; i <= 42; ++i) {
      const bool future = i > 40;
      table += "s" + std::to_string(id) + "," + std::to_string(i) + "," +
               (future ? "" : std::to_string(20 + i % 4 + i * i * (id + 3) % 11)) + "," +
               std::to_string(i * i % 5) + "\n";
    }
  }
  table += "short,1,1,1\n";
  const Sandbox box;
  box.Put("sales.csv", table);
  const std::string arguments =
      "fit sales.csv --id id --model 'arima(1,0,1)' --predictor x --outlier additive@7 "
      "--forecast 2 -o m.xml --jobs ";
  const Outcome alone = box.Run(arguments + "1");
  const std::string document = box.Content("m.xml");
  EXPECT_EQ(alone.status, 3);
  for (const char* jobs : {"2", "8"}) {
    const Outcome outcome = box.Run(arguments + jobs);
    EXPECT_EQ(outcome.status, alone.status);
    EXPECT_EQ(outcome.out, alone.out);
    EXPECT_EQ(outcome.err, alone.err);
    EXPECT_EQ(box.Content("m.xml"), document);
  }
}

}  // namespace
