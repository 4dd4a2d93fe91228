#ifndef TSFFIT_ARIMA_FIT_SEARCH_H_
#define TSFFIT_ARIMA_FIT_SEARCH_H_

#include <vector>

#include "arima/fit/Likelihood.h"
#include "arima/fit/SearchSpace.h"

namespace tsffit {

struct ArimaSearchResult {
  Evaluation best{};
  int evaluations = 0;
  int starts = 0;
  bool converged = false;  // a search begun anew at the solution gained nothing
};

struct ArimaSolution {
  SearchSpace space;  // of the coefficients searched for
  ArimaSearchResult found{};
};

// The most likely point of the model of `likelihood`. A transient outlier is left out of
// `likelihood` when its decay goes to an end of its range and nothing but ever larger sizes would
// keep up its effect: to 0 when it begins in a case that the likelihood does not see, to 1 when it
// begins where a shift of the level shows in nothing.
ArimaSolution SolveArima(Likelihood& likelihood);

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_FIT_SEARCH_H_
