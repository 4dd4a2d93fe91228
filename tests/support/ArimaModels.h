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

inline AMModelSpec SpecWithPredictors(unsigned count) {
  AMModelSpec::Fields fields;
  fields.predictors.resize(count);
  return AMModelSpec(fields);
}

}  // namespace test

#endif  // TSXPORT_TESTS_SUPPORT_ARIMAMODELS_H_
