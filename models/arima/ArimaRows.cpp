#include "models/arima/ArimaRows.h"

#include <utility>

#include <tsfcore/ARMACLSForecastState.h>
#include <tsfcore/ARMAMLSpForecastState.h>

#include "models/arima/OutlierTypes.h"

namespace tsx::models {
namespace {

// What stands at a position of the parameter vectors; beyond their ends, nothing.
double At(const std::valarray<double>& values, std::size_t position) {
  return position < values.size() ? values[position] : MV::gMissingValue;
}

Estimate EstimateAt(const ARMAForecastState& state, std::size_t position, std::string name) {
  return {std::move(name), At(state.GetParameterEstimates(), position),
          At(state.GetParameterStdErrors(), position)};
}

// Makes the rows of the coefficients in the order of the parameter vector.
class CoefficientTable {
 public:
  CoefficientTable(const ARMAForecastState& state, const Series& series) : state_(state) {
    const AMModelSpec& spec = state.GetAMModelSpec();
    bool constant = false;
    spec.GetMeanYPresent(constant);
    if (constant) Add("constant");
    AMPowers lags;
    AMPowers seasonalLags;
    spec.GetARStruct(lags, seasonalLags);
    AddFactor("AR", lags, seasonalLags);
    spec.GetMAStruct(lags, seasonalLags);
    AddFactor("MA", lags, seasonalLags);
    for (unsigned i = 0; i < spec.GetXCount(); ++i) AddPredictor(i, series.predictors[i].name);
  }

  std::vector<Estimate> Rows() && { return std::move(rows_); }

 private:
  void Add(std::string name) { rows_.push_back(EstimateAt(state_, rows_.size(), std::move(name))); }

  void AddLags(const std::string& name, const AMPowers& lags) {
    for (unsigned i = 0; i < lags.GetCount(); ++i) {
      Add(name + " " + std::to_string(lags.GetPower(i)));
    }
  }

  void AddFactor(const std::string& name, const AMPowers& lags, const AMPowers& seasonalLags) {
    AddLags(name, lags);
    AddLags("seasonal " + name, seasonalLags);
  }

  void AddPredictor(unsigned i, const std::string& name) {
    const AMModelSpec& spec = state_.GetAMModelSpec();
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

  const ARMAForecastState& state_;
  std::vector<Estimate> rows_;
};

Input PredictorRow(const AMModelSpec& spec, unsigned i, const std::string& name) {
  Input row = {.name = name, .function_type = spec.GetXTransformSpec(i).GetFunctionType()};
  spec.GetXDiffNDelay(i, row.diff, row.seasonal_diff, row.delay);
  return row;
}

// `position` is that of the outlier's first parameter.
Event OutlierRow(const ARMAForecastState& state, const TSOutlierSpec& outlier, std::size_t position,
                 std::string time) {
  const OutlierType* const type = FindOutlierType(outlier.GetType());
  Event row = {.time = std::move(time)};
  row.type = type != nullptr ? type->name : "";
  row.lasts = type == nullptr || type->lasts;
  row.estimates.push_back(EstimateAt(state, position, "size"));
  if (outlier.GetParameterCount() > 1) {
    row.estimates.push_back(EstimateAt(state, position + 1, "decay"));
  }
  return row;
}

}  // namespace

std::string ArimaMethodName(const ARMAForecastState& state) {
  if (dynamic_cast<const ARMACLSForecastState*>(&state) != nullptr) {
    return "conditional least squares";
  }
  const bool theta = dynamic_cast<const ARMAMLSpForecastState*>(&state) != nullptr;
  return theta ? "exact maximum likelihood by the innovations algorithm"
               : "exact maximum likelihood";
}

std::vector<Estimate> CoefficientRows(const ARMAForecastState& state, const Series& series) {
  return CoefficientTable(state, series).Rows();
}

std::vector<Input> PredictorRows(const AMModelSpec& spec, const Series& series) {
  std::vector<Input> rows;
  for (unsigned i = 0; i < spec.GetXCount(); ++i) {
    rows.push_back(PredictorRow(spec, i, series.predictors[i].name));
  }
  return rows;
}

std::vector<Event> OutlierRows(const ARMAForecastState& state, const Series& series,
                               std::size_t firstCase) {
  const AMModelSpec& spec = state.GetAMModelSpec();
  const TSOutlierSpecList& outliers = spec.GetOutliers();
  std::vector<Event> rows;
  for (unsigned j = 0; j < outliers.GetOutlierSpecCount(false); ++j) {
    const TSOutlierSpec& outlier = outliers.GetOutlierSpec(j);
    const unsigned position = spec.GetOutlierParmIndex() + outliers.ParameterVectorIndex(j, 0);
    const std::size_t at = firstCase + static_cast<std::size_t>(outlier.GetStartIndex());
    rows.push_back(OutlierRow(state, outlier, position, series.axis->CaseText(series.cases[at])));
  }
  return rows;
}

}  // namespace tsx::models
