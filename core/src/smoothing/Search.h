#ifndef TSFFIT_SMOOTHING_SEARCH_H_
#define TSFFIT_SMOOTHING_SEARCH_H_

#include <vector>

#include "smoothing/SmoothingProblem.h"

namespace tsffit {

struct SearchResult {
  std::vector<double> parameters;
  double sse = 0;
  int evaluations = 0;     // of the sum of squares, from the winning start
  int starts = 0;          // weight vectors tried
  bool converged = false;  // a search begun anew at the solution gained nothing
};

// Looks for the least sum of squares over weights and starting components: tries weights spread
// over the box with the starting components solved for, follows the best of them, and the best of
// those to the end. Stops at once when a sum is at most `exactSse`: what is left is rounding.
// Deterministic.
SearchResult Search(SmoothingProblem& problem, double exactSse);

}  // namespace tsffit

#endif  // TSFFIT_SMOOTHING_SEARCH_H_
