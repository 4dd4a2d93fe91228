#include "cli/options/ArimaTexts.h"

#include <algorithm>
#include <numeric>

#include "cli/options/TransformName.h"
#include "cli/options/ValueReader.h"
#include "models/arima/OutlierTypes.h"
#include "text/Quoting.h"
#include "text/Words.h"

namespace tsx::cli {

using models::ArimaOrders;
using models::FactorLags;
using models::Lags;
using models::OutlierRequest;
using models::PredictorRequest;

namespace {

constexpr std::string_view kArima = "arima";

Lags ReadLagList(ValueReader& in) {
  Lags lags;
  in.Expect('[');
  do {
    lags.push_back(in.Count(1, kLongestLag));
  } while (in.Take(','));
  in.Expect(']');
  std::sort(lags.begin(), lags.end());
  const auto twin = std::adjacent_find(lags.begin(), lags.end());
  if (twin != lags.end()) in.Fail("lag " + std::to_string(*twin) + " comes twice");
  return lags;
}

// An order, or a list of lags in brackets.
Lags ReadOrderOrLags(ValueReader& in) {
  if (in.Next('[')) return ReadLagList(in);
  Lags lags(in.Count(0, kHighestOrder));
  std::iota(lags.begin(), lags.end(), 1U);
  return lags;
}

void ReadParenthesis(ValueReader& in, Lags& ar, unsigned& diff, Lags& ma) {
  in.Expect('(');
  ar = ReadOrderOrLags(in);
  in.Expect(',');
  diff = in.Count(0, kMostDifferences);
  in.Expect(',');
  ma = ReadOrderOrLags(in);
  in.Expect(')');
}

// What a predictor's key sets: one of the members that is not null, else the transformation.
struct PredictorKey {
  unsigned PredictorRequest::*count = nullptr;
  unsigned most = 0;
  FactorLags PredictorRequest::*factor = nullptr;
  Lags FactorLags::*lags = nullptr;
};

constexpr PredictorKey Counts(unsigned PredictorRequest::*count, unsigned most) {
  return {.count = count, .most = most};
}

constexpr PredictorKey Lists(FactorLags PredictorRequest::*factor, Lags FactorLags::*lags) {
  return {.factor = factor, .lags = lags};
}

constexpr NamedValue<PredictorKey> kPredictorKeys[] = {
    {"delay", Counts(&PredictorRequest::delay, kLongestLag)},
    {"num", Lists(&PredictorRequest::numerator, &FactorLags::non_seasonal)},
    {"den", Lists(&PredictorRequest::denominator, &FactorLags::non_seasonal)},
    {"diff", Counts(&PredictorRequest::diff, kMostDifferences)},
    {"snum", Lists(&PredictorRequest::numerator, &FactorLags::seasonal)},
    {"sden", Lists(&PredictorRequest::denominator, &FactorLags::seasonal)},
    {"sdiff", Counts(&PredictorRequest::seasonal_diff, kMostDifferences)},
    {"transform", {}}};

void ReadPredictorKey(ValueReader& in, PredictorRequest& predictor,
                      std::vector<std::string_view>& seen) {
  const std::string_view name = in.Word();
  const PredictorKey key = in.Named(kPredictorKeys, name);
  if (std::find(seen.begin(), seen.end(), name) != seen.end()) {
    in.Fail(text::Quoted(name) + " comes twice");
  }
  seen.push_back(name);
  in.Expect('=');
  if (key.count != nullptr) {
    predictor.*key.count = in.Count(0, key.most);
    if (key.count != &PredictorRequest::delay) predictor.has_differences = true;
  } else if (key.factor != nullptr) {
    predictor.*key.factor.*key.lags = ReadOrderOrLags(in);
  } else {
    predictor.function_type = in.Named(kTransforms, in.Word());
  }
}

}  // namespace

bool LooksLikeArima(std::string_view text) {
  const std::string lower = text::AsciiLowercase(text::Trimmed(text));
  const std::string_view whole = lower;
  return whole.starts_with(kArima) && text::Trimmed(whole.substr(kArima.size())).starts_with('(');
}

ArimaOrders ParseArimaOrders(std::string_view text) {
  ValueReader in("--model", text, text::Trimmed(text).substr(kArima.size()));
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

  ValueReader in("--predictor", text, text.substr(colon + 1));
  std::vector<std::string_view> seen;
  do {
    ReadPredictorKey(in, predictor, seen);
  } while (in.Take(','));
  if (!in.AtEnd()) in.Expect(',');
  return predictor;
}

OutlierRequest ParseOutlier(std::string_view text) {
  const ValueReader in("--outlier", text, text);
  const std::size_t at = text.find('@');
  if (at == std::string_view::npos) in.Fail("there must be a '@' between type and time");
  const std::string_view timeText = text::Trimmed(text.substr(at + 1));
  const tsxtimes::ParsedTime time = tsxtimes::ParseTime(timeText);
  OutlierRequest outlier;
  outlier.text = text;
  outlier.type = in.Named(models::kOutlierTypes, text::Trimmed(text.substr(0, at)));
  if (!time.impossible.empty()) in.Fail(time.impossible);
  if (!time.value) in.Fail(text::Quoted(timeText) + " is not a time");
  outlier.time = *time.value;
  return outlier;
}

}  // namespace tsx::cli
