#ifndef TSFCORE_TSMODELSPEC_H_
#define TSFCORE_TSMODELSPEC_H_

#include <tsfcore/Export.h>
#include <tsfcore/TSTransformation.h>

// What every model specification answers, whatever its family. Specifications are values: built
// once from a struct of fields, then only read.
class TSF_EXPORT TSModelSpec {
 public:
  virtual ~TSModelSpec();

  // Length of the parameter vector. With `all` true every parameter counts; with false only those
  // that were estimated (parameters that the caller fixed are left out).
  virtual unsigned GetParameterCount(bool all) const = 0;

  // Periods in one season. With `effective` true the length that the model uses: 1 for a model
  // without a season; with false the length that was declared for the series.
  virtual unsigned GetSeasonLength(bool effective) const = 0;

  // Transformation of the dependent series.
  virtual const TSTransformation& GetYTransformSpec() const = 0;

 protected:
  TSModelSpec() = default;
  TSModelSpec(const TSModelSpec&) = default;
  TSModelSpec& operator=(const TSModelSpec&) = default;
};

#endif  // TSFCORE_TSMODELSPEC_H_
