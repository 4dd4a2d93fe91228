#ifndef TSXPORT_TESTS_SUPPORT_MODELS_H_
#define TSXPORT_TESTS_SUPPORT_MODELS_H_

#include <memory>
#include <utility>

#include <tsfcore/tsfcore.h>

// Models written down as a test means them.
namespace test {

inline const double kMissing = MV::gMissingValue;

inline ESForecastState SimpleState(double level = 10) {
  return ESForecastState(
      {.spec = ESModelSpec(ESModelSpec::ForKind(ESModelSpec::kSimple, 1)),
       .estimates = {0.25},
       .std_errors = {0.0625},
       .smoothed = {.level = level, .trend = kMissing, .phase = 0, .season = {}}});
}

inline ESForecastState HoltState(double trend = 0.5) {
  return ESForecastState({.spec = ESModelSpec(ESModelSpec::ForKind(ESModelSpec::kHolt, 1)),
                          .estimates = {0.5, 0.125},
                          .std_errors = {0.1, kMissing},
                          .smoothed = {.level = 20, .trend = trend, .phase = 0, .season = {}}});
}

inline ESForecastState WintersState(int kind = ESModelSpec::kMultiplicativeWinters) {
  return ESForecastState(
      {.spec = ESModelSpec(ESModelSpec::ForKind(kind, 4)),
       .estimates = {0.5, 0.125, 0.75},
       .std_errors = {0.1, 0.2, 0.3},
       .smoothed = {.level = 100, .trend = 2, .phase = 3, .season = {0.5, 1.5, 0.75, 1.25}}});
}

inline EstimationInfo SmallInfo() {
  EstimationInfo::Fields fields;
  fields.span = {.start = 0, .length = 24};
  fields.degrees_of_freedom = 23;
  fields.error_variance = 1.5;
  return EstimationInfo(fields);
}

inline TSFModel ModelOf(std::unique_ptr<const ForecastState> state, unsigned predictorCount = 0) {
  return TSFModel(new TSFModelImp({.state = std::move(state),
                                   .info = SmallInfo(),
                                   .history = {8, 9, 10},
                                   .predictor_count = predictorCount}));
}

inline TSFModel SimpleModel() { return ModelOf(std::make_unique<ESForecastState>(SimpleState())); }

inline TSFModel ArimaModel() { return ModelOf(std::make_unique<ARMAMLForecastState>()); }

}  // namespace test

#endif  // TSXPORT_TESTS_SUPPORT_MODELS_H_
