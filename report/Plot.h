#ifndef TSXPORT_REPORT_PLOT_H_
#define TSXPORT_REPORT_PLOT_H_

#include <string>
#include <vector>

#include "models/ModelChoice.h"

namespace tsx::report {

inline constexpr std::size_t kMostPanels = 24;

// An SVG drawing of the fitted series, each in a panel of its own: the series, `horizon` forecasts
// and the band between their 95 % limits. Of more than kMostPanels series the first ones are drawn.
std::string PlotText(const std::vector<models::SeriesFit>& fits, unsigned horizon);

}  // namespace tsx::report

#endif  // TSXPORT_REPORT_PLOT_H_
