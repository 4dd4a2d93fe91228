#include <algorithm>
#include <cmath>
#include <optional>

#include <tsffit/Croston.h>

#include "croston/SimpleWeight.h"
#include "series/FitStatistics.h"
#include "series/Observed.h"
#include "series/Refusal.h"
#include "series/Transform.h"

namespace tsffit {

namespace {

constexpr std::size_t kEnoughDemands = 4;

bool IsDemand(double y) { return !IsMissing(y) && y > 0; }

bool IsWeight(const std::optional<double>& weight) {
  return !weight || (*weight >= 0 && *weight <= 1);
}

bool CheckOptions(const CrostonOptions& options, CrostonFit& fit) {
  if (auto fault = NoSuchTransformation(options.function_type)) {
    return Refuse(fit, *fault);
  }
  if (!IsWeight(options.size_weight) || !IsWeight(options.interval_weight) ||
      !IsWeight(options.error_weight)) {
    return Refuse(fit, FitStatus::kBadOptions, "a fixed weight must lie between 0 and 1");
  }
  return true;
}

std::optional<Fault> ValueFault(double y) {
  if (auto fault = NotFinite(y)) return fault;
  if (auto fault = TooLarge(y, kLargestValue)) return fault;
  if (y >= 0) return std::nullopt;
  return Fault{FitStatus::kNegative, "Croston's method needs values of at least 0"};
}

bool CheckSeries(std::span<const double> series, CrostonFit& fit) {
  for (std::size_t t = 0; t < series.size(); ++t) {
    auto fault = IsMissing(series[t]) ? std::nullopt : ValueFault(series[t]);
    if (!fault) continue;
    fit.bad_case = t;
    return Refuse(fit, *fault);
  }
  if (FirstObserved(series) == series.size()) return Refuse(fit, NothingObserved());
  if (std::none_of(series.begin(), series.end(), IsDemand)) {
    return Refuse(fit, FitStatus::kNoDemand, "the series has no demand: no value is above 0");
  }
  return true;
}

// The two series that are smoothed, one value per demand.
struct Demands {
  std::vector<double> sizes;
  std::vector<double> intervals;
};

Demands FindDemands(std::span<const double> span, int functionType) {
  Demands demands;
  double interval = 0;
  for (const double y : span) {
    if (IsMissing(y)) continue;
    ++interval;
    if (!IsDemand(y)) continue;
    demands.sizes.push_back(Transformed(functionType, y));
    demands.intervals.push_back(interval);
    interval = 0;
  }
  return demands;
}

// One fit over its span, which begins with an observed case and holds a demand.
class Fitter {
 public:
  Fitter(std::span<const double> span, const CrostonOptions& options)
      : span_(span),
        options_(options),
        demands_(FindDemands(span, options.function_type)),
        enough_(demands_.sizes.size() >= kEnoughDemands),
        sizes_(Smooth(demands_.sizes, {options.size_weight, enough_})),
        intervals_(Smooth(demands_.intervals, {options.interval_weight, enough_})) {}

  void Run(std::size_t first, CrostonFit& fit) const {
    const std::vector<double> rates = Rates();
    const std::vector<double> errors = Errors(rates);
    const SimpleSmoothing absolute =
        Smooth(AbsoluteErrors(errors), {options_.error_weight, enough_});
    fit.summary = {.demands = demands_.sizes.size(),
                   .sizes = Told(sizes_),
                   .intervals = Told(intervals_),
                   .errors = Told(absolute)};
    fit.fitted.assign(first, MV::gMissingValue);
    fit.fitted.insert(fit.fitted.end(), rates.begin(), rates.end());

    EstimationInfo::Fields info = Statistics(rates, errors);
    info.span = {.start = first, .length = span_.size()};
    fit.model = TSFCrModel(new TSFCrModelImp({.states = {Exported(sizes_, options_.function_type),
                                                         Exported(intervals_), Exported(absolute)},
                                              .function_type = options_.function_type,
                                              .info = EstimationInfo(info)}));
  }

 private:
  // The rate before each case: equation (2) of Croston.h, its levels by equation (1).
  std::vector<double> Rates() const {
    std::vector<double> rates;
    rates.reserve(span_.size());
    double size = demands_.sizes[0];
    double interval = demands_.intervals[0];
    std::size_t demand = 0;
    for (const double y : span_) {
      rates.push_back(Untransformed(options_.function_type, size) / interval);
      if (!IsDemand(y)) continue;
      size = Smoothed(size, sizes_.weight, demands_.sizes[demand]);
      interval = Smoothed(interval, intervals_.weight, demands_.intervals[demand]);
      ++demand;
    }
    return rates;
  }

  std::vector<double> Errors(const std::vector<double>& rates) const {
    std::vector<double> errors(span_.begin(), span_.end());
    for (std::size_t t = 0; t < errors.size(); ++t) {
      if (!IsMissing(errors[t])) errors[t] -= rates[t];
    }
    return errors;
  }

  static std::vector<double> AbsoluteErrors(const std::vector<double>& errors) {
    std::vector<double> absolute;
    absolute.reserve(errors.size());
    for (const double error : errors) {
      if (!IsMissing(error)) absolute.push_back(std::abs(error));
    }
    return absolute;
  }

  EstimationInfo::Fields Statistics(const std::vector<double>& rates,
                                    const std::vector<double>& errors) const {
    const unsigned estimated = (sizes_.estimated ? 1U : 0U) + (intervals_.estimated ? 1U : 0U);
    const FittedSeries all{
        .observed = span_, .fitted = rates, .modelled = span_, .modelled_errors = errors};
    return FitStatistics(all, estimated, {}, options_.ljung_box_lags);
  }

  static CrostonSubmodel Told(const SimpleSmoothing& smoothing) {
    return {.weight = smoothing.weight, .estimated = smoothing.estimated, .sse = smoothing.sse};
  }

  static ESForecastState Exported(const SimpleSmoothing& smoothing,
                                  int functionType = TSTransformation::kNone) {
    ESModelSpec::Fields spec = ESModelSpec::ForKind(ESModelSpec::kSimple, 1, functionType);
    spec.fixed_count = smoothing.estimated ? 0 : 1;
    return ESForecastState({.spec = ESModelSpec(spec),
                            .estimates = {smoothing.weight},
                            .std_errors = {smoothing.std_error},
                            .smoothed = {.level = smoothing.level}});
  }

  std::span<const double> span_;
  const CrostonOptions& options_;
  Demands demands_;
  bool enough_;
  SimpleSmoothing sizes_;
  SimpleSmoothing intervals_;
};

}  // namespace

CrostonFit FitCroston(std::span<const double> series, const CrostonOptions& options) {
  CrostonFit fit;
  if (!CheckOptions(options, fit) || !CheckSeries(series, fit)) return fit;
  const std::size_t first = FirstObserved(series);
  Fitter(series.subspan(first), options).Run(first, fit);
  return fit;
}

}  // namespace tsffit
