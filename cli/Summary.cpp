#include "cli/Summary.h"

#include <algorithm>
#include <cmath>

#include <tsfcore/ESForecastState.h>
#include <tsfcore/MV.h>

#include "cli/Text.h"

namespace tsx::cli {
namespace {

constexpr int kDigits = 5;

std::string ValueText(double value) {
  return value == MV::gMissingValue || !std::isfinite(value) ? "undefined"
                                                             : NumberText(value, kDigits);
}

std::string PercentText(double value) {
  return value == MV::gMissingValue ? "undefined" : NumberText(value, 4) + " %";
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
    const double error = properties.GetStdError(row.type);
    const bool onBound = weight <= 0 || weight >= 1;
    const std::string errorText = error != MV::gMissingValue ? "s.e. " + NumberText(error, 2)
                                  : onBound                  ? "on its bound"
                                                             : "s.e. undefined";
    weights.push_back(std::string(row.name) + " " + FixedText(weight, 4) + " (" + errorText + ")");
  }
  return Joined(weights, ", ");
}

std::string FitText(const TSFModel& model) {
  return "RMSE " + ValueText(model.GetGOFStat("RMSE")) + ", MAPE " +
         PercentText(model.GetGOFStat("MAPE")) + ", MAE " + ValueText(model.GetGOFStat("MAE")) +
         ", R-squared " + ValueText(model.GetGOFStat("RSQ")) + ", normalised BIC " +
         ValueText(model.GetGOFStat("NRMBIC"));
}

std::string ResidualsText(const TSFModel& model) {
  double statistic = 0;
  unsigned long lags = 0;
  unsigned long degreesOfFreedom = 0;
  double pValue = 0;
  model.GetLBStat(statistic, lags, degreesOfFreedom, pValue);
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

}  // namespace

std::string SummaryText(const FittedSeries& fitted, bool chosen) {
  const auto* state =
      dynamic_cast<const ESForecastState*>(fitted.model.GetImp()->GetForecastState());
  std::string text = fitted.series->model_name + "\n";
  text += Line("series", SeriesText(*fitted.series));
  if (state == nullptr) return text;
  text += Line("model", ModelText(fitted, state->GetESModelSpec()));
  if (chosen) text += Line("why", ReasonForChoice(fitted));
  text += Line("weights", WeightsText(fitted.model));
  text += Line("fit", FitText(fitted.model));
  text += Line("residuals", ResidualsText(fitted.model));
  text += Line("state", StateText(*state));
  if (fitted.kind->seasonal) text += SeasonLines(state->GetSmState());
  return text;
}

std::string SummaryLine(const FittedSeries& fitted, bool chosen) {
  std::string text = fitted.series->model_name + ": " + fitted.kind->option;
  if (chosen) text += " (" + ReasonForChoice(fitted) + ")";
  return text + "\n";
}

}  // namespace tsx::cli
