#include <gtest/gtest.h>

#include <tsfcore/ARMACLSForecastState.h>
#include <tsfcore/ARMAMLForecastState.h>
#include <tsfcore/ARMAMLSpForecastState.h>
#include <tsfcore/MV.h>
#include <tsffit/Arima.h>

#include "cli/table/SeriesReader.h"
#include "models/arima/ArimaModel.h"
#include "models/arima/ArimaRows.h"
#include "report/EstimateText.h"
#include "report/Summary.h"
#include "support/Tables.h"

namespace tsx::report {
namespace {

using test::Table;
using Strings = std::vector<std::string>;

constexpr char kTable[] =
    "date,y,x\n2000-01,5,1\n2000-02,6,2\n2000-03,4,3\n2000-04,7,4\n2000-05,5,5\n";

models::Series TestSeries() {
  cli::SeriesOptions options;
  options.columns.predictors = {"x"};
  return cli::ReadSeries(Table(kTable), options).front().series;
}

ARMAMLForecastState StateOf(const AMModelSpec::Fields& spec, std::valarray<double> estimates,
                            std::valarray<double> errors) {
  return ARMAMLForecastState({.common = {.spec = AMModelSpec(spec),
                                         .estimates = std::move(estimates),
                                         .std_errors = std::move(errors)}});
}

Strings CoefficientTexts(const ARMAForecastState& state, const models::Series& series) {
  return report::CoefficientTexts(
      models::CoefficientRows(state, series),
      "signs of Box and Jenkins: 1 - phi B, 1 - theta B, omega0 - omega1 B");
}

Strings PredictorTexts(const AMModelSpec& spec, const models::Series& series) {
  Strings texts;
  for (const models::Input& row : models::PredictorRows(spec, series)) {
    texts.push_back(InputText(row));
  }
  return texts;
}

Strings OutlierTexts(const ARMAForecastState& state, const models::Series& series,
                     std::size_t firstCase) {
  Strings texts;
  for (const models::Event& row : models::OutlierRows(state, series, firstCase)) {
    texts.push_back(EventText(row));
  }
  return texts;
}

TEST(ArimaSummary, CoefficientsAreNamedByTheirLags) {
  AMModelSpec::Fields spec;
  spec.season_length = 12;
  spec.has_constant = true;
  spec.ar = {.non_seasonal = {1, 3}, .seasonal = {12}};
  spec.ma = {.non_seasonal = {1}, .seasonal = {}};
  spec.predictors = {{.numerator = {.non_seasonal = {1}, .seasonal = {}},
                      .denominator = {.non_seasonal = {2}, .seasonal = {12}}}};
  const auto state = StateOf(spec, {0.5, 0.25, -0.125, 0.3, 0.6, 4.5, -1.5, 0.1, 0.2},
                             {0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9});
  EXPECT_EQ(CoefficientTexts(state, TestSeries()),
            (Strings{"                           estimate      s.e.",
                     "constant                   0.5           0.1",
                     "AR 1                       0.25          0.2",
                     "AR 3                       -0.125        0.3",
                     "seasonal AR 12             0.3           0.4",
                     "MA 1                       0.6           0.5",
                     "x numerator 0              4.5           0.6",
                     "x numerator 1              -1.5          0.7",
                     "x denominator 2            0.1           0.8",
                     "x seasonal denominator 12  0.2           0.9",
                     "signs of Box and Jenkins: 1 - phi B, 1 - theta B, omega0 - omega1 B"}));
}

TEST(ArimaSummary, UndefinedErrorsAndLeftOutCoefficientsAreTold) {
  AMModelSpec::Fields spec;
  spec.has_constant = true;
  spec.ma.non_seasonal = {1};
  const auto state = StateOf(spec, {MV::gMissingValue, 1}, {MV::gMissingValue, MV::gMissingValue});
  const Strings texts = CoefficientTexts(state, TestSeries());
  ASSERT_EQ(texts.size(), 4U);
  EXPECT_EQ(texts[1], "constant  left out: the data cannot tell it from the others");
  EXPECT_EQ(texts[2], "MA 1      1             undefined");
}

TEST(ArimaSummary, ErrorsMayBeFewerThanEstimates) {
  AMModelSpec::Fields spec;
  spec.ma.non_seasonal = {1};
  EXPECT_EQ(CoefficientTexts(StateOf(spec, {0.5}, {}), TestSeries())[1],
            "MA 1  0.5           undefined");
}

TEST(ArimaSummary, ModelWithoutCoefficientsHasNoTable) {
  EXPECT_EQ(CoefficientTexts(StateOf({.non_seasonal_diff = 1}, {}, {}), TestSeries()), Strings{});
}

TEST(ArimaSummary, PredictorsTellHowTheyEnter) {
  AMModelSpec::Fields spec;
  spec.predictors = {{}};
  EXPECT_EQ(PredictorTexts(AMModelSpec(spec), TestSeries()), Strings{"x"});
  spec.predictors = {{.transform = TSTransformation(TSTransformation::kLogarithm),
                      .non_seasonal_diff = 1,
                      .seasonal_diff = 3,
                      .delay = 2}};
  EXPECT_EQ(PredictorTexts(AMModelSpec(spec), TestSeries()),
            Strings{"logarithm of x, delayed by 2, differenced once, seasonally differenced "
                    "3 times"});
}

TEST(ArimaSummary, OutliersTellTypeTimeAndSize) {
  AMModelSpec::Fields spec;
  spec.ma.non_seasonal = {1};
  spec.outliers = TSOutlierSpecList(
      {{TSOutlierSpec::kLevel, 1}, {TSOutlierSpec::kTransient, 2}, {TSOutlierSpec::kAdditive, 3}});
  const auto state =
      StateOf(spec, {0.5, -2.5, 3, 0.7, 1}, {0.1, 0.25, 0.5, 0.05, MV::gMissingValue});
  EXPECT_EQ(OutlierTexts(state, TestSeries(), 0),
            (Strings{"level from 2000-02: -2.5 (s.e. 0.25)",
                     "transient from 2000-03: 3 (s.e. 0.5), decay 0.7 (s.e. 0.05)",
                     "additive at 2000-04: 1 (s.e. undefined)"}));
}

TEST(ArimaSummary, OutliersCountFromTheFirstCaseOfTheFit) {
  AMModelSpec::Fields spec;
  spec.outliers = TSOutlierSpecList({{TSOutlierSpec::kInnovational, 1}});
  EXPECT_EQ(OutlierTexts(StateOf(spec, {2}, {1}), TestSeries(), 2),
            Strings{"innovational at 2000-04: 2 (s.e. 1)"});
}

TEST(ArimaSummary, MethodIsToldByTheState) {
  EXPECT_EQ(models::ArimaMethodName(ARMAMLForecastState()), "exact maximum likelihood");
  EXPECT_EQ(models::ArimaMethodName(ARMAMLSpForecastState()),
            "exact maximum likelihood by the innovations algorithm");
  EXPECT_EQ(models::ArimaMethodName(ARMACLSForecastState()), "conditional least squares");
}

// The fit of a line of numbers, as if its search had ended so.
std::pair<std::string, std::string> SummaryOf(bool converged) {
  std::string text = "n,y\n";
  for (int i = 1; i <= 20; ++i) text += std::to_string(i) + "," + std::to_string(i * i % 7) + "\n";
  const cli::TableSeries read = cli::ReadSeries(Table(text), {}).front();
  tsffit::ArimaOptions options;
  options.spec.has_constant = true;
  options.spec.ar.non_seasonal = {1};
  const tsffit::ArimaFit arima = tsffit::FitArima(read.series.values, {}, options);
  EXPECT_EQ(arima.message, "");
  models::SeriesFit fit;
  fit.series = &read.series;
  fit.model = std::make_unique<models::ArimaModel>(read.series, arima.model, converged, false);
  return {SummaryText(fit), SummaryLine(fit)};
}

TEST(ArimaSummary, FitThatDidNotConvergeIsToldInBothForms) {
  const auto [text, line] = SummaryOf(false);
  EXPECT_NE(
      text.find("\n  warning     the search did not converge: the estimates are the best that "
                "were found\n"),
      std::string::npos)
      << text;
  EXPECT_EQ(line,
            "table: ARIMA(1,0,0) with a constant; the search did not converge: the estimates are "
            "the best that were found\n");
}

TEST(ArimaSummary, FitThatConvergedIsNoMatterForWarning) {
  const auto [text, line] = SummaryOf(true);
  EXPECT_EQ(text.find("converge"), std::string::npos);
  EXPECT_EQ(line, "table: ARIMA(1,0,0) with a constant\n");
}

}  // namespace
}  // namespace tsx::report
