#ifndef TSFCORE_ARMAMLFORECASTSTATE_H_
#define TSFCORE_ARMAMLFORECASTSTATE_H_

#include <utility>
#include <valarray>

#include <tsfcore/ARMAForecastState.h>
#include <tsfcore/DSymMat.h>
#include <tsfcore/Export.h>

// State of an ARIMA model fitted by exact maximum likelihood with the Kalman filter: the filtered
// state vector and its covariance at the last period.
//
// The vector holds alpha_0 .. alpha_(r-1), r = max(p, q + 1), in Harvey's form (1989, "Forecasting,
// structural time series models and the Kalman filter", section 3.3):
//
//   alpha_0(t) = N_t,   alpha_i(t) = phi_(i+1) N_(t-1) + alpha_(i+1)(t-1) - theta_i a_t
//
// and, only when one of the last m values of Z is missing, Z_t, Z_(t-1), .. Z_(t-m+1), newest
// first.
class TSF_EXPORT ARMAMLForecastState : public ARMAForecastState {
 public:
  struct Fields {
    Common common{};
    DSymMat final_omega{};  // of the vector's error, in units of the error variance
    std::valarray<double> final_state{};
  };

  ARMAMLForecastState() = default;
  explicit ARMAMLForecastState(Fields fields)
      : ARMAForecastState(std::move(fields.common)),
        final_omega_(std::move(fields.final_omega)),
        final_state_(std::move(fields.final_state)) {}

  const DSymMat& GetFinalOmega() const { return final_omega_; }
  const std::valarray<double>& GetFinalStateV() const { return final_state_; }

  void Accept(ForecastStateVisitor& visitor) const override;

 private:
  DSymMat final_omega_;
  std::valarray<double> final_state_;
};

#endif  // TSFCORE_ARMAMLFORECASTSTATE_H_
