#include "report/PlotPanel.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <tsfcore/MV.h>

namespace tsx::report {
namespace {

using Points = std::vector<PlotPoint>;

// Lowest and highest of what can be drawn.
struct Extent {
  double low = std::numeric_limits<double>::infinity();
  double high = -std::numeric_limits<double>::infinity();

  void Add(const Points& points) {
    for (const PlotPoint& point : points) {
      if (!IsDrawable(point)) continue;
      low = std::min(low, point.value);
      high = std::max(high, point.value);
    }
  }
};

// Limits may widen without end; the scale follows them for one and a half times the height of the
// lines at most.
ValueScale ScaleOf(const PlotPanel& panel) {
  constexpr int kSteps = 5;
  Extent lines;
  lines.Add(panel.series);
  lines.Add(panel.forecast);
  Extent all = lines;
  all.Add(panel.lower);
  all.Add(panel.upper);
  const double room = 1.5 * (lines.high - lines.low);
  if (!(room > 0)) return MakeValueScale(all.low, all.high, kSteps);
  return MakeValueScale(std::max(all.low, lines.low - room), std::min(all.high, lines.high + room),
                        kSteps);
}

Points SeriesPoints(const models::Series& series) {
  Points points;
  points.reserve(series.values.size());
  for (std::size_t i = 0; i < series.values.size(); ++i) {
    points.push_back({static_cast<double>(series.cases[i]), series.values[i]});
  }
  return points;
}

// Values behind the last case, led by the last value of the series.
Points Continued(const PlotPanel& panel, const std::vector<double>& values) {
  Points points;
  points.reserve(values.size() + 1);
  if (IsDrawable(panel.series.back())) points.push_back(panel.series.back());
  for (std::size_t h = 0; h < values.size(); ++h) {
    points.push_back({static_cast<double>(panel.case_count + h), values[h]});
  }
  return points;
}

}  // namespace

bool IsDrawable(const PlotPoint& point) {
  constexpr double kLargest = 1e300;  // far enough from infinity for round numbers around it
  return point.value != MV::gMissingValue && std::abs(point.value) <= kLargest;
}

PlotPanel MakePlotPanel(const models::SeriesFit& fit, unsigned horizon) {
  const tsffit::Forecasts forecasts = fit.model->Forecast(horizon);
  PlotPanel panel;
  panel.fit = &fit;
  panel.case_count = fit.series->axis->CaseCount();
  panel.total_count = panel.case_count + forecasts.value.size();
  panel.series = SeriesPoints(*fit.series);
  panel.forecast = Continued(panel, forecasts.value);
  panel.lower = Continued(panel, forecasts.lower);
  panel.upper = Continued(panel, forecasts.upper);
  panel.scale = ScaleOf(panel);
  return panel;
}

}  // namespace tsx::report
