#ifndef TSXPORT_MODELS_DESCRIPTION_H_
#define TSXPORT_MODELS_DESCRIPTION_H_

#include <string>
#include <vector>

#include <tsfcore/MV.h>
#include <tsfcore/TSTransformation.h>

// What a fitted model looks like, as plain rows of names and numbers that any report can print
// without knowing its class. Numbers that are undefined are missing (MV::gMissingValue). Names are
// as they came with the series; whoever prints them sees to what its medium cannot show.
namespace tsx::models {

// Why an estimate has no standard error.
enum class NoError { kUndefined, kOnBound, kNotEstimated };

// An estimate that is missing was left out of the model: the data could not tell it from others.
struct Estimate {
  std::string name;
  double value = MV::gMissingValue;
  double std_error = MV::gMissingValue;
  NoError no_error = NoError::kUndefined;  // where std_error is missing
};

// What the estimates of a model are.
enum class Estimates {
  kWeights,       // of a few, from 0 to 1
  kCoefficients,  // any number of them, of any size
};

// How a predictor enters the model.
struct Input {
  std::string name;
  int function_type = TSTransformation::kNone;
  unsigned delay = 0;  // in periods
  unsigned diff = 0;
  unsigned seasonal_diff = 0;
};

// Something that happened to the series.
struct Event {
  std::string type{};  // "level"
  std::string time{};
  bool lasts = false;                 // it changes what follows, too
  std::vector<Estimate> estimates{};  // its size, then what else there is to it, by name
};

struct Figure {
  std::string name;
  double value = MV::gMissingValue;
  const char* unit = "";
};

// Figures that belong together. They read NAME VALUE, NAME VALUE ... unless there is a sentence, in
// which each {} stands for the next one's value.
struct Figures {
  std::string label;  // "fit"
  std::vector<Figure> rows{};
  const char* sentence = nullptr;
  const char* without = "";  // what to say where there are no rows
};

struct Description {
  std::string name;   // short: "holt", "ARIMA(0,1,1)"
  std::string title;  // "Holt's linear trend"

  // What the title does not tell of, each left as it is where there is nothing to tell.
  unsigned season_length = 0;
  int function_type = TSTransformation::kNone;
  std::string method;  // "exact maximum likelihood"
  std::string basis;   // "20 demands"

  std::vector<std::string> warnings;

  Estimates estimates_are = Estimates::kCoefficients;
  std::vector<Estimate> estimates;
  std::string convention;  // how to read them

  std::vector<Input> predictors;
  bool outliers_sought = false;
  std::vector<Event> outliers;

  std::vector<Figures> figures;  // likelihood, fit, residuals, state
  std::vector<double> season;    // the state's seasonal values from that of the next case on
};

}  // namespace tsx::models

#endif  // TSXPORT_MODELS_DESCRIPTION_H_
