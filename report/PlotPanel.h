#ifndef TSXPORT_REPORT_PLOTPANEL_H_
#define TSXPORT_REPORT_PLOTPANEL_H_

#include <cstddef>
#include <vector>

#include "models/ModelChoice.h"
#include "report/ValueScale.h"

namespace tsx::report {

struct PlotPoint {
  double at = 0;  // in cases from the first
  double value = 0;
};

// Neither missing nor beyond 1e300.
bool IsDrawable(const PlotPoint& point);

// What the panel of one fitted series shows.
struct PlotPanel {
  const models::SeriesFit* fit = nullptr;
  std::size_t case_count = 0;   // of the series
  std::size_t total_count = 0;  // with the forecasts
  std::vector<PlotPoint> series;
  // Each begins at the last value of the series, where there is one.
  std::vector<PlotPoint> forecast;
  std::vector<PlotPoint> lower;
  std::vector<PlotPoint> upper;
  ValueScale scale;
};

PlotPanel MakePlotPanel(const models::SeriesFit& fit, unsigned horizon);

}  // namespace tsx::report

#endif  // TSXPORT_REPORT_PLOTPANEL_H_
