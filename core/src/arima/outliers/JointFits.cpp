#include "arima/outliers/JointFits.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>
#include <utility>

#include "arima/fit/Likelihood.h"
#include "arima/fit/Search.h"
#include "arima/model/Effects.h"
#include "series/Observed.h"

namespace tsffit {

namespace {

std::vector<double> EffectOf(const FoundOutlier& outlier, unsigned seasonLength,
                             std::size_t cases) {
  std::vector<double> effect(cases, 0.0);
  for (std::size_t t = outlier.at; t < cases; ++t) {
    effect[t] =
        OutlierShape(outlier.type, outlier.decay, seasonLength, static_cast<long>(t - outlier.at));
  }
  return effect;
}

// The model with more outliers: as such those of the types in `proper`, as predictors the others.
OutlierModel Extended(AMModelSpec::Fields spec, ArimaData data,
                      const std::vector<FoundOutlier>& outliers,
                      std::initializer_list<int> proper) {
  std::vector<TSOutlierSpec> list;
  for (unsigned j = 0; j < spec.outliers.GetOutlierSpecCount(false); ++j) {
    list.push_back(spec.outliers.GetOutlierSpec(j));
  }
  for (const FoundOutlier& outlier : outliers) {
    if (std::find(proper.begin(), proper.end(), outlier.type) != proper.end()) {
      list.emplace_back(outlier.type, static_cast<long>(outlier.at));
      continue;
    }
    spec.predictors.push_back(
        {.non_seasonal_diff = spec.non_seasonal_diff, .seasonal_diff = spec.seasonal_diff});
    data.predictors.push_back(EffectOf(outlier, spec.season_length, data.series.size()));
  }
  spec.outliers = TSOutlierSpecList(std::move(list));
  return {.spec = AMModelSpec(std::move(spec)), .data = std::move(data)};
}

JointFit Fitted(const OutlierModel& model) {
  const Design design(model.spec, model.data);
  Likelihood likelihood(design, ArimaMethod::kMl);
  ArimaSearchResult found = SolveArima(likelihood).found;
  JointFit fit;
  fit.usable = found.best.usable && std::isfinite(found.best.Criterion());
  if (!fit.usable) return fit;
  fit.log_likelihood = found.best.LogLikelihood();
  fit.parameters = std::move(found.best.parameters);
  return fit;
}

}  // namespace

bool JointFits::Sees(std::size_t at) const {
  const AMModelSpec spec(spec_);
  return at + DifferenceDegree(spec) >= FirstPeriod(spec) && !IsMissing(data_.series[at]);
}

OutlierModel JointFits::ModelWith(const std::vector<FoundOutlier>& outliers) const {
  return Extended(spec_, data_, outliers, {TSOutlierSpec::kInnovational});
}

const JointFit& JointFits::With(const std::vector<FoundOutlier>& outliers) {
  const auto known = made_.find(outliers);
  if (known != made_.end()) return known->second;
  return made_.emplace(outliers, Fitted(ModelWith(outliers))).first->second;
}

std::vector<FoundOutlier> JointFits::WithDecays(std::vector<FoundOutlier> outliers) const {
  const OutlierModel model =
      Extended(spec_, data_, outliers, {TSOutlierSpec::kInnovational, TSOutlierSpec::kTransient});
  const JointFit fit = Fitted(model);
  if (!fit.usable) return outliers;
  const TSOutlierSpecList& list = model.spec.GetOutliers();
  unsigned j = spec_.outliers.GetOutlierSpecCount(false);
  std::vector<FoundOutlier> fitted;
  for (FoundOutlier outlier : outliers) {
    const bool transient = outlier.type == TSOutlierSpec::kTransient;
    if (transient || outlier.type == TSOutlierSpec::kInnovational) {
      const unsigned size = model.spec.GetOutlierParmIndex() + list.ParameterVectorIndex(j++, 0);
      if (transient && IsMissing(fit.parameters[size])) continue;
      if (transient) outlier.decay = fit.parameters[size + 1];
    }
    fitted.push_back(outlier);
  }
  return fitted;
}

}  // namespace tsffit
