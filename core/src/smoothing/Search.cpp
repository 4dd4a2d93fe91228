#include "smoothing/Search.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "smoothing/Starts.h"

namespace tsffit {

namespace {

struct Candidate {
  Eigen::VectorXd parameters;
  SolverSummary summary;
};

// Solves for the starting components at fixed weights. Where the errors are affine in them one
// step does; else two bring them near enough to rank the weights.
Candidate SolveStart(const SmoothingProblem& problem, const std::vector<double>& weights,
                     const Components& rough, double exactSse) {
  SolverOptions options;
  options.max_iterations = problem.Traits().season == Season::kMultiplicative ? 2 : 1;
  options.exact_sse = exactSse;
  options.initial_damping = 1e-9;
  options.hold_weights = true;
  Candidate candidate{problem.Pack(weights, rough), {}};
  candidate.summary = Minimise(problem, options, candidate.parameters);
  return candidate;
}

void Follow(const SmoothingProblem& problem, int iterations, double exactSse,
            std::vector<Candidate>& candidates, int count) {
  SolverOptions options;
  options.max_iterations = iterations;
  options.exact_sse = exactSse;
  candidates.resize(std::min(candidates.size(), static_cast<std::size_t>(count)));
  for (Candidate& candidate : candidates) {
    const int before = candidate.summary.iterations;
    candidate.summary = Minimise(problem, options, candidate.parameters);
    candidate.summary.iterations += before;
  }
  std::stable_sort(candidates.begin(), candidates.end(), [](const auto& a, const auto& b) {
    return a.summary.sse < b.summary.sse;
  });
}

}  // namespace

SearchResult Search(const SmoothingProblem& problem, const SearchOptions& options) {
  const Components rough = RoughStart(problem);
  std::vector<Candidate> candidates;
  int starts = 0;
  for (const auto& weights : SpreadWeights(problem.Traits())) {
    ++starts;
    candidates.push_back(SolveStart(problem, weights, rough, options.exact_sse));
    if (candidates.back().summary.sse <= options.exact_sse) {
      return {candidates.back().parameters, candidates.back().summary, starts};
    }
  }
  std::stable_sort(candidates.begin(), candidates.end(), [](const auto& a, const auto& b) {
    return a.summary.sse < b.summary.sse;
  });
  Follow(problem, options.short_iterations, options.exact_sse, candidates, options.refined);
  Follow(problem, options.max_iterations, options.exact_sse, candidates, options.finished);
  return {candidates[0].parameters, candidates[0].summary, starts};
}

}  // namespace tsffit
