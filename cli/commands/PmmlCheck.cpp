#include "cli/commands/PmmlCheck.h"

#include <algorithm>

#include <tsfcore/MV.h>

#include "cli/Errors.h"
#include "text/Text.h"

namespace tsx::cli {
namespace {

[[noreturn]] void Refuse(const std::string& file, text::Place place, const Series& series,
                         const std::string& cause) {
  throw InputError(file, place, cause + " (series \"" + text::Printable(series.model_name) + "\")");
}

constexpr char kConsequence[] = ", so its readers would forecast wrongly; use --format tscxml";

void CheckMissing(const std::string& file, const TableSeries& read) {
  const Series& series = read.series;
  const auto missing = std::find(series.values.begin(), series.values.end(), MV::gMissingValue);
  if (missing == series.values.end()) return;
  const auto at = static_cast<std::size_t>(missing - series.values.begin());
  Refuse(file, PlaceOfCase(read.places.values, at), series,
         "the value at " + series.axis->CaseText(series.cases[at]) +
             " is missing: --format pmml has no place for that" + kConsequence);
}

void CheckDemand(const std::string& file, const TableSeries& read) {
  const ZeroCount count = CountZeros(read.series);
  if (!count.intermittent) return;
  Refuse(file, read.places.values.front(), read.series,
         ZerosText(count) + ", which asks for Croston's method: --format pmml has no place for it" +
             kConsequence + " or name a --model");
}

}  // namespace

void CheckModelForPmml(const ModelRequest& request) {
  if (request.kind == &CrostonKind()) {
    throw UsageError(std::string("--model croston: --format pmml has no place for it") +
                     kConsequence);
  }
  if (request.kind == &ArimaKind()) {
    throw UsageError(
        "--model: --format pmml has no place for ARIMA, of which PMML 4.2 knows no more than the "
        "name; use --format tscxml");
  }
  if (request.function_type != TSTransformation::kNone) {
    throw UsageError(std::string("--transform: --format pmml has no place for it") + kConsequence);
  }
}

void CheckSeriesForPmml(const std::string& file, const std::vector<TableSeries>& all,
                        const ModelRequest& request) {
  for (const TableSeries& read : all) {
    if (!read.series.axis->Fault().empty()) continue;  // hopeless in any format
    CheckMissing(file, read);
    if (request.kind == nullptr) CheckDemand(file, read);
  }
}

}  // namespace tsx::cli
