#include "report/Summary.h"

#include <algorithm>
#include <cmath>

#include <tsfcore/ESForecastState.h>
#include <tsfcore/MV.h>

#include "models/arima/ArimaFitting.h"
#include "report/ArimaSummary.h"
#include "text/Text.h"

namespace tsx::cli {
namespace {

constexpr int kDigits = 5;

std::string ValueText(double value) {
  return value == MV::gMissingValue || !std::isfinite(value) ? "undefined"
                                                             : text::NumberText(value, kDigits);
}

std::string PercentText(double value) {
  return value == MV::gMissingValue ? "undefined" : text::NumberText(value, 4) + " %";
}

std::string Line(const std::string& label, const std::string& text) {
  return "  " + label + std::string(12 - label.size(), ' ') + text + "\n";
}

std::string Count(std::size_t count, const char* noun) {
  return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

std::string SeriesText(const Series& series) {
  const DateAxis& axis = *series.axis;
  const auto missing = static_cast<std::size_t>(
      std::count(series.values.begin(), series.values.end(), MV::gMissingValue));
  const std::size_t gaps = axis.CaseCount() - series.cases.size();
  std::string text = series.variable + ", " + axis.name + " from " + axis.CaseText(0) + " to " +
                     axis.CaseText(axis.CaseCount() - 1) + ", " +
                     Count(series.values.size(), "case");
  if (missing > 0) text += ", " + std::to_string(missing) + " missing";
  if (gaps > 0) text += ", " + Count(gaps, "gap");
  return text;
}

std::string ModelText(const FittedSeries& fitted, const ESModelSpec& spec) {
  std::string text = fitted.kind->title;
  if (fitted.kind->seasonal) text += ", season of " + std::to_string(fitted.season_length);
  const int function = spec.GetYTransformSpec().GetFunctionType();
  if (function == TSTransformation::kLogarithm) text += ", of the logarithm";
  if (function == TSTransformation::kSquareRoot) text += ", of the square root";
  return text;
}

std::string StdErrorText(double error, const char* without) {
  return error == MV::gMissingValue ? without : "s.e. " + text::NumberText(error, 2);
}

std::string WeightsText(const TSFModel& model) {
  struct Row {
    TSFESModelProp::TSFESParmType type;
    const char* name;
  };
  constexpr Row kRows[] = {{TSFESModelProp::kLevel, "level"},
                           {TSFESModelProp::kTrend, "trend"},
                           {TSFESModelProp::kSeason, "season"},
                           {TSFESModelProp::kDamping, "damping"}};
  const TSFESModelProp properties = model.GetModelProperties();
  std::vector<std::string> weights;
  for (const Row& row : kRows) {
    const double weight = properties.GetWeight(row.type);
    if (weight == MV::gMissingValue) continue;
    const bool onBound = weight <= 0 || weight >= 1;
    const std::string error =
        StdErrorText(properties.GetStdError(row.type), onBound ? "on its bound" : "s.e. undefined");
    weights.push_back(std::string(row.name) + " " + text::FixedText(weight, 4) + " (" + error +
                      ")");
  }
  return text::Joined(weights, ", ");
}

std::string FitText(const EstimationInfo& info) {
  return "RMSE " + ValueText(info.GetGOFStat(BFSharedConst::kRootMeanSqrErr)) + ", MAPE " +
         PercentText(info.GetGOFStat(BFSharedConst::kMeanAbsPctErr)) + ", MAE " +
         ValueText(info.GetGOFStat(BFSharedConst::kMeanAbsErr)) + ", R-squared " +
         ValueText(info.GetGOFStat(BFSharedConst::kRSqr)) + ", normalised BIC " +
         ValueText(info.GetGOFStat(BFSharedConst::kNormBayesIC));
}

std::string ResidualsText(const EstimationInfo& info) {
  double statistic = 0;
  unsigned long lags = 0;
  unsigned long degreesOfFreedom = 0;
  double pValue = 0;
  info.GetLBStat(statistic, lags, degreesOfFreedom, pValue);
  if (statistic == MV::gMissingValue) return "too few for a Ljung-Box test";
  return "Ljung-Box Q(" + std::to_string(lags) + ") " + ValueText(statistic) + ", " +
         std::to_string(degreesOfFreedom) + " d.f., p " + ValueText(pValue);
}

std::string StateText(const ESForecastState& state) {
  const ESForecastState::SmState& smoothed = state.GetSmState();
  std::string text = "level " + ValueText(smoothed.level);
  if (state.GetESModelSpec().GetParameterIndex(ESModelSpec::kTrend) >= 0 ||
      state.GetESModelSpec().GetKind() == ESModelSpec::kBrown) {
    text += ", trend " + ValueText(smoothed.trend);
  }
  return text;
}

// The seasonal values from that of the next case on, six to a line.
std::string SeasonLines(const ESForecastState::SmState& smoothed) {
  constexpr std::size_t kPerLine = 6;
  constexpr std::size_t kWidth = 11;
  constexpr std::size_t kMost = 24;
  std::string lines;
  std::string row;
  const std::size_t shown = std::min(smoothed.season.size(), kMost);
  for (std::size_t i = 0; i < shown; ++i) {
    const double value = smoothed.season[(smoothed.phase + i) % smoothed.season.size()];
    std::string text = ValueText(value);
    text.resize(std::max(kWidth, text.size() + 1), ' ');
    row += text;
    if (i % kPerLine == kPerLine - 1 || i + 1 == shown) {
      row.erase(row.find_last_not_of(' ') + 1);
      lines += Line(lines.empty() ? "season" : "", row);
      row.clear();
    }
  }
  if (shown < smoothed.season.size()) {
    lines += Line("", "... " + std::to_string(smoothed.season.size()) + " values in all");
  }
  return lines;
}

std::string EstimationLines(const FittedSeries& fitted) {
  const EstimationInfo& info = EstimationOf(fitted);
  return Line("fit", FitText(info)) + Line("residuals", ResidualsText(info));
}

std::string ReasonLine(const FittedSeries& fitted, bool chosen) {
  return chosen ? Line("why", ReasonForChoice(fitted)) : "";
}

std::string SmoothingLines(const FittedSeries& fitted, const ESForecastState& state, bool chosen) {
  std::string lines = Line("model", ModelText(fitted, state.GetESModelSpec()));
  lines += ReasonLine(fitted, chosen);
  lines += Line("weights", WeightsText(fitted.model));
  lines += EstimationLines(fitted);
  lines += Line("state", StateText(state));
  if (fitted.kind->seasonal) lines += SeasonLines(state.GetSmState());
  return lines;
}

// Several texts under one label.
std::string Lines(const std::string& label, const std::vector<std::string>& texts) {
  std::string lines;
  for (const std::string& text : texts) lines += Line(lines.empty() ? label : "", text);
  return lines;
}

std::string LikelihoodText(const EstimationInfo& info) {
  return "log-likelihood " + ValueText(info.GetGOFStat(BFSharedConst::kLogLikelihood)) + ", AIC " +
         ValueText(info.GetGOFStat(BFSharedConst::kAkaikeIC)) + ", BIC " +
         ValueText(info.GetGOFStat(BFSharedConst::kBayesIC)) + ", error variance " +
         ValueText(info.GetErrorVariance());
}

constexpr char kNotConverged[] =
    "the search did not converge: the estimates are the best that were found";

std::string ArimaLines(const FittedSeries& fitted, bool chosen) {
  const Series& series = *fitted.series;
  const ARMAForecastState& state = ArimaStateOf(fitted.model);
  const EstimationInfo& info = EstimationOf(fitted);
  std::string lines = Line("model", TitleOf(fitted) + ", " + ArimaMethodText(state));
  if (!fitted.arima.converged) lines += Line("warning", kNotConverged);
  lines += ReasonLine(fitted, chosen);
  lines += Lines("estimates", CoefficientTexts(state, series));
  lines += Lines("predictors", PredictorTexts(state.GetAMModelSpec(), series));
  std::vector<std::string> outliers = OutlierTexts(state, series, info.GetSpan().start);
  if (fitted.arima.outliers_sought && outliers.empty()) outliers.emplace_back("none found");
  lines += Lines("outliers", outliers);
  return lines + Line("likelihood", LikelihoodText(info)) + EstimationLines(fitted);
}

std::string CrostonWeightsText(const TSFCrModelImp& model) {
  constexpr const char* kNames[] = {"sizes", "intervals", "errors"};
  std::vector<std::string> weights;
  for (int i = 0; i < 3; ++i) {
    const ESForecastState& state = model.GetForecastState(i);
    const bool estimated = state.GetESModelSpec().GetParameterCount(false) > 0;
    weights.push_back(std::string(kNames[i]) + " " +
                      text::FixedText(state.GetParameterEstimates()[0], 4) + " (" +
                      StdErrorText(state.GetParameterStdErrors()[0],
                                   estimated ? "on its bound" : "not estimated") +
                      ")");
  }
  return text::Joined(weights, ", ");
}

// What the levels come to: "a demand of 5.1 every 2.4 periods: 2.1 a period".
std::string CrostonStateText(const FittedSeries& fitted) {
  const TSFCrModelImp& model = *fitted.croston.GetImp();
  const double rate = ForecastsOf(fitted, 1).value[0];
  const double interval = model.GetForecastState(1).GetSmState().level;
  return "a demand of " + ValueText(rate * interval) + " every " + ValueText(interval) +
         " periods: " + ValueText(rate) + " a period; mean absolute error " +
         ValueText(model.GetForecastState(2).GetSmState().level);
}

std::string CrostonLines(const FittedSeries& fitted, bool chosen) {
  const TSFCrModelImp& model = *fitted.croston.GetImp();
  const ZeroCount count = CountZeros(*fitted.series);
  const ESModelSpec& sizes = model.GetForecastState(0).GetESModelSpec();
  std::string lines =
      Line("model", ModelText(fitted, sizes) + ", " + Count(count.cases - count.zeros, "demand"));
  lines += ReasonLine(fitted, chosen);
  lines += Line("weights", CrostonWeightsText(model));
  lines += EstimationLines(fitted);
  return lines + Line("state", CrostonStateText(fitted));
}

}  // namespace

std::string SummaryText(const FittedSeries& fitted, bool chosen) {
  const std::string text =
      fitted.series->model_name + "\n" + Line("series", SeriesText(*fitted.series));
  if (fitted.kind == &CrostonKind()) return text + CrostonLines(fitted, chosen);
  if (fitted.kind == &ArimaKind()) return text + ArimaLines(fitted, chosen);
  const auto* state =
      dynamic_cast<const ESForecastState*>(fitted.model.GetImp()->GetForecastState());
  return state == nullptr ? text : text + SmoothingLines(fitted, *state, chosen);
}

std::string SummaryLine(const FittedSeries& fitted, bool chosen) {
  const bool arima = fitted.kind == &ArimaKind();
  std::string text =
      fitted.series->model_name + ": " + (arima ? TitleOf(fitted) : fitted.kind->option);
  if (chosen) text += " (" + ReasonForChoice(fitted) + ")";
  if (!fitted.arima.converged) text += std::string("; ") + kNotConverged;
  return text + "\n";
}

}  // namespace tsx::cli
