#ifndef TSXPORT_MODELS_MODELCHOICE_H_
#define TSXPORT_MODELS_MODELCHOICE_H_

#include <memory>
#include <string>
#include <vector>

#include "models/ModelClass.h"

// Which model a series gets.
namespace tsx::models {

// One kind that was tried.
struct Candidate {
  const KindInfo* kind = nullptr;
  bool fitted = false;
  Fault refusal{};  // why it was not fitted: at the value to blame, or the first one of the series
  double bic = 0;   // normalised BIC of kinds that are compared; minus infinity for a perfect fit
};

// Why a series has the model that it has.
struct Choice {
  enum class Reason {
    kAskedFor,         // no choice was left
    kClaimed,          // the series is one for its class: `claim`
    kSearched,         // lowest criterion of all models of a search: `search`
    kAlone,            // no other kind could be fitted
    kPerfect,          // the simplest of the `kinds` that fit without error
    kLowestCriterion,  // lowest normalised BIC of the `kinds`
  };
  Reason reason = Reason::kAskedFor;
  Claim claim{};
  Search search{};
  std::size_t kinds = 0;
  double bic = 0;                  // may be infinite: undefined
  const KindInfo* next = nullptr;  // the second best
  double next_bic = 0;
};

// What became of a series.
struct SeriesFit {
  const Series* series = nullptr;
  unsigned season_length = 1;
  std::vector<Candidate> candidates;  // those tried, the simplest first; empty: none could be
  const KindInfo* kind = nullptr;     // of the model
  std::unique_ptr<const FittedModel> model;  // null: hopeless, and the fault says why
  Choice choice;
  Fault fault;
};

inline bool IsHopeless(const SeriesFit& fit) { return fit.model == nullptr; }

// Why the series cannot get what is asked for, before any fit.
Fault FindFault(const Task& task);

// Fits the kind asked for. Where none is, a series that a class claims gets a model of that class,
// and any other each kind that is compared and goes with it, of which the one with the lowest
// normalised BIC is kept; the simpler one when two tie. Kinds with a season go with a series when
// there is one of at least 2 and no case is left out as a gap.
// The series must outlive the fit. Never throws on data; threads may call it side by side.
SeriesFit FitSeries(const Series& series, const ModelRequest& request);

// Which of the kinds that were tried for comparison is best, and why. At least one was fitted.
Choice ChoiceAmong(const std::vector<Candidate>& candidates);

}  // namespace tsx::models

#endif  // TSXPORT_MODELS_MODELCHOICE_H_
