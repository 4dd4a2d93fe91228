// Fits per second, one thread, with the settings that the quality table was made with: 144 monthly
// values. bench/against_r.R runs the multiplicative Winters fit beside R's.

#include <benchmark/benchmark.h>
#include <vector>

#include <tsfcore/tsfcore.h>
#include <tsffit/tsffit.h>

#include "bench/Passengers.h"

namespace {

using bench::kPassengers;

void Fit(benchmark::State& state, int kind) {
  tsffit::SmoothingOptions options;
  options.kind = kind;
  options.season_length = 12;
  double sse = 0;
  while (state.KeepRunning()) {
    const tsffit::SmoothingFit fit = tsffit::FitSmoothing(kPassengers, options);
    if (fit.status != tsffit::FitStatus::kOk) {
      state.SkipWithError(fit.message.c_str());
      break;
    }
    sse = fit.summary.sse;
  }
  state.counters["fits/s"] =
      benchmark::Counter(static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
  state.counters["sse"] = sse;
}

BENCHMARK_CAPTURE(Fit, simple, ESModelSpec::kSimple)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Fit, brown, ESModelSpec::kBrown)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Fit, holt, ESModelSpec::kHolt)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Fit, damped_trend, ESModelSpec::kDampedTrend)->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Fit, simple_seasonal, ESModelSpec::kSimpleSeasonal)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Fit, winters_additive, ESModelSpec::kAdditiveWinters)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(Fit, winters_multiplicative, ESModelSpec::kMultiplicativeWinters)
    ->Unit(benchmark::kMicrosecond);

void Forecast(benchmark::State& state) {
  tsffit::SmoothingOptions options;
  options.kind = ESModelSpec::kMultiplicativeWinters;
  options.season_length = 12;
  const tsffit::SmoothingFit fit = tsffit::FitSmoothing(kPassengers, options);
  while (state.KeepRunning()) benchmark::DoNotOptimize(tsffit::Forecast(fit.model, 24));
}
BENCHMARK(Forecast)->Unit(benchmark::kMicrosecond);

}  // namespace
