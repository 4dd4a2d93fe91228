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
  // season[0] belongs to that case's position. `phase` is the index of the position that the first
  // period after the end of the series falls on; h steps ahead it is (phase + h - 1) mod length.
  // Brown's model: `level` is the single-smoothed series and `trend` the slope, so that with
  // weight a the forecast h steps ahead is level + trend * (h - 1 + 1 / a).
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
