#ifndef TSXPORT_PMML_WRITE_SMOOTHEDSTATE_H_
#define TSXPORT_PMML_WRITE_SMOOTHEDSTATE_H_

#include <vector>

#include <tsfcore/ESForecastState.h>

namespace tsx::pmml {

// The final state of a smoothing model as PMML sees it: which components there are, and their
// values. Unlike time-series XML, a state with holes is written as far as it goes.
struct SmoothedState {
  bool has_level = false;
  bool has_trend = false;
  bool has_season = false;
  double level = 0;
  double trend = 0;
  double phase = 0;
  double season_length = 1;  // number of seasonal values, 1 when there are none
  std::vector<double> season{};
  double phi = 0;  // estimate of the damping, 0 when there is none
};

// Of no state (null) nothing is there.
SmoothedState ReadSmoothedState(const ESForecastState* state);

}  // namespace tsx::pmml

#endif  // TSXPORT_PMML_WRITE_SMOOTHEDSTATE_H_
