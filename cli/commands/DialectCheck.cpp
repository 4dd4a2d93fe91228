#include "cli/commands/DialectCheck.h"

#include <algorithm>

#include <tsfcore/MV.h>

#include "cli/Errors.h"
#include "models/Classes.h"
#include "text/Quoting.h"

namespace tsx::cli {
namespace {

// "--format pmml has no place for it, so ...; use --format tscxml": what there is to say about
// content that the dialect does not hold. The first dialect holds everything.
std::string LackText(const DialectFacts& dialect, DialectContent content, const std::string& what) {
  return std::string("--format ") + dialect.name + " has no place for " + what + ", " +
         dialect.Lack(content) + "; use --format " + kDialects[0].name;
}

[[noreturn]] void Refuse(const std::string& file, text::Place place, const models::Series& series,
                         const std::string& cause) {
  throw InputError(file, place, cause + " (series \"" + text::Printable(series.model_name) + "\")");
}

void CheckMissing(const DialectFacts& dialect, const std::string& file, const TableSeries& read) {
  const models::Series& series = read.series;
  const auto missing = std::find(series.values.begin(), series.values.end(), MV::gMissingValue);
  if (missing == series.values.end() || dialect.Holds(DialectContent::kMissingValues)) return;
  const auto at = static_cast<std::size_t>(missing - series.values.begin());
  Refuse(file, PlaceOfCase(read.places.values, at), series,
         "the value at " + series.axis->CaseText(series.cases[at]) +
             " is missing: " + LackText(dialect, DialectContent::kMissingValues, "that"));
}

void CheckClaim(const DialectFacts& dialect, const std::string& file, const TableSeries& read) {
  const std::optional<models::Claim> claim = models::FindClaim(read.series);
  if (!claim) return;
  const DialectContent content = models::ClassOf(*claim->kind).Content();
  if (dialect.Holds(content)) return;
  Refuse(file, read.places.values.front(), read.series,
         claim->evidence + ", which asks for " + claim->kind->title + ": " +
             LackText(dialect, content, "it") + " or name a --model");
}

void CheckKind(const DialectFacts& dialect, const models::KindInfo& kind) {
  const DialectContent content = models::ClassOf(kind).Content();
  if (dialect.Holds(content)) return;
  const std::string name = kind.name;
  throw UsageError(name.empty() ? "--model: " + LackText(dialect, content, kind.title)
                                : "--model " + name + ": " + LackText(dialect, content, "it"));
}

}  // namespace

void CheckModelFor(const DialectFacts& dialect, const models::ModelRequest& request) {
  if (request.kind != nullptr) CheckKind(dialect, *request.kind);
  const DialectContent content = DialectContent::kTransformation;
  if (request.function_type != TSTransformation::kNone && !dialect.Holds(content)) {
    throw UsageError("--transform: " + LackText(dialect, content, "it"));
  }
}

void CheckSeriesFor(const DialectFacts& dialect, const std::string& file,
                    const std::vector<TableSeries>& all, const models::ModelRequest& request) {
  for (const TableSeries& read : all) {
    if (!read.series.axis->Fault().empty()) continue;  // hopeless in any format
    CheckMissing(dialect, file, read);
    if (request.kind == nullptr) CheckClaim(dialect, file, read);
  }
}

}  // namespace tsx::cli
