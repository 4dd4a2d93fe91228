#include "report/ForecastTable.h"

#include <cmath>

#include <tsfcore/MV.h>

#include "text/Numbers.h"
#include "text/Quoting.h"

namespace tsx::report {
namespace {

std::string Cell(double value) {
  const bool defined = value != MV::gMissingValue && std::isfinite(value);
  return "," + (defined ? text::NumberText(value) : std::string());
}

void AppendForecasts(std::string& table, const models::SeriesFit& fit, unsigned horizon) {
  const tsffit::Forecasts forecasts = fit.model->Forecast(horizon);
  const std::string name = text::CsvField(fit.series->model_name);
  const tsxtimes::DateAxis& axis = *fit.series->axis;
  for (std::size_t h = 0; h < forecasts.value.size(); ++h) {
    table += name + "," + axis.CaseText(axis.CaseCount() + h) + Cell(forecasts.value[h]) +
             Cell(forecasts.lower[h]) + Cell(forecasts.upper[h]) + "\n";
  }
}

}  // namespace

std::string ForecastTable(const std::vector<models::SeriesFit>& fits, unsigned horizon) {
  std::string table = "series,time,forecast,lower95,upper95\n";
  for (const models::SeriesFit& fit : fits) {
    if (!IsHopeless(fit)) AppendForecasts(table, fit, horizon);
  }
  return table;
}

}  // namespace tsx::report
