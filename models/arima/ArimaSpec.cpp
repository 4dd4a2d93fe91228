#include "models/arima/ArimaSpec.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "models/Transformation.h"
#include "models/arima/OutlierTime.h"
#include "text/Words.h"

namespace tsx::models {
namespace {

AMPowers PowersOf(const Lags& lags, unsigned season) {
  std::vector<std::uint32_t> powers = lags;
  for (std::uint32_t& power : powers) power *= season;
  return AMPowers(std::move(powers));
}

AMModelSpec::Factor FactorOf(const FactorLags& lags, unsigned season) {
  return {.non_seasonal = PowersOf(lags.non_seasonal, 1),
          .seasonal = PowersOf(lags.seasonal, season)};
}

AMModelSpec::Predictor PredictorOf(const PredictorRequest& request, unsigned season) {
  return {.transform = TSTransformation(request.function_type),
          .non_seasonal_diff = request.diff,
          .seasonal_diff = request.seasonal_diff,
          .delay = request.delay,
          .numerator = FactorOf(request.numerator, season),
          .denominator = FactorOf(request.denominator, season)};
}

TSOutlierSpecList OutliersOf(const ArimaRequest& request, const Series& series) {
  std::vector<TSOutlierSpec> outliers;
  for (const OutlierRequest& outlier : request.outliers) {
    outliers.emplace_back(outlier.type, static_cast<long>(*IndexOfOutlier(series, outlier)));
  }
  return TSOutlierSpecList(std::move(outliers));
}

// An order where the lags are 1 to p, else the lags in brackets.
std::string OrderText(const AMPowers& powers, unsigned season) {
  const unsigned count = powers.GetCount();
  if (count == 0 || powers.GetPower(count - 1) == count * season) return std::to_string(count);
  std::vector<std::string> lags;
  for (unsigned i = 0; i < count; ++i) lags.push_back(std::to_string(powers.GetPower(i) / season));
  return "[" + text::Joined(lags, ",") + "]";
}

std::string Parenthesis(const std::string& ar, unsigned diff, const std::string& ma) {
  return "(" + ar + "," + std::to_string(diff) + "," + ma + ")";
}

}  // namespace

AMModelSpec::Fields MakeArimaSpec(const ArimaRequest& request, const Series& series,
                                  unsigned seasonLength, int functionType) {
  const ArimaOrders& orders = request.orders;
  AMModelSpec::Fields spec;
  spec.season_length = HasSeasonalPart(request) ? seasonLength : 1;
  spec.y_transform = TSTransformation(functionType);
  spec.non_seasonal_diff = orders.diff;
  spec.seasonal_diff = orders.seasonal_diff;
  spec.has_constant = request.constant.value_or(orders.diff + orders.seasonal_diff == 0);
  spec.ar = FactorOf(orders.ar, seasonLength);
  spec.ma = FactorOf(orders.ma, seasonLength);
  for (const PredictorRequest& predictor : request.predictors) {
    spec.predictors.push_back(PredictorOf(predictor, seasonLength));
  }
  spec.outliers = OutliersOf(request, series);
  return spec;
}

std::string ArimaTitle(const AMModelSpec& spec) {
  const unsigned season = spec.GetSeasonLength(false);
  unsigned diff = 0;
  unsigned seasonalDiff = 0;
  spec.GetYDiff(diff, seasonalDiff);
  AMPowers ar, seasonalAr, ma, seasonalMa;
  spec.GetARStruct(ar, seasonalAr);
  spec.GetMAStruct(ma, seasonalMa);
  std::string title = "ARIMA" + Parenthesis(OrderText(ar, 1), diff, OrderText(ma, 1));
  if (seasonalAr.GetCount() + seasonalMa.GetCount() + seasonalDiff > 0) {
    title +=
        Parenthesis(OrderText(seasonalAr, season), seasonalDiff, OrderText(seasonalMa, season)) +
        std::to_string(season);
  }
  const int function = spec.GetYTransformSpec().GetFunctionType();
  if (function != TSTransformation::kNone) {
    title += std::string(" of the ") + WordsOf(function).name;
  }
  bool constant = false;
  spec.GetMeanYPresent(constant);
  return title + (constant ? " with a constant" : "");
}

unsigned KnownHorizon(const AMModelSpec& spec, const Series& series) {
  std::size_t known = std::numeric_limits<unsigned>::max();
  for (unsigned i = 0; i < series.predictors.size(); ++i) {
    unsigned diff = 0;
    unsigned seasonalDiff = 0;
    unsigned delay = 0;
    spec.GetXDiffNDelay(i, diff, seasonalDiff, delay);
    known = std::min(known, series.predictors[i].future.size() + delay);
  }
  return static_cast<unsigned>(known);
}

std::vector<std::vector<double>> FutureValues(const Series& series, unsigned horizon) {
  std::vector<std::vector<double>> futures;
  for (const Predictor& predictor : series.predictors) {
    std::vector<double> future = predictor.future;
    const double last = future.empty() ? predictor.values.back() : future.back();
    future.resize(horizon, last);
    futures.push_back(std::move(future));
  }
  return futures;
}

}  // namespace tsx::models
