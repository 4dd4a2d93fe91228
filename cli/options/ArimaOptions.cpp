#include "cli/options/ArimaOptions.h"

#include <algorithm>
#include <charconv>
#include <numeric>

#include "cli/Errors.h"
#include "cli/options/TransformName.h"
#include "text/Text.h"

namespace tsx::cli {
namespace {

// Takes pieces off the front of an option's text.
class OptionReader {
 public:
  OptionReader(const char* option, std::string_view whole, std::string_view rest)
      : option_(option), whole_(whole), rest_(rest) {
    SkipBlanks();
  }

  [[noreturn]] void Fail(const std::string& cause) const {
    throw UsageError(std::string(option_) + ": " + text::Quoted(whole_) + ": " + cause);
  }

  bool AtEnd() const { return rest_.empty(); }
  bool Next(char c) const { return rest_.starts_with(c); }

  bool Take(char c) {
    if (!Next(c)) return false;
    rest_.remove_prefix(1);
    SkipBlanks();
    return true;
  }

  void Expect(char c) {
    if (!Take(c)) FailWithout(std::string("a '") + c + "'");
  }

  // What stands before the next mark, or the end.
  std::string_view Word() {
    const std::string_view word = rest_.substr(0, rest_.find_first_of(",=()[]"));
    rest_.remove_prefix(word.size());
    return text::Trimmed(word);
  }

  unsigned Count(unsigned least, unsigned most) {
    const std::string wanted =
        "a whole number from " + std::to_string(least) + " to " + std::to_string(most);
    const std::string_view word = Word();
    if (word.empty()) FailWithout(wanted);
    unsigned value = 0;
    const char* const end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, value);
    const bool whole = error == std::errc() && stop == end;
    if (whole && least <= value && value <= most) return value;
    Fail(text::Quoted(word) + " is not " + wanted);
  }

  // An order, or a list of lags in brackets.
  Lags OrderOrLags() {
    if (Next('[')) return LagList();
    Lags lags(Count(0, kHighestOrder));
    std::iota(lags.begin(), lags.end(), 1U);
    return lags;
  }

 private:
  [[noreturn]] void FailWithout(const std::string& wanted) const {
    Fail("there must be " + wanted + (AtEnd() ? " at the end" : " before " + text::Quoted(rest_)));
  }

  Lags LagList() {
    Lags lags;
    Expect('[');
    do {
      lags.push_back(Count(1, kLongestLag));
    } while (Take(','));
    Expect(']');
    std::sort(lags.begin(), lags.end());
    const auto twin = std::adjacent_find(lags.begin(), lags.end());
    if (twin != lags.end()) Fail("lag " + std::to_string(*twin) + " comes twice");
    return lags;
  }

  void SkipBlanks() { rest_.remove_prefix(std::min(rest_.find_first_not_of(" \t"), rest_.size())); }

  const char* option_;
  std::string_view whole_;
  std::string_view rest_;
};

constexpr std::string_view kArima = "arima";

void ReadParenthesis(OptionReader& in, Lags& ar, unsigned& diff, Lags& ma) {
  in.Expect('(');
  ar = in.OrderOrLags();
  in.Expect(',');
  diff = in.Count(0, kMostDifferences);
  in.Expect(',');
  ma = in.OrderOrLags();
  in.Expect(')');
}

struct OutlierName {
  const char* name;
  int type;
};

constexpr OutlierName kOutlierNames[] = {{"additive", TSOutlierSpec::kAdditive},
                                         {"level", TSOutlierSpec::kLevel},
                                         {"transient", TSOutlierSpec::kTransient},
                                         {"seasonal-additive", TSOutlierSpec::kSeasonalAdditive},
                                         {"trend", TSOutlierSpec::kTrend},
                                         {"innovational", TSOutlierSpec::kInnovational}};

int OutlierTypeOf(std::string_view name, const OptionReader& in) {
  std::vector<std::string> known;
  for (const OutlierName& row : kOutlierNames) {
    if (name == row.name) return row.type;
    known.emplace_back(row.name);
  }
  in.Fail(text::Quoted(name) + " is none of " + text::Joined(known, ", "));
}

int FunctionTypeOf(std::string_view name, const OptionReader& in) {
  const std::optional<int> function = TransformByName(name);
  if (!function) in.Fail(text::Quoted(name) + " is none of " + kTransformNames);
  return *function;
}

// What a predictor's keys set: one of the members that is not null.
struct PredictorKey {
  std::string_view name;
  unsigned PredictorRequest::*count;
  unsigned most;
  FactorLags PredictorRequest::*factor;
  Lags FactorLags::*lags;
};

constexpr PredictorKey kPredictorKeys[] = {
    {"delay", &PredictorRequest::delay, kLongestLag, nullptr, nullptr},
    {"num", nullptr, 0, &PredictorRequest::numerator, &FactorLags::non_seasonal},
    {"den", nullptr, 0, &PredictorRequest::denominator, &FactorLags::non_seasonal},
    {"diff", &PredictorRequest::diff, kMostDifferences, nullptr, nullptr},
    {"snum", nullptr, 0, &PredictorRequest::numerator, &FactorLags::seasonal},
    {"sden", nullptr, 0, &PredictorRequest::denominator, &FactorLags::seasonal},
    {"sdiff", &PredictorRequest::seasonal_diff, kMostDifferences, nullptr, nullptr},
    {"transform", nullptr, 0, nullptr, nullptr}};

const PredictorKey& FindPredictorKey(std::string_view name, const OptionReader& in) {
  std::vector<std::string> known;
  for (const PredictorKey& key : kPredictorKeys) {
    if (key.name == name) return key;
    known.emplace_back(key.name);
  }
  in.Fail(text::Quoted(name) + " is none of " + text::Joined(known, ", "));
}

void ReadPredictorKey(OptionReader& in, PredictorRequest& predictor,
                      std::vector<std::string_view>& seen) {
  const PredictorKey& key = FindPredictorKey(in.Word(), in);
  if (std::find(seen.begin(), seen.end(), key.name) != seen.end()) {
    in.Fail(text::Quoted(key.name) + " comes twice");
  }
  seen.push_back(key.name);
  in.Expect('=');
  if (key.count != nullptr) {
    predictor.*key.count = in.Count(0, key.most);
    if (key.count != &PredictorRequest::delay) predictor.has_differences = true;
  } else if (key.factor != nullptr) {
    predictor.*key.factor.*key.lags = in.OrderOrLags();
  } else {
    predictor.function_type = FunctionTypeOf(in.Word(), in);
  }
}

}  // namespace

bool LooksLikeArima(std::string_view text) {
  const std::string lower = text::AsciiLowercase(text::Trimmed(text));
  const std::string_view whole = lower;
  return whole.starts_with(kArima) && text::Trimmed(whole.substr(kArima.size())).starts_with('(');
}

ArimaOrders ParseArimaOrders(std::string_view text) {
  OptionReader in("--model", text, text::Trimmed(text).substr(kArima.size()));
  ArimaOrders orders;
  ReadParenthesis(in, orders.ar.non_seasonal, orders.diff, orders.ma.non_seasonal);
  if (!in.AtEnd()) {
    ReadParenthesis(in, orders.ar.seasonal, orders.seasonal_diff, orders.ma.seasonal);
  }
  if (!in.AtEnd()) {
    in.Fail("nothing may follow the orders; --season gives the length of the season");
  }
  return orders;
}

PredictorRequest ParsePredictor(std::string_view text) {
  const std::size_t colon = text.rfind(':');
  const bool hasKeys =
      colon != std::string_view::npos && text.find('=', colon) != std::string_view::npos;
  PredictorRequest predictor;
  predictor.column = text::Trimmed(text.substr(0, hasKeys ? colon : text.size()));
  if (!hasKeys) return predictor;

  OptionReader in("--predictor", text, text.substr(colon + 1));
  std::vector<std::string_view> seen;
  do {
    ReadPredictorKey(in, predictor, seen);
  } while (in.Take(','));
  if (!in.AtEnd()) in.Expect(',');
  return predictor;
}

OutlierRequest ParseOutlier(std::string_view text) {
  const OptionReader in("--outlier", text, text);
  const std::size_t at = text.find('@');
  if (at == std::string_view::npos) in.Fail("there must be a '@' between type and time");
  const std::string_view timeText = text::Trimmed(text.substr(at + 1));
  const ParsedTime time = ParseTime(timeText);
  OutlierRequest outlier;
  outlier.text = text;
  outlier.type = OutlierTypeOf(text::Trimmed(text.substr(0, at)), in);
  if (!time.impossible.empty()) in.Fail(time.impossible);
  if (!time.value) in.Fail(text::Quoted(timeText) + " is not a time");
  outlier.time = *time.value;
  return outlier;
}

tsffit::ArimaMethod ParseArimaMethod(const std::string& text) {
  if (text == "ml") return tsffit::ArimaMethod::kMl;
  if (text == "ml-theta") return tsffit::ArimaMethod::kMlTheta;
  if (text == "cls") return tsffit::ArimaMethod::kCls;
  throw UsageError("--method: " + text::Quoted(text) + " is none of ml, ml-theta, cls");
}

std::string OutlierTypeName(int type) {
  for (const OutlierName& row : kOutlierNames) {
    if (row.type == type) return row.name;
  }
  return "";
}

}  // namespace tsx::cli
