#ifndef TSFFIT_SERIES_CONFIDENCEWIDTH_H_
#define TSFFIT_SERIES_CONFIDENCEWIDTH_H_

namespace tsffit {

// Half the width, in standard errors, of the limits about a normal mean that hold with probability
// `confidence`, which is above 0 and below 1. Finite for every such double.
double ConfidenceWidth(double confidence);

}  // namespace tsffit

#endif  // TSFFIT_SERIES_CONFIDENCEWIDTH_H_
