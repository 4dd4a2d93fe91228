#ifndef TSFCORE_ARMAFORECASTSTATE_H_
#define TSFCORE_ARMAFORECASTSTATE_H_

#include <cstdint>
#include <utility>
#include <valarray>
#include <vector>

#include <tsfcore/AMModelSpec.h>
#include <tsfcore/Export.h>
#include <tsfcore/ForecastState.h>

// What the three ARIMA states have in common: specification, estimates, and the ends of the
// series that forecasting goes on from.
//
// In the terms of AMModelSpec: Z is the transformed dependent series, D(B) its differencing of
// degree m, D(B) Z = c + transfer functions + D(B) outliers + N, and phi(B) N = theta(B) a with phi
// and theta of degrees p and q, both factors multiplied out. Every list is in order of time, oldest
// value first, and ends with the case that the state stands at. What a core fills in that way can
// be forecast from without its data; the embedded core does (tsffit/Arima.h), with a period deficit
// of 0.
class TSF_EXPORT ARMAForecastState : public ForecastState {
 public:
  // The periods that the state was made from.
  struct PeriodRecord {
    std::uint64_t start_index = 0;     // first period of the fit
    std::uint64_t length = 0;          // periods of the fit
    std::uint64_t period_deficit = 0;  // periods by which the state stands before the series' end
  };

  // The last values of one predictor and of its transfer function's output.
  struct XHistory {
    // After its transformation, before its differencing: as many as the degree of the differencing,
    // the delay and the degree of the numerator together.
    std::valarray<double> predictor{};
    // On the differenced scale of the dependent series: as many as the degree of the denominator.
    std::valarray<double> transfer_function{};
  };

  struct Common {
    AMModelSpec spec{};
    std::valarray<double> estimates{};
    std::valarray<double> std_errors{};
    PeriodRecord period{};
    std::vector<XHistory> x_history{};    // one per predictor; may be shorter
    std::valarray<double> actual_z{};     // the last max(m, 1) values of Z
    std::valarray<double> predicted_z{};  // their one-step forecasts
  };

  const AMModelSpec& GetAMModelSpec() const { return common_.spec; }
  const PeriodRecord& GetPeriodRecord() const { return common_.period; }

  // Sets the outputs to the histories of predictor `i`, owned by this state; null when it has none.
  void GetXHistory(unsigned int i, const std::valarray<double>*& predictor,
                   const std::valarray<double>*& transferFunction) const;

  const std::valarray<double>& GetActualZ() const { return common_.actual_z; }
  const std::valarray<double>& GetPredZ() const { return common_.predicted_z; }

  const std::valarray<double>& GetParameterEstimates() const override { return common_.estimates; }
  const std::valarray<double>& GetParameterStdErrors() const override { return common_.std_errors; }

 protected:
  ARMAForecastState() = default;
  explicit ARMAForecastState(Common common) : common_(std::move(common)) {}

 private:
  Common common_;
};

#endif  // TSFCORE_ARMAFORECASTSTATE_H_
