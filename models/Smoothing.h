#ifndef TSXPORT_MODELS_SMOOTHING_H_
#define TSXPORT_MODELS_SMOOTHING_H_

#include "models/ModelClass.h"

namespace tsx::models {

// Exponential smoothing. All kinds that go with a series are compared: seasonal ones when it has a
// season and no gaps, multiplicative seasons when nothing is transformed (a transformed series has
// additive seasons).
class SmoothingClass final : public ModelClass {
 public:
  std::span<const KindInfo> Kinds() const override;
  DialectContent Content() const override { return DialectContent::kSmoothing; }
  std::string SeasonalPart(const KindInfo& kind, const ModelRequest& request) const override;
  Fitting Fit(const KindInfo& kind, const Task& task) const override;
  bool IsCompared(const KindInfo& kind, const ModelRequest& request) const override;
};

}  // namespace tsx::models

#endif  // TSXPORT_MODELS_SMOOTHING_H_
