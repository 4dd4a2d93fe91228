#ifndef TSFCORE_ARMAMLFORECASTSTATE_H_
#define TSFCORE_ARMAMLFORECASTSTATE_H_

#include <utility>
#include <valarray>

#include <tsfcore/ARMAForecastState.h>
#include <tsfcore/DSymMat.h>
#include <tsfcore/Export.h>

// State of an ARIMA model fitted by exact maximum likelihood with the Kalman filter: the filtered
// state vector and its covariance at the last period.
class TSF_EXPORT ARMAMLForecastState : public ARMAForecastState {
 public:
  struct Fields {
    Common common{};
    DSymMat final_omega{};
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
