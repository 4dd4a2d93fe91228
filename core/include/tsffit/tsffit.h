#ifndef TSFFIT_TSFFIT_H_
#define TSFFIT_TSFFIT_H_

// Fitting and forecasting with the embedded core.

#include <tsffit/Arima.h>
#include <tsffit/AutoArima.h>
#include <tsffit/Croston.h>
#include <tsffit/FitStatus.h>
#include <tsffit/Forecast.h>
#include <tsffit/Outliers.h>
#include <tsffit/Smoothing.h>
#include <tsffit/Version.h>

#endif  // TSFFIT_TSFFIT_H_
