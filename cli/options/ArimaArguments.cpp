#include "cli/options/ArimaArguments.h"

#include "cli/options/OptionCheck.h"

namespace tsx::cli {
namespace {

using tsffit::ArimaMethod;

constexpr NamedValue<ArimaMethod> kArimaMethods[] = {
    {"ml", ArimaMethod::kMl}, {"ml-theta", ArimaMethod::kMlTheta}, {"cls", ArimaMethod::kCls}};

constexpr OptionEntry<ArimaArguments> kOptions[] = {
    {{.shape = OptionShape::kFlag,
      .name = "--constant",
      .group = kArimaGroup,
      .help = "The differenced series has a mean. Default: it has one when nothing is differenced; "
              "auto-arima chooses"},
     &ArimaArguments::constant},
    {{.shape = OptionShape::kFlag,
      .name = "--no-constant",
      .group = kArimaGroup,
      .help = "It has none"},
     &ArimaArguments::no_constant},
    {{.shape = OptionShape::kValue,
      .name = "--method",
      .value_name = "METHOD",
      .group = kArimaGroup,
      .help = "ml (the default), exact maximum likelihood by the Kalman filter; ml-theta, the same "
              "by the innovations algorithm; or cls, conditional least squares. Only ml takes "
              "missing values",
      .choices = [] { return ChoicesIn(kArimaMethods); }},
     &ArimaArguments::method},
    {{.shape = OptionShape::kRepeated,
      .name = "--predictor",
      .value_name = "COLUMN[:KEY=VALUE,...]",
      .group = kArimaGroup,
      .help = "This column helps to explain every series; may be given several times. Keys: "
              "delay=N, periods before it takes effect; num=N, den=N, orders of the numerator "
              "beside its zero lag and of the denominator of its transfer function; diff=N, "
              "differences; snum=N, sden=N, sdiff=N, the same in seasons; transform=log or sqrt. "
              "Predictors are not differenced with the series: each has its own diff (auto-arima "
              "differences them all with it unless a diff or sdiff is given for one). A predictor "
              "has no missing values up to the last value of the series; rows behind that, in "
              "which the series is missing, tell its future, and forecasts reach as far as it is "
              "known (and the delay further)"},
     &ArimaArguments::predictors},
    {{.shape = OptionShape::kRepeated,
      .name = "--outlier",
      .value_name = "TYPE@TIME",
      .group = kArimaGroup,
      .help = "Something happened then; may be given several times. Types: additive, level, "
              "transient, seasonal-additive, trend, innovational. The time is written as in the "
              "table, or is the number of the case, from 1"},
     &ArimaArguments::outliers},
    {{.shape = OptionShape::kFlag,
      .name = "--detect-outliers",
      .group = kArimaGroup,
      .help = "Search for outliers, beside those that are given"},
     &ArimaArguments::detect_outliers}};
static_assert(AreSound<ArimaArguments>(kOptions));

}  // namespace

OptionTable<ArimaArguments> ArimaOptions() { return kOptions; }

ArimaMethod ParseArimaMethod(const std::string& text) {
  return CheckedChoice(RowOf(ArimaOptions(), &ArimaArguments::method), kArimaMethods, text);
}

}  // namespace tsx::cli
