#include "models/arima/ArimaFault.h"

#include <algorithm>
#include <cstdint>

#include <tsfcore/MV.h>

#include "models/Transformation.h"
#include "models/arima/OutlierTime.h"
#include "text/Numbers.h"
#include "text/Quoting.h"
#include "text/Words.h"

namespace tsx::models {
namespace {

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
Fault FindLongReach(const Task& task) {
  const std::uint64_t reach = ReachOf(task.request.arima, task.season_length);
  const std::size_t cases = task.series.values.size();
  if (reach < cases) return {};
  return {"the model needs more than " + text::Counted(reach, "case") +
              ", so far back do its lags reach; the series has " + std::to_string(cases),
          AtValue(0)};
}

bool IsSkipped(const Series& series, std::size_t i) {
  const std::vector<std::size_t> skipped = series.axis->SkippedCases();
  return std::binary_search(skipped.begin(), skipped.end(), series.cases[i]);
}

Fault MissingPredictor(const Task& task, std::size_t predictor, std::size_t i) {
  const Series& series = task.series;
  const char* const why =
      IsSkipped(series, i) ? task.request.words->skips : "lies within the series";
  return {"the predictor " + text::Quoted(series.predictors[predictor].name) + " has no value at " +
              series.axis->CaseText(series.cases[i]) + ", which " + why,
          {Where::Part::kPredictorValue, i, predictor}};
}

// Cases before the first value of the series belong to no fit, and need no predictors.
Fault FindMissingPredictor(const Task& task) {
  const Series& series = task.series;
  const auto first = std::find_if(series.values.begin(), series.values.end(),
                                  [](double value) { return value != MV::gMissingValue; });
  const auto start = first - series.values.begin();
  for (std::size_t p = 0; p < series.predictors.size(); ++p) {
    const std::vector<double>& values = series.predictors[p].values;
    const auto missing = std::find(values.begin() + start, values.end(), MV::gMissingValue);
    if (missing == values.end()) continue;
    return MissingPredictor(task, p, static_cast<std::size_t>(missing - values.begin()));
  }
  return {};
}

Fault FindImpossibleFuture(const Task& task) {
  const std::vector<Predictor>& predictors = task.series.predictors;
  for (std::size_t p = 0; p < predictors.size(); ++p) {
    const std::vector<double>& future = predictors[p].future;
    const int function = task.request.arima.predictors[p].function_type;
    for (std::size_t h = 0; h < future.size(); ++h) {
      if (IsInDomain(future[h], function)) continue;
      const FunctionWords words = WordsOf(function);
      return {"the predictor " + text::Quoted(predictors[p].name) + " is " +
                  text::NumberText(future[h]) + ": the " + words.name + " needs " + words.needs,
              {Where::Part::kPredictorFuture, h, p}};
    }
  }
  return {};
}

Fault ShortFuture(const Task& task, std::size_t p, unsigned needed) {
  const tsxtimes::DateAxis& axis = *task.series.axis;
  const Predictor& predictor = task.series.predictors[p];
  const std::size_t known = predictor.future.size();
  return {std::string(task.request.words->horizon) + " " + std::to_string(task.request.horizon) +
              " needs " + text::Counted(needed, "value") + " of the predictor " +
              text::Quoted(predictor.name) + " after " + axis.CaseText(axis.CaseCount() - 1) +
              ", where the series ends; " +
              (known == 1 ? "there is 1" : "there are " + std::to_string(known)),
          {Where::Part::kFutureEnd, 0, p}};
}

Fault FindShortFuture(const Task& task) {
  const unsigned horizon = task.request.horizon;
  for (std::size_t p = 0; p < task.series.predictors.size(); ++p) {
    const unsigned delay = task.request.arima.predictors[p].delay;
    const bool known = task.series.predictors[p].future.size() + delay >= horizon;
    if (!known) return ShortFuture(task, p, horizon - delay);
  }
  return {};
}

Fault FindLostOutlier(const Task& task) {
  const tsxtimes::DateAxis& axis = *task.series.axis;
  for (const OutlierRequest& outlier : task.request.arima.outliers) {
    if (IndexOfOutlier(task.series, outlier)) continue;
    return {std::string(task.request.words->outlier) + " " + text::Quoted(outlier.text) +
                ": the series has no such time; it runs from " + axis.CaseText(0) + " to " +
                axis.CaseText(axis.CaseCount() - 1) + " (" + axis.name + ")",
            {}};
  }
  return {};
}

}  // namespace

Fault FindArimaFault(const Task& task) {
  for (const auto find : {FindLongReach, FindMissingPredictor, FindShortFuture,
                          FindImpossibleFuture, FindLostOutlier}) {
    if (Fault fault = find(task)) return fault;
  }
  return {};
}

}  // namespace tsx::models
