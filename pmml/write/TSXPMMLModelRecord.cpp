#include "pmml/write/TSXPMMLModelRecord.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <span>

#include <tsfcore/ESModelSpec.h>
#include <tsfcore/MV.h>
#include <tsfcore/TSStatUtil.h>

namespace tsx::pmml {

namespace {

using ParmType = TSFESModelProp::TSFESParmType;

constexpr const char* kStatisticNames[] = {"MSE", "RMSE",   "MAPE",  "MAE",  "MAXAPE", "MAXAE",
                                           "RSQ", "NRMBIC", "LOGLK", "SRSQ", "AIC",    "BIC"};

constexpr ParmType kLevelTrendSeason[] = {TSFESModelProp::kLevel, TSFESModelProp::kTrend,
                                          TSFESModelProp::kSeason};
constexpr ParmType kLevelTrendDamping[] = {TSFESModelProp::kLevel, TSFESModelProp::kTrend,
                                           TSFESModelProp::kDamping};
constexpr ParmType kLevelSeason[] = {TSFESModelProp::kLevel, TSFESModelProp::kSeason};

// The parameters of a kind in the order of the document; none for a code that is no kind.
std::span<const ParmType> ParametersOf(int kind) {
  switch (kind) {
    case ESModelSpec::kAdditiveWinters:
    case ESModelSpec::kMultiplicativeWinters:
      return kLevelTrendSeason;
    case ESModelSpec::kDampedTrend:
      return kLevelTrendDamping;
    case ESModelSpec::kHolt:
      return std::span(kLevelTrendSeason).first(2);
    case ESModelSpec::kSimpleSeasonal:
      return kLevelSeason;
    case ESModelSpec::kBrown:
    case ESModelSpec::kSimple:
      return std::span(kLevelTrendSeason).first(1);
    default:
      return {};
  }
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
  const std::span<const ParmType> types = ParametersOf(properties.GetKind() - 1);
  parameter_types.assign(types.begin(), types.end());
  parameter_values.clear();
  const auto df = static_cast<double>(newModel.GetImp()->GetEstimationInfo().GetDegreesOfFreedom());
  for (const ParmType type : types) parameter_values.push_back(ValuesOf(properties, type, df));

  model = newModel;
  std::copy_n(std::begin(newHistory), std::min(newHistory.size(), history.size()),
              std::begin(history));
}

}  // namespace tsx::pmml
