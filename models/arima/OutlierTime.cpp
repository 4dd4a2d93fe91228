#include "models/arima/OutlierTime.h"

#include <algorithm>

namespace tsx::models {
namespace {

// The case of the axis that a tick names.
std::optional<std::size_t> CaseOfTick(const DateAxis& axis, std::int64_t tick) {
  const std::int64_t position = PositionOfTick(axis.scale, tick);
  const std::int64_t distance = position - axis.first_position;
  const bool exact = TickOfPosition(axis.scale, position) == tick && distance % axis.step == 0;
  if (!exact || distance < 0) return std::nullopt;
  return static_cast<std::size_t>(distance / axis.step);
}

// The case of the axis that a time names: in the form of the axis, or by its number from 1.
std::optional<std::size_t> CaseOfTime(const DateAxis& axis, const OutlierRequest& outlier) {
  const cli::TimeUnit unit = outlier.time.form.unit;
  const std::int64_t tick = outlier.time.tick;
  if (unit == axis.form.unit) return CaseOfTick(axis, tick);
  if (unit != cli::TimeUnit::kNumber) return std::nullopt;
  const bool isYear = axis.form.unit == cli::TimeUnit::kYear && tick >= 1000 && tick < 3000;
  if (isYear) return CaseOfTick(axis, tick);
  return tick == 0 ? std::nullopt : std::optional(static_cast<std::size_t>(tick - 1));
}

}  // namespace

std::optional<std::size_t> IndexOfOutlier(const Series& series, const OutlierRequest& outlier) {
  const std::optional<std::size_t> at = CaseOfTime(*series.axis, outlier);
  if (!at) return std::nullopt;
  const auto found = std::lower_bound(series.cases.begin(), series.cases.end(), *at);
  if (found == series.cases.end() || *found != *at) return std::nullopt;
  return static_cast<std::size_t>(found - series.cases.begin());
}

}  // namespace tsx::models
