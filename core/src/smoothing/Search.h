#ifndef TSFFIT_SMOOTHING_SEARCH_H_
#define TSFFIT_SMOOTHING_SEARCH_H_

#include <Eigen/Core>

#include "smoothing/BoundedLeastSquares.h"
#include "smoothing/LeastSquares.h"

namespace tsffit {

struct SearchOptions {
  double exact_sse = 0;     // a sum of squares at or below this is rounding alone
  int refined = 8;          // best starts that are followed for a few iterations
  int short_iterations = 8;
  int finished = 3;         // best of those that are followed to the end
  int max_iterations = 200;
};

struct SearchResult {
  Eigen::VectorXd parameters;
  SolverSummary summary;
  int starts = 0;
};

// Looks for the least sum of squares over weights and starting components: solves for the
// components at weights spread over the box, then follows the best of them. Deterministic.
SearchResult Search(const SmoothingProblem& problem, const SearchOptions& options);

}  // namespace tsffit

#endif  // TSFFIT_SMOOTHING_SEARCH_H_
