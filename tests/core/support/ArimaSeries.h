#ifndef TSXPORT_TESTS_CORE_SUPPORT_ARIMASERIES_H_
#define TSXPORT_TESTS_CORE_SUPPORT_ARIMASERIES_H_

#include <map>
#include <string>
#include <vector>

#include <tsfcore/tsfcore.h>
#include <tsffit/Arima.h>

namespace test {

// A model of tests/reference/arima_models.csv with its data.
struct ArimaModel {
  std::string name;
  std::vector<double> series;
  std::vector<std::vector<double>> predictors;
  std::vector<std::vector<double>> future;  // of the predictors, for 24 forecasts
  AMModelSpec::Fields spec;
};
std::vector<ArimaModel> ArimaModels();

// The orders of a model without predictors and outliers. Seasonal lags are in seasons: {1} is one
// coefficient at the season's length.
struct Orders {
  std::vector<std::uint32_t> ar{};
  unsigned d = 0;
  std::vector<std::uint32_t> ma{};
  std::vector<std::uint32_t> seasonal_ar{};
  unsigned seasonal_d = 0;
  std::vector<std::uint32_t> seasonal_ma{};
  unsigned season_length = 1;
  bool has_constant = false;
};
AMModelSpec::Fields SpecOf(const Orders& orders);

// ARIMA(0,1,1)(0,1,1) with a season of 12.
AMModelSpec::Fields Airline();

tsffit::ArimaFit FitSpec(const std::vector<double>& series, const AMModelSpec::Fields& spec,
                         tsffit::ArimaMethod method = tsffit::ArimaMethod::kMl,
                         const std::vector<std::vector<double>>& predictors = {});

const ARMAForecastState& ArimaStateOf(const TSFModel& model);
std::vector<double> EstimatesOf(const tsffit::ArimaFit& fit);
std::vector<double> StdErrorsOf(const tsffit::ArimaFit& fit);

// Independent draws from the normal distribution with mean 0 and variance 1, the same on every
// machine.
class NormalDraws {
 public:
  explicit NormalDraws(std::uint64_t seed) : state_(seed) {}
  double operator()();
  double Uniform();  // above 0, below 1

 private:
  std::uint64_t state_;
};

// `count` values of phi(B) N = theta(B) a, both polynomials beginning with 1, from the stationary
// distribution as good as (the start is 2000 periods back).
std::vector<double> SimulateArma(const std::vector<double>& phi, const std::vector<double>& theta,
                                 std::size_t count, NormalDraws& draws);

// Sums from the first value on, `lag` periods apart: undoes a difference.
std::vector<double> Summed(std::vector<double> values, std::size_t lag = 1);

// Fails the current test where anything in the fit, its forecasts included, is a NaN or infinite,
// or where a list is not as long as it should be; a refusal must say why. `future`: the predictors
// in the 9 periods after the end.
void ExpectSound(const tsffit::ArimaFit& fit, const std::vector<std::vector<double>>& future = {});

}  // namespace test

#endif  // TSXPORT_TESTS_CORE_SUPPORT_ARIMASERIES_H_
