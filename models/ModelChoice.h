#ifndef TSXPORT_MODELS_MODELCHOICE_H_
#define TSXPORT_MODELS_MODELCHOICE_H_

#include <string>
#include <vector>

#include <tsfcore/EstimationInfo.h>
#include <tsfcore/TSFCrModel.h>
#include <tsfcore/TSFModel.h>
#include <tsfcore/TSTransformation.h>
#include <tsffit/Forecast.h>

#include "cli/Errors.h"
#include "cli/table/TableSeries.h"
#include "models/Kinds.h"
#include "models/arima/ArimaRequest.h"

// Which model a series gets.
namespace tsx::cli {

struct ModelRequest {
  const KindInfo* kind = nullptr;  // null: choose one
  unsigned season_length = 0;      // 0: the calendar's own
  int function_type = TSTransformation::kNone;
  ArimaRequest arima{};  // of kind ArimaKind()
  // Periods that will be asked for, as far ahead as predictors must be known.
  unsigned horizon = 0;
};

// Whether the model is chosen by what the series is rather than asked for.
bool LeavesChoice(const ModelRequest& request);

// One kind that was tried.
struct Candidate {
  const KindInfo* kind = nullptr;
  bool fitted = false;
  std::string refusal;     // why it was not fitted
  text::Place refused_at;  // the value to blame, or the first one of the series
  double bic = 0;  // normalised BIC; minus infinity for a perfect fit; 0 for Croston's method
};

// How an ARIMA model was found.
struct ArimaNotes {
  bool converged = true;
  unsigned models_tried = 0;  // 0: the orders were given
  double aicc = 0;            // where they were searched for
  bool outliers_sought = false;
};

struct FittedSeries {
  const Series* series = nullptr;
  const SeriesPlaces* places = nullptr;  // of the series, for the places of faults
  unsigned season_length = 1;
  std::vector<Candidate> candidates;  // those tried, the simplest first; empty: none could be
  const KindInfo* kind = nullptr;     // null: hopeless, and the fault says why
  TSFModel model;                     // of a smoothing kind or ARIMA, else empty
  TSFCrModel croston;                 // of Croston's method, else empty
  ArimaNotes arima;                   // of ARIMA
  std::string fault;
  text::Place fault_place;
};

// How often a series is zero.
struct ZeroCount {
  std::size_t zeros = 0;
  std::size_t cases = 0;  // that are not missing
  bool intermittent = false;
};

// Demand is intermittent when at least 30 % of the cases are zero, none is negative and some are
// above 0.
ZeroCount CountZeros(const Series& series);

// "67 of 120 cases are zero and none is negative", for people.
std::string ZerosText(const ZeroCount& count);

// Fits the kind asked for. Where none is, intermittent demand gets Croston's method; its errors are
// of another sort than those of smoothing, so no criterion decides between them. Any other series
// gets each kind of smoothing that goes with it, and the one with the lowest normalised BIC is
// kept; the simpler one when two tie. What goes with a series: seasonal kinds when there is a
// season of at least 2 and no case is left out as a gap; multiplicative seasons when nothing is
// transformed (a transformed series has additive seasons) and every value is positive.
// Never throws on data; threads may call it side by side.
FittedSeries FitSeries(const TableSeries& read, const ModelRequest& request);

// "lowest normalised BIC of 7 kinds: winters-additive 5.1, next holt 6.2", for people.
std::string ReasonForChoice(const FittedSeries& fitted);

// What the model of a series is called, for people: "Holt's linear trend", "ARIMA(0,1,1)".
std::string TitleOf(const FittedSeries& fitted);

// Of the model that a series got; none for a hopeless one. At most as many as the predictors allow.
tsffit::Forecasts ForecastsOf(const FittedSeries& fitted, unsigned horizon);
const EstimationInfo& EstimationOf(const FittedSeries& fitted);  // of a series that got a model

}  // namespace tsx::cli

#endif  // TSXPORT_MODELS_MODELCHOICE_H_
