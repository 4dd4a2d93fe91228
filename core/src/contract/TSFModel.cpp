#include <algorithm>
#include <string_view>
#include <utility>

#include <tsfcore/ESForecastState.h>
#include <tsfcore/TSFModel.h>

namespace {

using BFSharedConst::GOFStatType;

constexpr std::pair<std::string_view, GOFStatType> kStatisticNames[] = {
    {"MSE", BFSharedConst::kMeanSqrErr},
    {"RMSE", BFSharedConst::kRootMeanSqrErr},
    {"MAPE", BFSharedConst::kMeanAbsPctErr},
    {"MAE", BFSharedConst::kMeanAbsErr},
    {"MAXAPE", BFSharedConst::kMaxAbsPctErr},
    {"MAXAE", BFSharedConst::kMaxAbsErr},
    {"RSQ", BFSharedConst::kRSqr},
    {"NRMBIC", BFSharedConst::kNormBayesIC},
    {"LOGLK", BFSharedConst::kLogLikelihood},
    {"SRSQ", BFSharedConst::kStationaryRSqr},
    {"AIC", BFSharedConst::kAkaikeIC},
    {"BIC", BFSharedConst::kBayesIC},
};

// The value at the weight's position; missing where there is no such position.
double At(const std::valarray<double>& values, int position) {
  const bool known = position >= 0 && static_cast<std::size_t>(position) < values.size();
  return known ? values[static_cast<std::size_t>(position)] : MV::gMissingValue;
}

}  // namespace

TSFModelImp::TSFModelImp(Fields fields) : fields_(std::move(fields)) {}
TSFModelImp::~TSFModelImp() = default;

TSFModel::TSFModel(TSFModelImp* imp) : imp_(imp) {
  if (imp_ != nullptr) imp_->addReference();
}

TSFModel::TSFModel(const TSFModel& other) : TSFModel(other.imp_) {}

TSFModel& TSFModel::operator=(const TSFModel& other) {
  TSFModel copy(other);
  std::swap(imp_, copy.imp_);
  return *this;
}

TSFModel::TSFModel(TSFModel&& other) noexcept : imp_(std::exchange(other.imp_, nullptr)) {}

TSFModel& TSFModel::operator=(TSFModel&& other) noexcept {
  std::swap(imp_, other.imp_);
  return *this;
}

TSFModel::~TSFModel() {
  if (imp_ != nullptr) imp_->removeReference();
}

unsigned TSFModel::GetPredictorCount() const {
  return imp_ != nullptr ? imp_->GetPredictorCount() : 0;
}

double TSFModel::GetGOFStat(const std::string& name) const {
  const auto* row = std::find_if(std::begin(kStatisticNames), std::end(kStatisticNames),
                                 [&name](const auto& pair) { return pair.first == name; });
  if (imp_ == nullptr || row == std::end(kStatisticNames)) return MV::gMissingValue;
  return imp_->GetEstimationInfo().GetGOFStat(row->second);
}

void TSFModel::GetLBStat(double& statistic, unsigned long& k, unsigned long& degreesOfFreedom,
                         double& pValue) const {
  const EstimationInfo none;
  const EstimationInfo& info = imp_ != nullptr ? imp_->GetEstimationInfo() : none;
  info.GetLBStat(statistic, k, degreesOfFreedom, pValue);
}

TSFESModelProp TSFModel::GetModelProperties() const {
  const ForecastState* any = imp_ != nullptr ? imp_->GetForecastState() : nullptr;
  const auto* state = dynamic_cast<const ESForecastState*>(any);
  if (state == nullptr) return {};

  const ESModelSpec& spec = state->GetESModelSpec();
  std::array<TSFESModelProp::Weight, 4> weights;
  for (int type = 0; type < 4; ++type) {
    const int position = spec.GetParameterIndex(type);
    weights[static_cast<unsigned>(type)] = {At(state->GetParameterEstimates(), position),
                                            At(state->GetParameterStdErrors(), position)};
  }
  return {spec.GetKind() + 1, weights};
}
