#ifndef TSFCORE_FORECASTSTATE_H_
#define TSFCORE_FORECASTSTATE_H_

#include <valarray>

#include <tsfcore/Export.h>

class ForecastStateVisitor;

// What a fit leaves behind for forecasting to go on from: the model specification, the estimates
// and the final state. Four classes derive from it, one per way of fitting; all are values, built
// from a struct of fields and then only read.
class TSF_EXPORT ForecastState {
 public:
  virtual ~ForecastState();

  // Calls the Visit() of `visitor` for this state's class.
  virtual void Accept(ForecastStateVisitor& visitor) const = 0;

  // The parameter vector, in the positions that the specification tells; a value may be missing.
  virtual const std::valarray<double>& GetParameterEstimates() const = 0;

  // Standard errors in the same positions. Missing where undefined (a weight on its bound, a
  // singular Hessian); the vector may be shorter than the estimates.
  virtual const std::valarray<double>& GetParameterStdErrors() const = 0;

 protected:
  ForecastState() = default;
  ForecastState(const ForecastState&) = default;
  ForecastState& operator=(const ForecastState&) = default;
};

#endif  // TSFCORE_FORECASTSTATE_H_
