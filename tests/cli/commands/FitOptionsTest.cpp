#include <gtest/gtest.h>

#include <tsfcore/ESModelSpec.h>

#include "CommandRun.h"
#include "cli/commands/FitOptions.h"
#include "cli/options/ArimaTexts.h"
#include "cli/options/Parser.h"
#include "models/Croston.h"
#include "models/arima/Arima.h"
#include "support/Tables.h"

namespace tsx::cli {
namespace {

using test::ErrorOf;
using test::PageOf;
using test::UsageErrorOf;
using Arguments = std::vector<std::string>;

// What a command line that begins with "fit" asks for.
FitOptions FitOf(const Arguments& arguments) {
  FitArguments typed;
  Parse({"tsxport", {}}, {{"fit", BoundOptions(typed)}}, arguments);
  return MeaningOf(typed);
}
// The options of "tsxport fit a.csv ...".
FitOptions Fit(Arguments arguments) {
  arguments.insert(arguments.begin(), {"fit", "a.csv"});
  return FitOf(arguments);
}
std::string FitError(const Arguments& arguments) {
  return ErrorOf([&] { Fit(arguments); });
}

TEST(Options, DefaultsChooseAKindAndWriteNothing) {
  const FitOptions options = Fit({});
  EXPECT_EQ(options.input, "a.csv");
  EXPECT_EQ(options.model.kind, nullptr);
  EXPECT_EQ(options.model.season_length, 0U);
  EXPECT_EQ(options.model.function_type, TSTransformation::kNone);
  EXPECT_EQ(options.forecast, 0U);
  EXPECT_GE(options.jobs, 1U);
  EXPECT_EQ(options.output, "");
  EXPECT_EQ(options.plot, "");
  EXPECT_EQ(options.dialect, FindDialect("tscxml"));
  EXPECT_FALSE(options.gaps);
  EXPECT_FALSE(options.first_case_day);
}

TEST(Options, EveryOptionIsTaken) {
  const FitOptions options = Fit({"--model",      "holt",
                                  "--season",     "7",
                                  "--transform",  "sqrt",
                                  "--variable",   "x",
                                  "--variable",   "y",
                                  "--id",         "shop",
                                  "--time",       "when",
                                  "--name",       "n",
                                  "--descriptor", "d",
                                  "--jobs",       "3",
                                  "--forecast",   "24",
                                  "--plot",       "p.svg",
                                  "--gaps",       "--first-case-day",
                                  "-o",           "m.xml"});
  EXPECT_EQ(options.model.kind->kind, ESModelSpec::kHolt);
  EXPECT_EQ(options.model.season_length, 7U);
  EXPECT_EQ(options.model.function_type, TSTransformation::kSquareRoot);
  EXPECT_EQ(options.columns.variables, (Arguments{"x", "y"}));
  EXPECT_EQ(options.columns.id, "shop");
  EXPECT_EQ(options.columns.time, "when");
  EXPECT_EQ(options.name, "n");
  EXPECT_EQ(options.descriptor, "d");
  EXPECT_EQ(options.jobs, 3U);
  EXPECT_EQ(options.forecast, 24U);
  EXPECT_EQ(options.plot, "p.svg");
  EXPECT_TRUE(options.gaps);
  EXPECT_TRUE(options.first_case_day);
  EXPECT_EQ(options.output, "m.xml");
}

TEST(Options, EveryKindHasItsName) {
  const std::pair<const char*, int> kinds[] = {
      {"simple", ESModelSpec::kSimple},
      {"simple-seasonal", ESModelSpec::kSimpleSeasonal},
      {"brown", ESModelSpec::kBrown},
      {"holt", ESModelSpec::kHolt},
      {"damped-trend", ESModelSpec::kDampedTrend},
      {"winters-additive", ESModelSpec::kAdditiveWinters},
      {"winters-multiplicative", ESModelSpec::kMultiplicativeWinters}};
  for (const auto& [name, kind] : kinds) EXPECT_EQ(Fit({"--model", name}).model.kind->kind, kind);
}

TEST(Options, CrostonIsAKindToo) {
  EXPECT_EQ(Fit({"--model", "croston"}).model.kind, &models::CrostonKind());
}

TEST(Options, ArimaWithAllItsOptions) {
  const FitOptions options =
      Fit({"--model", "arima([1,3],1,0)(0,1,1)", "--method", "cls", "--predictor", "lead:delay=3",
           "--predictor", "law", "--outlier", "level@1957-03", "--outlier", "additive@12",
           "--detect-outliers", "--constant", "--forecast", "3"});
  const models::ArimaRequest& arima = options.model.arima;
  EXPECT_EQ(options.model.kind, &models::ArimaKind());
  EXPECT_FALSE(LeavesChoice(options.model));
  EXPECT_EQ(arima.orders.ar.non_seasonal, (models::Lags{1, 3}));
  EXPECT_EQ(arima.method, tsffit::ArimaMethod::kCls);
  ASSERT_EQ(arima.predictors.size(), 2U);
  EXPECT_EQ(arima.predictors[0].delay, 3U);
  EXPECT_EQ(options.columns.predictors, (Arguments{"lead", "law"}));
  ASSERT_EQ(arima.outliers.size(), 2U);
  EXPECT_EQ(arima.outliers[1].type, TSOutlierSpec::kAdditive);
  EXPECT_TRUE(arima.detect_outliers);
  EXPECT_EQ(arima.constant, true);
  EXPECT_EQ(options.model.horizon, 3U);
}

TEST(Options, ArimaDefaults) {
  const FitOptions options = Fit({"--model", "arima(0,1,1)"});
  EXPECT_EQ(options.model.arima.method, tsffit::ArimaMethod::kMl);
  EXPECT_EQ(options.model.arima.constant, std::nullopt);
  EXPECT_FALSE(options.model.arima.detect_outliers);
  EXPECT_EQ(Fit({"--model", "arima(0,1,1)", "--no-constant"}).model.arima.constant, false);
}

TEST(Options, AutoArimaLeavesTheOrdersOpen) {
  const FitOptions options = Fit({"--model", "auto-arima", "--predictor", "x"});
  EXPECT_EQ(options.model.kind, &models::ArimaKind());
  EXPECT_TRUE(options.model.arima.automatic);
  EXPECT_TRUE(LeavesChoice(options.model));
}

TEST(Options, PredictorDoesNotSwallowTheFile) {
  const FitOptions options = FitOf({"fit", "--model", "arima(0,1,1)", "--predictor", "x", "a.csv"});
  EXPECT_EQ(options.input, "a.csv");
}

TEST(Options, PmmlHasNoPlaceForArima) {
  for (const char* model : {"arima(0,1,1)", "auto-arima"}) {
    EXPECT_EQ(FitError({"--format", "pmml", "--model", model}),
              "--model: --format pmml has no place for ARIMA, of which PMML 4.2 knows no more than "
              "the name; use --format tscxml");
  }
}

TEST(Options, FormatIsTscxmlOrPmml) {
  EXPECT_EQ(Fit({"--format", "tscxml"}).dialect, FindDialect("tscxml"));
  EXPECT_EQ(Fit({"--format", "pmml"}).dialect, FindDialect("pmml"));
  EXPECT_EQ(FitError({"--format", "xml"}), "--format: 'xml' is none of tscxml, pmml");
}

TEST(Options, PmmlHasNoPlaceForCrostonOrATransformation) {
  EXPECT_EQ(FitError({"--format", "pmml", "--model", "croston"}),
            "--model croston: --format pmml has no place for it, so its readers would forecast "
            "wrongly; use --format tscxml");
  for (const char* function : {"log", "sqrt"}) {
    EXPECT_EQ(FitError({"--transform", function, "--format", "pmml"}),
              "--transform: --format pmml has no place for it, so its readers would forecast "
              "wrongly; use --format tscxml");
  }
  EXPECT_EQ(Fit({"--transform", "none", "--format", "pmml"}).dialect, FindDialect("pmml"));
}

TEST(Options, VariableDoesNotSwallowTheFile) {
  const FitOptions options = FitOf({"fit", "--variable", "x", "a.csv"});
  EXPECT_EQ(options.input, "a.csv");
  EXPECT_EQ(options.columns.variables, Arguments{"x"});
}

TEST(Options, NumbersAreDecimal) { EXPECT_EQ(Fit({"--season", "012"}).model.season_length, 12U); }

TEST(OptionsError, CountsAreWholeNumbersWithinBounds) {
  for (const char* bad : {"0", "-1", "1.5", "x", "99999999999", "1000000000"}) {
    for (const auto& [option, most] :
         {std::pair("--season", "1000000"), std::pair("--jobs", "1024"),
          std::pair("--forecast", "10000")}) {
      EXPECT_EQ(FitError({std::string(option) + "=" + bad}),
                std::string(option) + ": '" + bad + "' is not a whole number from 1 to " + most);
    }
  }
}

TEST(OptionsError, EmptyValuesAreNoValues) {
  for (const char* option : {"--variable", "--id", "--time", "--model", "--season", "--transform",
                             "--format", "--name", "--forecast", "--plot", "--jobs"}) {
    EXPECT_EQ(FitError({option, ""}), std::string(option) + ": the value is empty");
  }
  EXPECT_EQ(FitError({"-o", ""}), "--output: the value is empty");
  EXPECT_EQ(UsageErrorOf({"fit", ""}), "SERIES.csv: the value is empty");
}

TEST(Options, DescriptorMayBeEmpty) { EXPECT_EQ(Fit({"--descriptor", ""}).descriptor, ""); }
TEST(OptionsError, UnknownValues) {
  EXPECT_EQ(FitError({"--model", "arima"}),
            "--model: 'arima' is none of auto, simple, brown, holt, damped-trend, simple-seasonal, "
            "winters-additive, winters-multiplicative, croston, arima(p,d,q), "
            "arima(p,d,q)(P,D,Q), auto-arima");
  EXPECT_EQ(FitError({"--transform", "cube"}), "--transform: 'cube' is none of none, log, sqrt");
}

TEST(OptionsError, UnknownOptionsAreNamed) {
  EXPECT_NE(FitError({"--modell", "simple"}).find("--modell"), std::string::npos);
  EXPECT_NE(FitError({"more.csv"}).find("more.csv"), std::string::npos);
}

TEST(OptionsError, EveryErrorIsOneLine) {
  for (const Arguments& arguments :
       {Arguments{}, Arguments{"--bad"}, Arguments{"fit"}, Arguments{"fit", "a", "--season"},
        Arguments{"guess"}, Arguments{"fit", "a", "--name", "x", "--name", "y"},
        Arguments{"fit", "a", "--model", "x\ny"}, Arguments{"fit", "a\n", "--no\nsuch"}}) {
    const std::string error = UsageErrorOf(arguments);
    EXPECT_NE(error, "no error");
    EXPECT_EQ(error.find('\n'), std::string::npos) << error;
  }
}

TEST(OptionsError, UnknownCommandIsNamed) {
  EXPECT_EQ(UsageErrorOf({"guess", "a.csv"}), "there is no command 'guess'; see tsxport --help");
}

TEST(OptionsError, ControlCharactersInNames) {
  EXPECT_EQ(FitError({"--name", "a\tb"}), "--name: 'a?b' holds control characters or is not UTF-8");
  EXPECT_EQ(FitError({"--descriptor", "caf\xE9"}),
            "--descriptor: 'caf?' holds control characters or is not UTF-8");
}

TEST(OptionsError, TwoThingsOnStandardOutput) {
  EXPECT_EQ(FitError({"-o", "-", "--forecast", "3"}),
            "-o - and --forecast would both print on standard output");
}

TEST(OptionsError, SeasonalModelWithoutASeason) {
  EXPECT_EQ(FitError({"--model", "winters-additive", "--season", "1"}),
            "--season 1 means no season, which winters-additive needs");
}

TEST(OptionsError, OptionsOfArimaWithAnotherModel) {
  const std::pair<const char*, Arguments> options[] = {
      {"--constant", {"--constant"}},          {"--no-constant", {"--no-constant"}},
      {"--method", {"--method", "ml"}},        {"--predictor", {"--predictor", "x"}},
      {"--outlier", {"--outlier", "level@3"}}, {"--detect-outliers", {"--detect-outliers"}}};
  for (const auto& [name, arguments] : options) {
    EXPECT_EQ(FitError(arguments),
              std::string(name) +
                  " goes with --model arima(p,d,q) or auto-arima, not with --model 'auto'");
  }
}

TEST(OptionsError, ConstantAndNone) {
  EXPECT_EQ(FitError({"--model", "auto-arima", "--constant", "--no-constant"}),
            "--constant and --no-constant exclude each other");
}

TEST(OptionsError, SeasonalPartOfArimaWithoutASeason) {
  EXPECT_EQ(FitError({"--model", "arima(0,1,1)(0,1,1)", "--season", "1"}),
            "--season 1 means no season, which the second parenthesis of arima(p,d,q)(P,D,Q) "
            "needs");
  EXPECT_EQ(Fit({"--model", "arima(0,1,1)", "--season", "1"}).model.season_length, 1U);
}

TEST(HelpPages, FitsTheTerminalAndNamesEveryOption) {
  const std::string page = PageOf({"fit", "--help"});
  for (const char* option : {"SERIES.csv",       "--model",          "--season",
                             "--transform",      "--variable",       "--id",
                             "--time",           "--name",           "--descriptor",
                             "--jobs",           "--forecast",       "--plot",
                             "--gaps",           "--first-case-day", "-o",
                             "Exit status",      "Examples",         "arima(p,d,q)(P,D,Q)",
                             "auto-arima",       "--constant",       "--no-constant",
                             "--method",         "--predictor",      "--outlier",
                             "--detect-outliers"}) {
    EXPECT_NE(page.find(option), std::string::npos) << option;
  }
  std::size_t longest = 0;
  for (std::size_t at = 0; at < page.size();) {
    const std::size_t end = page.find('\n', at);
    longest = std::max(longest, end - at);
    at = end + 1;
  }
  EXPECT_LE(longest, 80U);
}

TEST(HelpPages, NamesTheValuesOfEveryChoice) {
  const std::string page = PageOf({"fit", "--help"});
  for (
      const char* value :
      {" simple,",   " brown,",       " holt,",     " damped-trend,",   " simple-seasonal,",
       " croston,",  "(none,",        "(log)",      "(sqrt)",           " ml ",
       " ml-theta,", " cls,",         " delay=N,",  " num=N,",          " den=N,",
       " diff=N,",   " snum=N,",      " sden=N,",   " sdiff=N,",        " transform=log",
       " additive,", " level,",       " transient", " trend,",          " seasonal-additive,",
       " tscxml ",   " innovational", " pmml,",     "winters-additive", "winters-multiplicative"}) {
    EXPECT_NE(page.find(value), std::string::npos) << value;
  }
}

// The page of "tsxport fit" without its line ends.
std::string HelpWords() {
  std::string words;
  for (const char c : PageOf({"fit", "--help"})) {
    if (c == '\n') {
      words += ' ';
    } else if (c != ' ' || words.back() != ' ') {
      words += c;
    }
  }
  return words;
}

TEST(HelpPages, TellsTheBoundsOfOrdersDifferencesAndLags) {
  EXPECT_NE(HelpWords().find("Orders go up to " + std::to_string(kHighestOrder) +
                             ", differences up to " + std::to_string(kMostDifferences) +
                             ", lags and delays up to " + std::to_string(kLongestLag) + "."),
            std::string::npos);
}

TEST(HelpPages, FirstCaseDayTellsThatReadersRejectTheDocument) {
  EXPECT_NE(HelpWords().find("two attributes named month"), std::string::npos);
  EXPECT_NE(HelpWords().find("reject"), std::string::npos);
}

TEST(HelpPages, MainPageNamesTheCommand) {
  EXPECT_NE(PageOf({"--help"}).find("fit "), std::string::npos);
}

TEST(HelpPages, VersionNamesLibraryAndCore) {
  const std::string page = PageOf({"--version"});
  EXPECT_NE(page.find("libtsxport"), std::string::npos);
  EXPECT_NE(page.find("libtsfcore"), std::string::npos);
}

}  // namespace
}  // namespace tsx::cli
