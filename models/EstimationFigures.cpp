#include "models/EstimationFigures.h"

namespace tsx::models {

Figures LikelihoodFigures(const EstimationInfo& info) {
  return {.label = "likelihood",
          .rows = {{"log-likelihood", info.GetGOFStat(BFSharedConst::kLogLikelihood)},
                   {"AIC", info.GetGOFStat(BFSharedConst::kAkaikeIC)},
                   {"BIC", info.GetGOFStat(BFSharedConst::kBayesIC)},
                   {"error variance", info.GetErrorVariance()}}};
}

Figures FitFigures(const EstimationInfo& info) {
  return {.label = "fit",
          .rows = {{"RMSE", info.GetGOFStat(BFSharedConst::kRootMeanSqrErr)},
                   {"MAPE", info.GetGOFStat(BFSharedConst::kMeanAbsPctErr), "%"},
                   {"MAE", info.GetGOFStat(BFSharedConst::kMeanAbsErr)},
                   {"R-squared", info.GetGOFStat(BFSharedConst::kRSqr)},
                   {"normalised BIC", info.GetGOFStat(BFSharedConst::kNormBayesIC)}}};
}

Figures ResidualFigures(const EstimationInfo& info) {
  double statistic = 0;
  unsigned long lags = 0;
  unsigned long degreesOfFreedom = 0;
  double pValue = 0;
  info.GetLBStat(statistic, lags, degreesOfFreedom, pValue);
  Figures figures = {.label = "residuals",
                     .sentence = "Ljung-Box Q({}) {}, {} d.f., p {}",
                     .without = "too few for a Ljung-Box test"};
  if (statistic == MV::gMissingValue) return figures;
  figures.rows = {{"Ljung-Box lags", static_cast<double>(lags)},
                  {"Ljung-Box Q", statistic},
                  {"Ljung-Box degrees of freedom", static_cast<double>(degreesOfFreedom)},
                  {"Ljung-Box p", pValue}};
  return figures;
}

}  // namespace tsx::models
