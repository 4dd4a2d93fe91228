#ifndef TSXPORT_TESTS_SUPPORT_ARIMAMODELS_H_
#define TSXPORT_TESTS_SUPPORT_ARIMAMODELS_H_

#include <valarray>

#include <tsfcore/tsfcore.h>

// ARIMA models written down as a test means them. Estimates tell their position: the one at
// position p is p + 0.5, its standard error p + 0.25.
namespace test {

inline std::valarray<double> CountedFrom(double first, unsigned count) {
  std::valarray<double> values(count);
  for (double& value : values) value = first++;
  return values;
}

inline std::valarray<double> CountedValues(unsigned count) { return CountedFrom(0.5, count); }
inline std::valarray<double> CountedErrors(unsigned count) { return CountedFrom(0.25, count); }

// Everything that a specification can hold. Positions: constant 0; AR 1 to 3; MA 4 to 6; first
// predictor 7 to 9 over 10 and 11; second predictor 12 over 13 and 14; outliers from 15, of which
// the transient one has 17 and 18. 23 parameters.
inline AMModelSpec FullArimaSpec() {
  AMModelSpec::Fields fields;
  fields.season_length = 12;
  fields.y_transform = TSTransformation(TSTransformation::kLogarithm);
  fields.non_seasonal_diff = 1;
  fields.seasonal_diff = 2;
  fields.has_constant = true;
  fields.ar = {.non_seasonal = {1, 3}, .seasonal = {12}};
  fields.ma = {.non_seasonal = {1}, .seasonal = {12, 24}};
  fields.predictors = {{.transform = TSTransformation(TSTransformation::kSquareRoot),
                        .non_seasonal_diff = 1,
                        .seasonal_diff = 1,
                        .delay = 3,
                        .numerator = {.non_seasonal = {2}, .seasonal = {12}},
                        .denominator = {.non_seasonal = {1}, .seasonal = {4}}},
                       {.denominator = {.non_seasonal = {1, 2}, .seasonal = {}}}};
  fields.outliers = TSOutlierSpecList({{TSOutlierSpec::kAdditive, 4},
                                       {TSOutlierSpec::kLevel, 9},
                                       {TSOutlierSpec::kTransient, 15},
                                       {TSOutlierSpec::kSeasonalAdditive, 16},
                                       {TSOutlierSpec::kTrend, 20},
                                       {TSOutlierSpec::kInnovational, 0},
                                       {TSOutlierSpec::kVarianceChange, 23}});
  return AMModelSpec(fields);
}

// The airline model: a logarithm, both differences, and a seasonal moving average.
inline AMModelSpec AirlineSpec() {
  AMModelSpec::Fields fields;
  fields.season_length = 12;
  fields.y_transform = TSTransformation(TSTransformation::kLogarithm);
  fields.non_seasonal_diff = 1;
  fields.seasonal_diff = 1;
  fields.ma = {.non_seasonal = {1}, .seasonal = {12}};
  return AMModelSpec(fields);
}

inline AMModelSpec SpecWithPredictors(unsigned count) {
  AMModelSpec::Fields fields;
  fields.predictors.resize(count);
  return AMModelSpec(fields);
}

// What the three states have in common, with estimates for every parameter of `spec`.
inline ARMAForecastState::Common CommonOf(const AMModelSpec& spec) {
  return {.spec = spec,
          .estimates = CountedValues(spec.GetParameterCount(true)),
          .std_errors = CountedErrors(spec.GetParameterCount(true))};
}

// A state with all its vectors, and with an empty one among the thetas.
inline ARMAMLSpForecastState FullMLSpState() {
  ARMAForecastState::Common common = CommonOf(FullArimaSpec());
  common.period = {.start_index = 7, .length = 24, .period_deficit = 2};
  common.x_history = {{.predictor = {1, 2.5}, .transfer_function = {-0.125}},
                      {.predictor = {3}, .transfer_function = {4, 5}}};
  common.actual_z = {6, 6.5};
  common.predicted_z = {7};
  return ARMAMLSpForecastState({.common = common,
                                .actual_n = {8, -8},
                                .predicted_n = {9},
                                .final_iteration_count = 17,
                                .final_thetas = {{0.5, 0.25}, {}, {0.125}},
                                .final_nu = {1.5, 1.25}});
}

inline ARMAMLForecastState AirlineMLState() {
  ARMAForecastState::Common common = CommonOf(AirlineSpec());
  common.actual_z = {6, 6.5};
  common.predicted_z = {7};
  return ARMAMLForecastState(
      {.common = common, .final_omega = DSymMat(2, {1, 0.5, 2}), .final_state = {0.75, -0.25}});
}

// One predictor without a history, an AR polynomial with a constant, one outlier.
inline ARMACLSForecastState RegressionCLSState() {
  AMModelSpec::Fields fields;
  fields.has_constant = true;
  fields.ar.non_seasonal = {1, 2};
  fields.predictors.resize(1);
  fields.predictors[0].numerator.non_seasonal = {1};
  fields.predictors[0].denominator.non_seasonal = {1};
  fields.outliers = TSOutlierSpecList({{TSOutlierSpec::kLevel, 11}});
  ARMAForecastState::Common common = CommonOf(AMModelSpec(fields));
  common.actual_z = {6};
  return ARMACLSForecastState({.common = common, .actual_n = {8, -8}, .predicted_n = {9}});
}

}  // namespace test

#endif  // TSXPORT_TESTS_SUPPORT_ARIMAMODELS_H_
