#ifndef TSFCORE_ESMODELSPEC_H_
#define TSFCORE_ESMODELSPEC_H_

#include <array>

#include <tsfcore/Export.h>
#include <tsfcore/TSModelSpec.h>

// Specification of an exponential smoothing model: its kind, its season, its transformation and
// where each smoothing weight stands in the parameter vector.
//
//   ESModelSpec spec(ESModelSpec::ForKind(ESModelSpec::kHolt, 1));
//   spec.GetParameterIndex(ESModelSpec::kTrend);   // 1: the vector is (level, trend)
//   spec.GetParameterIndex(ESModelSpec::kSeason);  // -1: Holt's model has no such weight
class TSF_EXPORT ESModelSpec : public TSModelSpec {
 public:
  enum Kind : int {
    kAdditiveWinters = 0,
    kBrown = 1,
    kDampedTrend = 2,
    kHolt = 3,
    kMultiplicativeWinters = 4,
    kSimpleSeasonal = 5,
    kSimple = 6,
  };

  enum Weight : int {
    kLevel = 0,
    kTrend = 1,
    kSeason = 2,
    kDamping = 3,
  };

  struct Fields {
    int kind = kSimple;
    unsigned season_length = 1;  // as declared; kinds without a season ignore it
    TSTransformation y_transform{};
    // Position of each Weight in the parameter vector, -1 where the model has no such weight.
    std::array<int, 4> weight_index = {-1, -1, -1, -1};
    unsigned parameter_count = 0;  // all weights, estimated or fixed
    unsigned fixed_count = 0;      // those of them that the caller fixed
  };

  // The fields of `kind` with its weights in the order level, trend, season, damping; a code that
  // is no Kind gets no weights.
  static Fields ForKind(int kind, unsigned seasonLength,
                        int functionType = TSTransformation::kNone);

  ESModelSpec() = default;
  explicit ESModelSpec(const Fields& fields) : fields_(fields) {}

  int GetKind() const { return fields_.kind; }

  // Position of `weight` in the parameter vector, counted from 0; -1 when the model has none.
  int GetParameterIndex(int weight) const;

  unsigned GetParameterCount(bool all) const override;
  unsigned GetSeasonLength(bool effective) const override;
  const TSTransformation& GetYTransformSpec() const override { return fields_.y_transform; }

 private:
  Fields fields_;
};

#endif  // TSFCORE_ESMODELSPEC_H_
