#include "pmml/write/TSXPMMLModelRecord.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <vector>

#include <tsfcore/MV.h>
#include <tsfcore/TSStatUtil.h>

#include "kinds/SmoothingKind.h"

namespace tsx::pmml {

namespace {

using ParmType = TSFESModelProp::TSFESParmType;

constexpr const char* kStatisticNames[] = {"MSE", "RMSE",   "MAPE",  "MAE",  "MAXAPE", "MAXAE",
                                           "RSQ", "NRMBIC", "LOGLK", "SRSQ", "AIC",    "BIC"};

// The parameters of a kind in the order of the document; none for a code that is no kind.
std::vector<ParmType> ParametersOf(int kind) {
  const kinds::SmoothingKind* const facts = kinds::FindSmoothingKind(kind);
  if (facts == nullptr) return {};
  std::vector<ParmType> types = {TSFESModelProp::kLevel};
  if (facts->has_trend_weight()) types.push_back(TSFESModelProp::kTrend);
  if (facts->has_season_weight()) types.push_back(TSFESModelProp::kSeason);
  if (facts->has_damping_weight()) types.push_back(TSFESModelProp::kDamping);
  return types;
}

std::vector<double> ValuesOf(const TSFESModelProp& properties, ParmType type,
                             double degreesOfFreedom) {
  const double estimate = properties.GetWeight(type);
  const double stdError = properties.GetStdError(type);
  double t = MV::gMissingValue;
  double p = MV::gMissingValue;
  if (estimate != MV::gMissingValue && stdError != MV::gMissingValue && stdError > 0) {
    t = estimate / stdError;
    const double below = TSStatUtil::CDFStudentsT(-std::abs(t), degreesOfFreedom);
    if (below != MV::gMissingValue) p = 2 * below;
  }
  return {estimate, stdError, t, p};
}

}  // namespace

void TSXPMMLModelRecord::Fill(const TSFModel& newModel, const TSXDictionaryRefs& refs,
                              const std::valarray<double>& newHistory) {
  model_name = refs.GetModelName();
  model_descriptor = refs.GetModelDescriptor();
  dependent_var_id = refs.GetDependentVarID();
  if (newModel.IsEmpty()) return;

  std::transform(std::begin(kStatisticNames), std::end(kStatisticNames), statistics.begin(),
                 [&newModel](const char* name) { return newModel.GetGOFStat(name); });
  unsigned long lags = 0;
  unsigned long degreesOfFreedom = 0;
  newModel.GetLBStat(ljung_box.statistic, lags, degreesOfFreedom, ljung_box.significance);
  ljung_box.degrees_of_freedom = static_cast<double>(degreesOfFreedom);

  const TSFESModelProp properties = newModel.GetModelProperties();
  parameter_types = ParametersOf(properties.GetKind() - 1);
  parameter_values.clear();
  const auto df = static_cast<double>(newModel.GetImp()->GetEstimationInfo().GetDegreesOfFreedom());
  for (const ParmType type : parameter_types)
    parameter_values.push_back(ValuesOf(properties, type, df));

  model = newModel;
  std::copy_n(std::begin(newHistory), std::min(newHistory.size(), history.size()),
              std::begin(history));
}

}  // namespace tsx::pmml
