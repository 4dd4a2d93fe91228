// The dialects, one row each. A new one has a folder of its own, a row here, and its facts.

#include "export/Dialects.h"

#include <string_view>

#include "pmml/write/TSXPMMLDocument.h"
#include "tsxml/write/TimeSeriesDialect.h"

namespace tsx {

namespace {

struct Row {
  std::string_view name;
  std::unique_ptr<Dialect> (*make)();
};

template <typename Which>
std::unique_ptr<Dialect> Make() {
  return std::make_unique<Which>();
}

// In the order of kDialects.
constexpr Row kRows[] = {
    {"tscxml", &Make<TimeSeriesDialect>},
    {"pmml", &Make<pmml::TSXPMMLDocument>},
};

constexpr std::size_t PlaceOf(std::string_view name) {
  std::size_t place = 0;
  while (kRows[place].name != name) ++place;
  return place;
}

constexpr bool RowsFollowTheFacts() {
  for (std::size_t i = 0; i < kDialectCount; ++i) {
    if (kRows[i].name != kDialects[i].name) return false;
  }
  return true;
}

static_assert(std::size(kRows) == kDialectCount && RowsFollowTheFacts());

constexpr std::size_t kTimeSeriesXML = PlaceOf("tscxml");
constexpr std::size_t kPMML = PlaceOf("pmml");

}  // namespace

std::unique_ptr<Dialect> MakeDialect(std::size_t place) { return kRows[place].make(); }

std::size_t PlaceOfTimeSeriesXML() { return kTimeSeriesXML; }
std::size_t PlaceOfPMML() { return kPMML; }

const pmml::TSXPMMLDocument& AsPMML(const Dialect& dialect) {
  return static_cast<const pmml::TSXPMMLDocument&>(dialect);
}

}  // namespace tsx
