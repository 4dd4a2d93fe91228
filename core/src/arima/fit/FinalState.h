#ifndef TSFFIT_ARIMA_FIT_FINALSTATE_H_
#define TSFFIT_ARIMA_FIT_FINALSTATE_H_

#include <memory>
#include <vector>

#include <tsfcore/ARMAForecastState.h>

#include "arima/fit/Likelihood.h"

namespace tsffit {

// The solution run over the data once more: one-step forecasts of Z, one per case, missing before
// the first; and their errors over the roots of their relative variances, missing where the case is
// too.
struct ArimaReplay {
  std::vector<double> predictions{};
  std::vector<double> standardised{};
};
ArimaReplay ReplayArima(const Likelihood& likelihood, const Evaluation& solution);

// The forecast state at the end of the data. `common` comes with specification, estimates, standard
// errors and periods; the histories are added, then what the method keeps.
std::unique_ptr<ForecastState> MakeArimaState(const Likelihood& likelihood,
                                              const Evaluation& solution, const ArimaReplay& replay,
                                              ARMAForecastState::Common common);

}  // namespace tsffit

#endif  // TSFFIT_ARIMA_FIT_FINALSTATE_H_
