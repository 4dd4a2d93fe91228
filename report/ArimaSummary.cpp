#include "report/ArimaSummary.h"

#include <algorithm>

#include <tsfcore/ARMACLSForecastState.h>
#include <tsfcore/ARMAMLSpForecastState.h>
#include <tsfcore/MV.h>

#include "cli/options/ArimaOptions.h"
#include "text/Text.h"

namespace tsx::cli {
namespace {

constexpr int kDigits = 5;
constexpr char kLeftOut[] = "left out: the data cannot tell it from the others";

// What stands at a position of the parameter vectors; beyond their ends, nothing.
double At(const std::valarray<double>& values, std::size_t position) {
  return position < values.size() ? values[position] : MV::gMissingValue;
}

std::string Padded(const std::string& text, std::size_t width) {
  const std::size_t length = text::CharacterCount(text);
  return text + std::string(std::max(width, length + 1) - length, ' ');
}

struct Coefficient {
  std::string name;
  std::size_t position = 0;
};

// Names the coefficients in the order of the parameter vector.
class CoefficientNames {
 public:
  CoefficientNames(const AMModelSpec& spec, const Series& series) {
    bool constant = false;
    spec.GetMeanYPresent(constant);
    if (constant) Add("constant");
    AMPowers lags;
    AMPowers seasonalLags;
    spec.GetARStruct(lags, seasonalLags);
    AddFactor("AR", lags, seasonalLags);
    spec.GetMAStruct(lags, seasonalLags);
    AddFactor("MA", lags, seasonalLags);
    for (unsigned i = 0; i < spec.GetXCount(); ++i) AddPredictor(spec, i, series.predictors[i]);
  }

  const std::vector<Coefficient>& All() const { return all_; }

 private:
  void Add(const std::string& name) { all_.push_back({name, all_.size()}); }

  void AddLags(const std::string& name, const AMPowers& lags) {
    for (unsigned i = 0; i < lags.GetCount(); ++i) {
      Add(name + " " + std::to_string(lags.GetPower(i)));
    }
  }

  void AddFactor(const std::string& name, const AMPowers& lags, const AMPowers& seasonalLags) {
    AddLags(name, lags);
    AddLags("seasonal " + name, seasonalLags);
  }

  void AddPredictor(const AMModelSpec& spec, unsigned i, const PredictorColumn& predictor) {
    const std::string name = text::Printable(predictor.name);
    AMPowers lags;
    AMPowers seasonalLags;
    spec.GetXNumerator(i, lags, seasonalLags);
    Add(name + " numerator 0");
    AddLags(name + " numerator", lags);
    AddLags(name + " seasonal numerator", seasonalLags);
    spec.GetXDenominator(i, lags, seasonalLags);
    AddLags(name + " denominator", lags);
    AddLags(name + " seasonal denominator", seasonalLags);
  }

  std::vector<Coefficient> all_;
};

std::string EstimateText(const ARMAForecastState& state, std::size_t position) {
  constexpr std::size_t kWidth = 14;
  const double estimate = At(state.GetParameterEstimates(), position);
  const double error = At(state.GetParameterStdErrors(), position);
  if (estimate == MV::gMissingValue) return kLeftOut;
  return Padded(text::NumberText(estimate, kDigits), kWidth) +
         (error == MV::gMissingValue ? "undefined" : text::NumberText(error, kDigits));
}

std::string WithError(const ARMAForecastState& state, std::size_t position) {
  const double estimate = At(state.GetParameterEstimates(), position);
  const double error = At(state.GetParameterStdErrors(), position);
  if (estimate == MV::gMissingValue) return kLeftOut;
  return text::NumberText(estimate, kDigits) + " (s.e. " +
         (error == MV::gMissingValue ? "undefined" : text::NumberText(error, 2)) + ")";
}

std::string Times(unsigned count) {
  return count == 1 ? "once" : count == 2 ? "twice" : std::to_string(count) + " times";
}

std::string PredictorText(const AMModelSpec& spec, unsigned i, const std::string& name) {
  unsigned diff = 0;
  unsigned seasonalDiff = 0;
  unsigned delay = 0;
  spec.GetXDiffNDelay(i, diff, seasonalDiff, delay);
  const int function = spec.GetXTransformSpec(i).GetFunctionType();
  std::string text = text::Printable(name);
  if (function == TSTransformation::kLogarithm) text = "logarithm of " + text;
  if (function == TSTransformation::kSquareRoot) text = "square root of " + text;
  if (delay > 0) text += ", delayed by " + std::to_string(delay);
  if (diff > 0) text += ", differenced " + Times(diff);
  if (seasonalDiff > 0) text += ", seasonally differenced " + Times(seasonalDiff);
  return text;
}

// Whether an outlier changes what follows it.
const char* TimeWord(int type) {
  const bool pulse = type == TSOutlierSpec::kAdditive || type == TSOutlierSpec::kInnovational;
  return pulse ? " at " : " from ";
}

}  // namespace

std::string ArimaMethodText(const ARMAForecastState& state) {
  if (dynamic_cast<const ARMACLSForecastState*>(&state) != nullptr) {
    return "conditional least squares";
  }
  const bool theta = dynamic_cast<const ARMAMLSpForecastState*>(&state) != nullptr;
  return theta ? "exact maximum likelihood by the innovations algorithm"
               : "exact maximum likelihood";
}

std::vector<std::string> CoefficientTexts(const ARMAForecastState& state, const Series& series) {
  const std::vector<Coefficient> all = CoefficientNames(state.GetAMModelSpec(), series).All();
  if (all.empty()) return {};
  std::size_t width = 0;
  for (const Coefficient& one : all) width = std::max(width, text::CharacterCount(one.name) + 2);
  std::vector<std::string> texts = {Padded("", width) + "estimate      s.e."};
  for (const Coefficient& one : all) {
    texts.push_back(Padded(one.name, width) + EstimateText(state, one.position));
  }
  texts.emplace_back("signs of Box and Jenkins: 1 - phi B, 1 - theta B, omega0 - omega1 B");
  return texts;
}

std::vector<std::string> PredictorTexts(const AMModelSpec& spec, const Series& series) {
  std::vector<std::string> texts;
  for (unsigned i = 0; i < spec.GetXCount(); ++i) {
    texts.push_back(PredictorText(spec, i, series.predictors[i].name));
  }
  return texts;
}

std::vector<std::string> OutlierTexts(const ARMAForecastState& state, const Series& series,
                                      std::size_t firstCase) {
  const AMModelSpec& spec = state.GetAMModelSpec();
  const TSOutlierSpecList& outliers = spec.GetOutliers();
  std::vector<std::string> texts;
  for (unsigned j = 0; j < outliers.GetOutlierSpecCount(false); ++j) {
    const TSOutlierSpec& outlier = outliers.GetOutlierSpec(j);
    const unsigned position = spec.GetOutlierParmIndex() + outliers.ParameterVectorIndex(j, 0);
    const std::size_t at = firstCase + static_cast<std::size_t>(outlier.GetStartIndex());
    std::string text = OutlierTypeName(outlier.GetType()) + TimeWord(outlier.GetType()) +
                       series.axis->CaseText(series.cases[at]) + ": " + WithError(state, position);
    if (outlier.GetParameterCount() > 1) text += ", decay " + WithError(state, position + 1);
    texts.push_back(text);
  }
  return texts;
}

}  // namespace tsx::cli
