#include <algorithm>
#include <boost/math/distributions/normal.hpp>
#include <cmath>
#include <set>
#include <utility>

#include <tsffit/Outliers.h>

#include "arima/fit/Check.h"
#include "arima/model/Effects.h"
#include "arima/model/ModelledData.h"
#include "arima/outliers/Detection.h"
#include "arima/outliers/JointFits.h"
#include "series/Observed.h"
#include "series/Refusal.h"
#include "series/Transform.h"

namespace tsffit {

namespace {

// Found at most, by default.
constexpr std::size_t kMostOutliers = 20;

// Share of series without outliers that may show one, and how many independent tests are as likely
// to show one as a look at one case for one type. More than 1, for all correlation between tests:
// the likeliest of models that are fitted anew gains more than a model at given parameters.
constexpr double kFalseAlarms = 0.05;
constexpr double kTestsPerLook = 2;

bool IsType(TSOutlierSpec::Type type) {
  return std::find(std::begin(kOutlierTypes), std::end(kOutlierTypes), type) !=
         std::end(kOutlierTypes);
}

bool CheckSearch(const OutlierSearch& search, ArimaFit& fit) {
  if (!(search.critical_value >= 0) || !std::isfinite(search.critical_value)) {
    return Refuse(fit, FitStatus::kBadOptions,
                  "the critical value of outliers must be a number of at least 0");
  }
  if (!(search.transient_decay > 0 && search.transient_decay < 1)) {
    return Refuse(fit, FitStatus::kBadOptions,
                  "the decay of transient outliers must be between 0 and 1");
  }
  if (!std::all_of(search.types.begin(), search.types.end(), IsType)) {
    return Refuse(fit, FitStatus::kBadOptions, "no such type of outlier to look for");
  }
  return true;
}

// What is looked for in a model with a season of `seasonLength`, in the order of kOutlierTypes.
std::vector<TSOutlierSpec::Type> TypesOf(const OutlierSearch& search, unsigned seasonLength) {
  std::vector<TSOutlierSpec::Type> types;
  for (const TSOutlierSpec::Type type : kOutlierTypes) {
    if (type == TSOutlierSpec::kSeasonalAdditive && seasonLength < 2) continue;
    if (std::find(search.types.begin(), search.types.end(), type) != search.types.end()) {
      types.push_back(type);
    }
  }
  return types;
}

// `fit` is that without the outliers to be found.
DetectionRules RulesOf(const OutlierSearch& search, const AMModelSpec& spec, std::size_t observed,
                       const ArimaFit& fit) {
  DetectionRules rules{.decay = search.transient_decay,
                       .types = TypesOf(search, spec.GetSeasonLength(true))};
  rules.critical_value = search.critical_value > 0
                             ? search.critical_value
                             : CriticalOutlierValue(observed, rules.types.size());
  rules.max_outliers = search.max_outliers > 0
                           ? search.max_outliers
                           : std::clamp<std::size_t>(observed / 20, 1, kMostOutliers);
  rules.max_coefficients = std::min(fit.summary.residuals, observed - FirstPeriod(spec)) -
                           spec.GetParameterCount(true) - kSpareCases;
  return rules;
}

// The given outliers that the search could come upon.
std::set<OutlierPlace> Given(const TSOutlierSpecList& outliers) {
  std::set<OutlierPlace> given;
  for (unsigned j = 0; j < outliers.GetOutlierSpecCount(false); ++j) {
    const TSOutlierSpec& outlier = outliers.GetOutlierSpec(j);
    if (outlier.GetStartIndex() < 0) continue;
    given.emplace(static_cast<std::size_t>(outlier.GetStartIndex()), outlier.GetType());
  }
  return given;
}

// `spec` with the outliers found, whose cases count from case `first` of the series.
TSOutlierSpecList Appended(const TSOutlierSpecList& given, const std::vector<FoundOutlier>& found,
                           std::size_t first) {
  std::vector<TSOutlierSpec> outliers;
  for (unsigned j = 0; j < given.GetOutlierSpecCount(false); ++j) {
    outliers.push_back(given.GetOutlierSpec(j));
  }
  for (const FoundOutlier& outlier : found) {
    outliers.emplace_back(outlier.type, static_cast<long>(first + outlier.at));
  }
  return TSOutlierSpecList(std::move(outliers));
}

}  // namespace

double CriticalOutlierValue(std::size_t observed, std::size_t types) {
  const double tests =
      kTestsPerLook * static_cast<double>(std::max<std::size_t>(observed * types, 1));
  return boost::math::quantile(
      boost::math::complement(boost::math::normal(), 0.5 * kFalseAlarms / tests));
}

ArimaFit FitArimaDetectingOutliers(std::span<const double> series,
                                   std::span<const std::vector<double>> predictors,
                                   const ArimaOptions& options, const OutlierSearch& search) {
  ArimaFit fit;
  if (!CheckSearch(search, fit)) return fit;
  fit = FitArima(series, predictors, options);
  if (fit.status != FitStatus::kOk || search.types.empty()) return fit;

  const std::size_t first = FirstObserved(series);
  const std::vector<double> modelled =
      ModelledSeries(series.subspan(first), options.spec.y_transform.GetFunctionType());
  AMModelSpec::Fields spec = CountedFrom(options.spec, first);
  ArimaData data = MakeArimaData(AMModelSpec(spec), modelled, predictors, first);
  const std::size_t observed = CountObserved(modelled);
  const DetectionRules rules = RulesOf(search, AMModelSpec(spec), observed, fit);
  std::set<OutlierPlace> given = Given(spec.outliers);
  JointFits fits(std::move(spec), std::move(data));
  const std::vector<FoundOutlier> found = DetectOutliers(fits, rules, std::move(given));
  if (found.empty()) return fit;

  ArimaOptions complete = options;
  complete.spec.outliers = Appended(options.spec.outliers, found, first);
  return FitArima(series, predictors, complete);
}

}  // namespace tsffit
