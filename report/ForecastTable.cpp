#include "report/ForecastTable.h"

#include <cmath>

#include <tsfcore/MV.h>

#include "cli/table/CsvReader.h"
#include "text/Text.h"

namespace tsx::cli {
namespace {

std::string Cell(double value) {
  const bool defined = value != MV::gMissingValue && std::isfinite(value);
  return "," + (defined ? text::NumberText(value) : std::string());
}

void AppendForecasts(std::string& table, const FittedSeries& fitted, unsigned horizon) {
  const tsffit::Forecasts forecasts = ForecastsOf(fitted, horizon);
  const std::string name = CsvField(fitted.series->model_name);
  const DateAxis& axis = *fitted.series->axis;
  for (std::size_t h = 0; h < forecasts.value.size(); ++h) {
    table += name + "," + axis.CaseText(axis.CaseCount() + h) + Cell(forecasts.value[h]) +
             Cell(forecasts.lower[h]) + Cell(forecasts.upper[h]) + "\n";
  }
}

}  // namespace

std::string ForecastTable(const std::vector<FittedSeries>& fitted, unsigned horizon) {
  std::string table = "series,time,forecast,lower95,upper95\n";
  for (const FittedSeries& one : fitted) {
    if (one.kind != nullptr) AppendForecasts(table, one, horizon);
  }
  return table;
}

}  // namespace tsx::cli
