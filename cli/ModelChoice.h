#ifndef TSXPORT_CLI_MODELCHOICE_H_
#define TSXPORT_CLI_MODELCHOICE_H_

#include <string>
#include <vector>

#include <tsfcore/TSFModel.h>
#include <tsfcore/TSTransformation.h>

#include "cli/Errors.h"
#include "cli/Kinds.h"
#include "cli/Series.h"

// Which model a series gets.
namespace tsx::cli {

struct ModelRequest {
  const KindInfo* kind = nullptr;  // null: choose one
  unsigned season_length = 0;      // 0: the calendar's own
  int function_type = TSTransformation::kNone;
};

// One kind that was tried.
struct Candidate {
  const KindInfo* kind = nullptr;
  bool fitted = false;
  std::string refusal;  // why it was not fitted
  Place refused_at;     // the value to blame, or the first one of the series
  double bic = 0;       // normalised BIC; minus infinity for a perfect fit
};

struct FittedSeries {
  const Series* series = nullptr;
  unsigned season_length = 1;
  std::vector<Candidate> candidates;  // those tried, the simplest first; empty: none could be
  const KindInfo* kind = nullptr;     // null: hopeless, and the fault says why
  TSFModel model;                     // empty when hopeless
  std::string fault;
  Place fault_place;
};

// Fits the kind asked for, or each kind that goes with the series, and keeps the one with the
// lowest normalised BIC; the simpler one when two tie. What goes with a series: seasonal kinds when
// there is a season of at least 2 and no case is left out as a gap; multiplicative seasons when
// nothing is transformed (a transformed series has additive seasons) and every value is positive.
// Never throws on data; threads may call it side by side.
FittedSeries FitSeries(const Series& series, const ModelRequest& request);

// "lowest normalised BIC of 7 kinds: winters-additive 5.1, next holt 6.2", for people.
std::string ReasonForChoice(const FittedSeries& fitted);

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_MODELCHOICE_H_
