#ifndef TSFCORE_ARMAMLSPFORECASTSTATE_H_
#define TSFCORE_ARMAMLSPFORECASTSTATE_H_

#include <cstdint>
#include <utility>
#include <valarray>
#include <vector>

#include <tsfcore/ARMAForecastState.h>
#include <tsfcore/Export.h>

// State of an ARIMA model fitted by exact maximum likelihood with the innovations algorithm: the
// last rows of the theta recursion (Brockwell and Davis 1991, "Time series: theory and methods",
// section 5.3), whose thetas multiply prediction errors with a plus sign.
class TSF_EXPORT ARMAMLSpForecastState : public ARMAForecastState {
 public:
  struct Fields {
    Common common{};
    std::valarray<double> actual_n{};     // the last max(p, q) values of N
    std::valarray<double> predicted_n{};  // their one-step forecasts
    // Values of N that the recursion has seen: k.
    std::uint64_t final_iteration_count = 0;
    // Rows k - q .. k - 1: row i, theta(i, 1) .. theta(i, q), predicts value i + 1. Where i is
    // below max(p, q) the row is theta(i, 1) .. theta(i, i).
    std::vector<std::vector<double>> final_thetas{};
    // The variances of these rows' predictions, in units of the error variance.
    std::vector<double> final_nu{};
  };

  ARMAMLSpForecastState() = default;
  explicit ARMAMLSpForecastState(Fields fields)
      : ARMAForecastState(std::move(fields.common)),
        actual_n_(std::move(fields.actual_n)),
        predicted_n_(std::move(fields.predicted_n)),
        final_iteration_count_(fields.final_iteration_count),
        final_thetas_(std::move(fields.final_thetas)),
        final_nu_(std::move(fields.final_nu)) {}

  const std::valarray<double>& GetActualN() const { return actual_n_; }
  const std::valarray<double>& GetPredN() const { return predicted_n_; }
  std::uint64_t GetFinalIterCount() const { return final_iteration_count_; }
  const std::vector<std::vector<double>>& GetFinalThetas() const { return final_thetas_; }
  const std::vector<double>& GetFinalNu() const { return final_nu_; }

  void Accept(ForecastStateVisitor& visitor) const override;

 private:
  std::valarray<double> actual_n_;
  std::valarray<double> predicted_n_;
  std::uint64_t final_iteration_count_ = 0;
  std::vector<std::vector<double>> final_thetas_;
  std::vector<double> final_nu_;
};

#endif  // TSFCORE_ARMAMLSPFORECASTSTATE_H_
