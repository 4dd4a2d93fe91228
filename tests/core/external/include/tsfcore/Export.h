#ifndef TSFCORE_EXPORT_H_
#define TSFCORE_EXPORT_H_

// Marks what the forecasting core's shared library offers; everything else in it is hidden.
#define TSF_EXPORT __attribute__((visibility("default")))

#endif  // TSFCORE_EXPORT_H_
