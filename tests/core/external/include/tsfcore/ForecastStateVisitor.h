#ifndef TSFCORE_FORECASTSTATEVISITOR_H_
#define TSFCORE_FORECASTSTATEVISITOR_H_

#include <tsfcore/Export.h>

class ARMACLSForecastState;
class ARMAMLForecastState;
class ARMAMLSpForecastState;
class ESForecastState;

// What a forecast state calls back from Accept(): the one operation for its own class. The state
// is borrowed for the duration of the call.
class TSF_EXPORT ForecastStateVisitor {
 public:
  virtual ~ForecastStateVisitor();

  virtual void Visit(const ESForecastState& state) = 0;
  virtual void Visit(const ARMACLSForecastState& state) = 0;
  virtual void Visit(const ARMAMLForecastState& state) = 0;
  virtual void Visit(const ARMAMLSpForecastState& state) = 0;
};

#endif  // TSFCORE_FORECASTSTATEVISITOR_H_
