#ifndef TSFCORE_ARMACLSFORECASTSTATE_H_
#define TSFCORE_ARMACLSFORECASTSTATE_H_

#include <utility>
#include <valarray>

#include <tsfcore/ARMAForecastState.h>
#include <tsfcore/Export.h>

// State of an ARIMA model fitted by conditional least squares.
class TSF_EXPORT ARMACLSForecastState : public ARMAForecastState {
 public:
  struct Fields {
    Common common{};
    std::valarray<double> actual_n{};     // the last max(p, q) values of N
    std::valarray<double> predicted_n{};  // their one-step forecasts; equal to the values in the
                                          // cases that are conditioned upon
  };

  ARMACLSForecastState() = default;
  explicit ARMACLSForecastState(Fields fields)
      : ARMAForecastState(std::move(fields.common)),
        actual_n_(std::move(fields.actual_n)),
        predicted_n_(std::move(fields.predicted_n)) {}

  const std::valarray<double>& GetActualN() const { return actual_n_; }
  const std::valarray<double>& GetPredN() const { return predicted_n_; }

  void Accept(ForecastStateVisitor& visitor) const override;

 private:
  std::valarray<double> actual_n_;
  std::valarray<double> predicted_n_;
};

#endif  // TSFCORE_ARMACLSFORECASTSTATE_H_
