#ifndef TSFFIT_ARIMA_SEARCH_H_
#define TSFFIT_ARIMA_SEARCH_H_

#include <vector>

#include "arima/Likelihood.h"
#include "arima/SearchSpace.h"

namespace tsffit {

struct ArimaSearchResult {
  Evaluation best{};
  int evaluations = 0;
  int starts = 0;
  bool converged = false;  // a search begun anew at the solution gained nothing
};

// The most likely point of the space.
ArimaSearchResult SearchArima(const Likelihood& likelihood, const SearchSpace& space);

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_SEARCH_H_
