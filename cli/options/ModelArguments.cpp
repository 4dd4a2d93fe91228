#include "cli/options/ModelArguments.h"

#include "cli/options/ModelMeaning.h"
#include "cli/options/OptionCheck.h"
#include "cli/options/TransformName.h"

namespace tsx::cli {
namespace {

constexpr OptionEntry<ModelArguments> kOptions[] = {
    {{.shape = OptionShape::kValue,
      .name = "--model",
      .value_name = "KIND",
      .group = kModelGroup,
      .help = "simple, brown, holt, damped-trend, simple-seasonal, winters-additive, "
              "winters-multiplicative; croston, for intermittent demand; arima(p,d,q), "
              "arima(p,d,q)(P,D,Q) or auto-arima, see below; or auto (the default), which takes "
              "croston where at least 30 % of the cases are zero and none is negative, and else "
              "fits all kinds of smoothing that go with the series and keeps the one with the "
              "lowest normalised BIC",
      .choices = ModelChoices},
     &ModelArguments::model},
    {{.shape = OptionShape::kValue,
      .name = "--season",
      .value_name = "N",
      .group = kModelGroup,
      .help = "Periods in one season, of ARIMA too; 1 for none. Default: what the calendar says, "
              "12 for months, 4 for quarters, 7 for days, 24 for hours. Another length is marked "
              "in the document as forced",
      .most = kLongestSeason},
     &ModelArguments::season},
    {{.shape = OptionShape::kValue,
      .name = "--transform",
      .value_name = "FUNCTION",
      .group = kModelGroup,
      .help = "Model the series as it is (none, the default), its natural logarithm (log) or its "
              "square root (sqrt); with croston, the sizes of the demands. Under log and sqrt, "
              "auto leaves out multiplicative seasons",
      .choices = [] { return ChoicesIn(kTransforms); }},
     &ModelArguments::transform}};
static_assert(AreSound<ModelArguments>(kOptions));

}  // namespace

OptionTable<ModelArguments> ModelOptions() { return kOptions; }

}  // namespace tsx::cli
