#include "cli/options/ArimaArguments.h"

#include <utility>

#include "cli/Errors.h"
#include "cli/options/ArimaOptions.h"
#include "cli/options/HelpPages.h"
#include "text/Text.h"

namespace tsx::cli {
namespace {

constexpr char kAutoArima[] = "auto-arima";

}  // namespace

const char kArimaModels[] = "arima(p,d,q), arima(p,d,q)(P,D,Q), auto-arima";

void AddArimaOptions(CLI::App& app, ArimaArguments& raw) {
  const auto add = [&app](const char* name, auto& value, const char* type, const char* text) {
    return app.add_option(name, value, text)->type_name(type)->group(kArimaGroup);
  };
  const auto addFlag = [&app](const char* name, bool& value, const char* text) {
    app.add_flag(name, value, text)->group(kArimaGroup);
  };
  addFlag("--constant", raw.constant,
          "The differenced series has a mean. Default: it has one when nothing is differenced; "
          "auto-arima chooses");
  addFlag("--no-constant", raw.no_constant, "It has none");
  add("--method", raw.method, "METHOD",
      "ml (the default), exact maximum likelihood by the Kalman filter; ml-theta, the same by the "
      "innovations algorithm; or cls, conditional least squares. Only ml takes missing values");
  add("--predictor", raw.predictors, "COLUMN[:KEY=VALUE,...]",
      "This column helps to explain every series; may be given several times. Keys: delay=N, "
      "periods before it takes effect; num=N, den=N, orders of the numerator beside its zero lag "
      "and of the denominator of its transfer function; diff=N, differences; snum=N, sden=N, "
      "sdiff=N, the same in seasons; transform=log or sqrt. Predictors are not differenced with "
      "the series: each has its own diff (auto-arima differences them all with it unless a diff "
      "or sdiff is given for one). A predictor has no missing values up to the last value "
      "of the series; rows behind that, in which the series is missing, tell its future, and "
      "forecasts reach as far as it is known (and the delay further)")
      ->expected(1)
      ->take_all();
  add("--outlier", raw.outliers, "TYPE@TIME",
      "Something happened then; may be given several times. Types: additive, level, transient, "
      "seasonal-additive, trend, innovational. The time is written as in the table, or is the "
      "number of the case, from 1")
      ->expected(1)
      ->take_all();
  addFlag("--detect-outliers", raw.detect_outliers,
          "Search for outliers, beside those that are given");
}

bool NamesArima(const std::string& model) { return model == kAutoArima || LooksLikeArima(model); }

ArimaRequest CheckedArima(const std::string& model, const ArimaArguments& raw) {
  ArimaRequest arima;
  arima.automatic = model == kAutoArima;
  if (!arima.automatic) arima.orders = ParseArimaOrders(model);
  if (raw.constant && raw.no_constant) {
    throw UsageError("--constant and --no-constant exclude each other");
  }
  if (raw.constant || raw.no_constant) arima.constant = raw.constant;
  if (!raw.method.empty()) arima.method = ParseArimaMethod(raw.method);
  for (const std::string& text : raw.predictors) arima.predictors.push_back(ParsePredictor(text));
  for (const std::string& text : raw.outliers) arima.outliers.push_back(ParseOutlier(text));
  arima.detect_outliers = raw.detect_outliers;
  return arima;
}

void CheckWithoutArima(const std::string& model, const ArimaArguments& raw) {
  const std::pair<const char*, bool> options[] = {
      {"--constant", raw.constant},         {"--no-constant", raw.no_constant},
      {"--method", !raw.method.empty()},    {"--predictor", !raw.predictors.empty()},
      {"--outlier", !raw.outliers.empty()}, {"--detect-outliers", raw.detect_outliers}};
  for (const auto& [name, given] : options) {
    if (!given) continue;
    throw UsageError(std::string(name) + " goes with --model arima(p,d,q) or " + kAutoArima +
                     ", not with --model " + text::Quoted(model));
  }
}

}  // namespace tsx::cli
