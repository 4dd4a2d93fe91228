#ifndef TSXPORT_MODELS_ESTIMATIONFIGURES_H_
#define TSXPORT_MODELS_ESTIMATIONFIGURES_H_

#include <tsfcore/EstimationInfo.h>

#include "models/Description.h"

// What the record of any estimation says.
namespace tsx::models {

Figures LikelihoodFigures(const EstimationInfo& info);
Figures FitFigures(const EstimationInfo& info);
Figures ResidualFigures(const EstimationInfo& info);

}  // namespace tsx::models

#endif  // TSXPORT_MODELS_ESTIMATIONFIGURES_H_
