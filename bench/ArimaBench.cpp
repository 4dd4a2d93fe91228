// Fits per second of the airline model, ARIMA(0,1,1)(0,1,1) on the logarithm of 144 monthly values,
// one thread; and one value of each likelihood. bench/arima_against_r.R and
// bench/against_statsmodels.py run the first beside other programs.

#include <benchmark/benchmark.h>
#include <cmath>
#include <vector>

#include <tsfcore/tsfcore.h>
#include <tsffit/Arima.h>

#include "arima/fit/Likelihood.h"
#include "arima/model/Design.h"
#include "bench/Passengers.h"

namespace {

using tsffit::ArimaMethod;

tsffit::ArimaOptions Airline(ArimaMethod method) {
  tsffit::ArimaOptions options;
  options.method = method;
  options.spec.season_length = 12;
  options.spec.y_transform = TSTransformation(TSTransformation::kLogarithm);
  options.spec.non_seasonal_diff = options.spec.seasonal_diff = 1;
  options.spec.ma = {.non_seasonal = {1}, .seasonal = {12}};
  return options;
}

std::vector<double> Passengers(bool withGaps) {
  std::vector<double> series(std::begin(bench::kPassengers), std::end(bench::kPassengers));
  if (!withGaps) return series;
  for (const std::size_t t : {20U, 41U, 42U, 77U, 120U}) series[t] = MV::gMissingValue;
  return series;
}

void Fit(benchmark::State& state, ArimaMethod method, bool withGaps) {
  const std::vector<double> series = Passengers(withGaps);
  double logLikelihood = 0;
  double evaluations = 0;
  while (state.KeepRunning()) {
    const tsffit::ArimaFit fit = tsffit::FitArima(series, {}, Airline(method));
    if (fit.status != tsffit::FitStatus::kOk) {
      state.SkipWithError(fit.message.c_str());
      break;
    }
    logLikelihood = fit.summary.log_likelihood;
    evaluations = fit.summary.evaluations;
  }
  state.counters["fits/s"] =
      benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
  state.counters["loglik"] = logLikelihood;
  state.counters["evaluations"] = evaluations;
}

BENCHMARK_CAPTURE(Fit, ml, ArimaMethod::kMl, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Fit, ml_theta, ArimaMethod::kMlTheta, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Fit, cls, ArimaMethod::kCls, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Fit, ml_five_missing, ArimaMethod::kMl, true)->Unit(benchmark::kMicrosecond);

void Criterion(benchmark::State& state, ArimaMethod method, bool withGaps) {
  tsffit::ArimaData data;
  for (const double y : Passengers(withGaps)) {
    data.series.push_back(y == MV::gMissingValue ? y : std::log(y));
  }
  const tsffit::Design design(AMModelSpec(Airline(method).spec), data);
  const tsffit::Likelihood likelihood(design, method);
  const std::vector<double> parameters = {0.4, 0.55};
  while (state.KeepRunning()) benchmark::DoNotOptimize(likelihood.CriterionAt(parameters));
}

BENCHMARK_CAPTURE(Criterion, ml, ArimaMethod::kMl, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Criterion, ml_theta, ArimaMethod::kMlTheta, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Criterion, cls, ArimaMethod::kCls, false)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Criterion, ml_five_missing, ArimaMethod::kMl, true)
    ->Unit(benchmark::kMicrosecond);

void Forecast(benchmark::State& state) {
  const tsffit::ArimaFit fit = tsffit::FitArima(Passengers(false), {}, Airline(ArimaMethod::kMl));
  while (state.KeepRunning()) benchmark::DoNotOptimize(tsffit::Forecast(fit.model, 24));
}
BENCHMARK(Forecast)->Unit(benchmark::kMicrosecond);

}  // namespace
