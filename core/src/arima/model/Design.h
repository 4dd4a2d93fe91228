#ifndef TSFFIT_ARIMA_MODEL_DESIGN_H_
#define TSFFIT_ARIMA_MODEL_DESIGN_H_

#include <Eigen/Core>
#include <cstddef>
#include <span>
#include <vector>

#include <tsfcore/AMModelSpec.h>

#include "math/Polynomial.h"

namespace tsffit {

// The data of one fit on the modelled scale: first case observed, missing cases MV::gMissingValue.
struct ArimaData {
  std::vector<double> series{};                   // f(y), over `unit`
  std::vector<std::vector<double>> predictors{};  // f_i(x_i), as long as the series
  double unit = 1;
};

// The regression that a model makes of its data: series and linear effects on the differenced
// scale, one row for each period from FirstPeriod on.
class Design {
 public:
  Design(const AMModelSpec& spec, ArimaData data);

  const AMModelSpec& Spec() const { return spec_; }
  const ArimaData& Data() const { return data_; }
  const Polynomial& Difference() const { return difference_; }
  std::size_t First() const { return first_; }
  std::size_t Rows() const { return data_.series.size() - first_; }

  // Position in the parameter vector of each linear coefficient, in rising order.
  const std::vector<std::size_t>& LinearPositions() const { return linear_; }

  // One column for each linear coefficient: its effect, for a coefficient of 1, on the differenced
  // series. Depends on the searched coefficients where there are denominators, seasonal numerators,
  // decays or innovational outliers.
  Eigen::MatrixXd Effects(std::span<const double> parameters) const;
  bool EffectsAreFixed() const;

  // The differenced series, in missing cases made of the value before them.
  Eigen::VectorXd Differenced() const;

  // The same as the first column, then one for each of MissingCases(): what minus 1 in its place
  // adds to the differenced series.
  Eigen::MatrixXd DifferencesWithMissing() const;

  // Which rows are missing, and which cases from First() - m on, m the degree of the differencing.
  const std::vector<bool>& MissingRows() const { return missing_rows_; }
  const std::vector<std::size_t>& MissingCases() const { return missing_cases_; }
  bool IsComplete() const { return missing_cases_.empty(); }

  // Values of Z before the first row, newest first; as many as the degree of the differencing.
  Eigen::VectorXd LagsBeforeFirst() const;

  // Z in the rows; 0 where missing.
  Eigen::VectorXd Undifferenced() const;

  // Sums columns up to the scale of Z, from 0 before the first row.
  Eigen::MatrixXd Integrated(const Eigen::MatrixXd& columns) const;

 private:
  void AddPredictor(unsigned i, std::span<const double> parameters, Eigen::MatrixXd& effects,
                    Eigen::Index& column) const;
  void AddOutlier(unsigned j, std::span<const double> parameters, Eigen::MatrixXd& effects,
                  Eigen::Index& column) const;

  AMModelSpec spec_;
  ArimaData data_;
  Polynomial difference_;
  std::size_t first_;
  std::vector<std::vector<double>> differenced_predictors_;
  std::vector<std::size_t> linear_;
  std::vector<bool> missing_rows_;
  std::vector<std::size_t> missing_cases_;
};

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_MODEL_DESIGN_H_
