#ifndef TSFCORE_ESFORECASTSTATE_H_
#define TSFCORE_ESFORECASTSTATE_H_

#include <cstdint>
#include <utility>
#include <valarray>

#include <tsfcore/ESModelSpec.h>
#include <tsfcore/Export.h>
#include <tsfcore/ForecastState.h>

// Final state of an exponential smoothing model, on the modelled (transformed) scale.
//
// The embedded core's standard errors of the weights are the roots of the diagonal of v (H / 2)^-1:
// v is the error variance and H the matrix of second derivatives of the sum of squares by free
// weights and starting components together, so that the uncertainty of the starting components
// counts. This is the observed information, which ARIMA software reports too; v (J'J)^-1 with the
// Jacobian J of the errors is its first-order approximation (Seber and Wild 1989, "Nonlinear
// regression", chapter 2). A weight on its bound is taken as known and has a missing standard
// error; so has one that the errors do not depend on, and so have all where H is not positive
// definite or nothing but rounding is left of the errors. Of more than 600 starting components
// those of the season are held.
//
//   ESForecastState state({.spec = ESModelSpec(ESModelSpec::ForKind(ESModelSpec::kSimple, 1)),
//                          .estimates = {0.3},
//                          .std_errors = {0.1},
//                          .smoothed = {.level = 10}});
class TSF_EXPORT ESForecastState : public ForecastState {
 public:
  // The smoothed components after the last case. With q = level + phi * trend (phi 1 where the
  // trend is not damped, trend 0 where there is none), the one-step forecast is
  //   q                  without a season,
  //   q + season[phase]  with an additive season,
  //   q * season[phase]  with a multiplicative one.
  // `season` holds one value per position of the cycle, counted from the first case of the fit, so
  // season[0] belongs to that case's position; the fit starts at the first case that is not
  // missing. `phase` is the index of the position that the first period after the end of the series
  // falls on; h steps ahead it is (phase + h - 1) mod length. The seasonal values have mean 0 when
  // additive and mean 1 when multiplicative, level and trend being scaled to match. Brown's model:
  // `level` is the single-smoothed series and `trend` the slope, so that with weight a the forecast
  // h steps ahead is level + trend * (h - 1 + 1 / a).
  struct SmState {
    double level = 0;
    double trend = 0;
    std::uint64_t phase = 0;
    std::valarray<double> season{};
  };

  struct Fields {
    ESModelSpec spec{};
    std::valarray<double> estimates{};
    std::valarray<double> std_errors{};
    SmState smoothed{};
  };

  ESForecastState() = default;
  explicit ESForecastState(Fields fields) : fields_(std::move(fields)) {}

  const ESModelSpec& GetESModelSpec() const { return fields_.spec; }
  const SmState& GetSmState() const { return fields_.smoothed; }

  void Accept(ForecastStateVisitor& visitor) const override;
  const std::valarray<double>& GetParameterEstimates() const override { return fields_.estimates; }
  const std::valarray<double>& GetParameterStdErrors() const override { return fields_.std_errors; }

 private:
  Fields fields_;
};

#endif  // TSFCORE_ESFORECASTSTATE_H_
