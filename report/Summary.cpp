#include "report/Summary.h"

#include <algorithm>

#include <tsfcore/MV.h>

#include "models/Transformation.h"
#include "report/ChoiceText.h"
#include "report/EstimateText.h"
#include "report/FigureText.h"
#include "text/Words.h"

namespace tsx::report {
namespace {

using models::Description;

std::string Line(const std::string& label, const std::string& text) {
  constexpr std::size_t kWidth = 12;
  return "  " + label + std::string(kWidth - label.size(), ' ') + text + "\n";
}

// Several texts under one label.
std::string Lines(const std::string& label, const std::vector<std::string>& texts) {
  std::string lines;
  for (const std::string& text : texts) lines += Line(lines.empty() ? label : "", text);
  return lines;
}

std::string SeriesText(const models::Series& series) {
  const tsxtimes::DateAxis& axis = *series.axis;
  const auto missing = static_cast<std::size_t>(
      std::count(series.values.begin(), series.values.end(), MV::gMissingValue));
  const std::size_t gaps = axis.CaseCount() - series.cases.size();
  std::string text = series.variable + ", " + axis.name + " from " + axis.CaseText(0) + " to " +
                     axis.CaseText(axis.CaseCount() - 1) + ", " +
                     text::Counted(series.values.size(), "case");
  if (missing > 0) text += ", " + std::to_string(missing) + " missing";
  if (gaps > 0) text += ", " + text::Counted(gaps, "gap");
  return text;
}

std::string ModelText(const Description& rows) {
  std::string text = rows.title;
  if (rows.season_length > 0) text += ", season of " + std::to_string(rows.season_length);
  if (rows.function_type != TSTransformation::kNone) {
    text += std::string(", of the ") + models::WordsOf(rows.function_type).name;
  }
  if (!rows.method.empty()) text += ", " + rows.method;
  if (!rows.basis.empty()) text += ", " + rows.basis;
  return text;
}

std::string EstimateLines(const Description& rows) {
  if (rows.estimates_are == models::Estimates::kWeights) {
    return Line("weights", WeightsText(rows.estimates));
  }
  return Lines("estimates", CoefficientTexts(rows.estimates, rows.convention));
}

std::string EffectLines(const Description& rows) {
  std::vector<std::string> predictors;
  for (const models::Input& input : rows.predictors) predictors.push_back(InputText(input));
  std::vector<std::string> outliers;
  for (const models::Event& event : rows.outliers) outliers.push_back(EventText(event));
  if (rows.outliers_sought && outliers.empty()) outliers.emplace_back("none found");
  return Lines("predictors", predictors) + Lines("outliers", outliers);
}

// Six to a line.
std::string SeasonLines(const std::vector<double>& season) {
  constexpr std::size_t kPerLine = 6;
  constexpr std::size_t kWidth = 11;
  constexpr std::size_t kMost = 24;
  std::vector<std::string> texts;
  const std::size_t shown = std::min(season.size(), kMost);
  for (std::size_t i = 0; i < shown; ++i) {
    if (i % kPerLine == 0) texts.emplace_back();
    std::string text = ValueText(season[i]);
    text.resize(std::max(kWidth, text.size() + 1), ' ');
    texts.back() += text;
  }
  for (std::string& text : texts) text.erase(text.find_last_not_of(' ') + 1);
  if (shown < season.size()) {
    texts.push_back("... " + std::to_string(season.size()) + " values in all");
  }
  return Lines("season", texts);
}

}  // namespace

std::string SummaryText(const models::SeriesFit& fit) {
  const Description rows = fit.model->Describe();
  const std::string why = ChoiceText(fit.choice);
  std::string text = fit.series->model_name + "\n" + Line("series", SeriesText(*fit.series)) +
                     Line("model", ModelText(rows)) + Lines("warning", rows.warnings);
  if (!why.empty()) text += Line("why", why);
  text += EstimateLines(rows) + EffectLines(rows);
  for (const models::Figures& figures : rows.figures) {
    text += Line(figures.label, FiguresText(figures));
  }
  return text + SeasonLines(rows.season);
}

std::string SummaryLine(const models::SeriesFit& fit) {
  const Description rows = fit.model->Describe();
  const std::string why = ChoiceText(fit.choice);
  std::string text = fit.series->model_name + ": " + rows.name;
  if (!why.empty()) text += " (" + why + ")";
  for (const std::string& warning : rows.warnings) text += "; " + warning;
  return text + "\n";
}

}  // namespace tsx::report
