#include "models/arima/ArimaFault.h"

#include <algorithm>
#include <cstdint>

#include <tsfcore/MV.h>

#include "models/arima/OutlierTime.h"
#include "text/Text.h"

namespace tsx::cli {
namespace {

ArimaFault FindSeasonFault(const ArimaRequest& request, const TableSeries& read,
                           unsigned seasonLength) {
  const Series& series = read.series;
  const std::string part = SeasonalPart(request);
  if (part.empty()) return {};
  if (seasonLength < 2) {
    return {part + " needs a season, and " + series.axis->name +
                " times have none; give its length with --season",
            read.places.values.front()};
  }
  if (HasGaps(series)) {
    return {part +
                " has seasons, which gaps would shift; leave --gaps out or choose a model "
                "without",
            read.places.values.front()};
  }
  return {};
}

std::uint64_t Reach(const FactorLags& lags, std::uint64_t season) {
  const auto last = [](const Lags& list) -> std::uint64_t {
    return list.empty() ? 0 : list.back();
  };
  return last(lags.non_seasonal) + last(lags.seasonal) * season;
}

// The periods that the longest product of lags or differences looks back.
std::uint64_t ReachOf(const ArimaRequest& request, std::uint64_t season) {
  const ArimaOrders& orders = request.orders;
  std::uint64_t reach = std::max({orders.diff + orders.seasonal_diff * season,
                                  Reach(orders.ar, season), Reach(orders.ma, season)});
  for (const PredictorRequest& predictor : request.predictors) {
    const std::uint64_t effect = predictor.delay + predictor.diff +
                                 predictor.seasonal_diff * season +
                                 Reach(predictor.numerator, season);
    reach = std::max({reach, effect, Reach(predictor.denominator, season)});
  }
  return reach;
}

// The core would say as much, but only after it has made polynomials of that length.
ArimaFault FindLongReach(const ArimaRequest& request, const TableSeries& read,
                         unsigned seasonLength) {
  const Series& series = read.series;
  const std::uint64_t reach = ReachOf(request, seasonLength);
  if (reach < series.values.size()) return {};
  return {"the model needs more than " + std::to_string(reach) + (reach == 1 ? " case" : " cases") +
              ", so far back do its lags reach; the series has " +
              std::to_string(series.values.size()),
          read.places.values.front()};
}

// Cases before the first value of the series belong to no fit, and need no predictors.
ArimaFault FindMissingPredictor(const TableSeries& read) {
  const Series& series = read.series;
  const auto first = std::find_if(series.values.begin(), series.values.end(),
                                  [](double value) { return value != MV::gMissingValue; });
  const auto start = static_cast<std::size_t>(first - series.values.begin());
  for (std::size_t p = 0; p < series.predictors.size(); ++p) {
    const PredictorColumn& predictor = series.predictors[p];
    const std::vector<text::Place>& places = read.places.predictors[p].values;
    for (std::size_t i = start; i < predictor.values.size(); ++i) {
      if (predictor.values[i] != MV::gMissingValue) continue;
      const bool skipped = places[i].line == 0;
      return {"the predictor " + text::Quoted(predictor.name) + " has no value at " +
                  series.axis->CaseText(series.cases[i]) +
                  (skipped ? ", which the table skips" : ", which lies within the series"),
              PlaceOfCase(places, i)};
    }
  }
  return {};
}

bool IsInDomain(double value, int functionType) {
  if (functionType == TSTransformation::kLogarithm) return value > 0;
  return functionType != TSTransformation::kSquareRoot || value >= 0;
}

ArimaFault FindImpossibleFuture(const ArimaRequest& request, const TableSeries& read) {
  const Series& series = read.series;
  for (std::size_t i = 0; i < series.predictors.size(); ++i) {
    const PredictorColumn& predictor = series.predictors[i];
    const int function = request.predictors[i].function_type;
    for (std::size_t h = 0; h < predictor.future.size(); ++h) {
      if (IsInDomain(predictor.future[h], function)) continue;
      return {"the predictor " + text::Quoted(predictor.name) + " is " +
                  text::NumberText(predictor.future[h]) + ": " +
                  (function == TSTransformation::kLogarithm
                       ? "the logarithm needs values above 0"
                       : "the square root needs values of at least 0"),
              read.places.predictors[i].future[h]};
    }
  }
  return {};
}

// Where the future of a predictor ends: at its first unknown value, else at the last known one.
text::Place EndOf(const PredictorPlaces& predictor) {
  if (predictor.future_end.line != 0) return predictor.future_end;
  return predictor.future.empty() ? predictor.values.back() : predictor.future.back();
}

ArimaFault FindShortFuture(const ArimaRequest& request, const TableSeries& read, unsigned horizon) {
  const Series& series = read.series;
  for (std::size_t i = 0; i < series.predictors.size(); ++i) {
    const PredictorColumn& predictor = series.predictors[i];
    const unsigned delay = request.predictors[i].delay;
    if (predictor.future.size() + delay >= horizon) continue;
    const unsigned needed = horizon - delay;
    return {
        "--forecast " + std::to_string(horizon) + " needs " + std::to_string(needed) +
            (needed == 1 ? " value" : " values") + " of the predictor " +
            text::Quoted(predictor.name) + " after " +
            series.axis->CaseText(series.axis->CaseCount() - 1) + ", where the series ends; " +
            (predictor.future.size() == 1 ? "there is 1"
                                          : "there are " + std::to_string(predictor.future.size())),
        EndOf(read.places.predictors[i])};
  }
  return {};
}

ArimaFault FindLostOutlier(const ArimaRequest& request, const Series& series) {
  const DateAxis& axis = *series.axis;
  for (const OutlierRequest& outlier : request.outliers) {
    if (IndexOfOutlier(series, outlier)) continue;
    return {"--outlier " + text::Quoted(outlier.text) +
                ": the series has no such time; it runs from " + axis.CaseText(0) + " to " +
                axis.CaseText(axis.CaseCount() - 1) + " (" + axis.name + ")",
            {}};
  }
  return {};
}

}  // namespace

ArimaFault FindArimaFault(const ArimaRequest& request, const TableSeries& read,
                          unsigned seasonLength, unsigned horizon) {
  ArimaFault fault = FindSeasonFault(request, read, seasonLength);
  if (fault.cause.empty()) fault = FindLongReach(request, read, seasonLength);
  if (fault.cause.empty()) fault = FindMissingPredictor(read);
  if (fault.cause.empty()) fault = FindShortFuture(request, read, horizon);
  if (fault.cause.empty()) fault = FindImpossibleFuture(request, read);
  if (fault.cause.empty()) fault = FindLostOutlier(request, read.series);
  return fault;
}

}  // namespace tsx::cli
