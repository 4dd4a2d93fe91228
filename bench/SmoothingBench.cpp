// Fits per second, one thread, with the settings that the quality table was made with: 144 monthly
// values. bench/against_r.R runs the multiplicative Winters fit beside R's.

#include <benchmark/benchmark.h>
#include <vector>

#include <tsfcore/tsfcore.h>
#include <tsffit/tsffit.h>

namespace {

// International airline passengers, thousands a month, 1949 to 1960 (Box and Jenkins, series G).
constexpr double kPassengers[] = {
    112, 118, 132, 129, 121, 135, 148, 148, 136, 119, 104, 118, 115, 126, 141, 135, 125, 149,
    170, 170, 158, 133, 114, 140, 145, 150, 178, 163, 172, 178, 199, 199, 184, 162, 146, 166,
    171, 180, 193, 181, 183, 218, 230, 242, 209, 191, 172, 194, 196, 196, 236, 235, 229, 243,
    264, 272, 237, 211, 180, 201, 204, 188, 235, 227, 234, 264, 302, 293, 259, 229, 203, 229,
    242, 233, 267, 269, 270, 315, 364, 347, 312, 274, 237, 278, 284, 277, 317, 313, 318, 374,
    413, 405, 355, 306, 271, 306, 315, 301, 356, 348, 355, 422, 465, 467, 404, 347, 305, 336,
    340, 318, 362, 348, 363, 435, 491, 505, 404, 359, 310, 337, 360, 342, 406, 396, 420, 472,
    548, 559, 463, 407, 362, 405, 417, 391, 419, 461, 472, 535, 622, 606, 508, 461, 390, 432};

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
