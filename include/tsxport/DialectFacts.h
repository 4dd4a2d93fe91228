#ifndef TSXPORT_DIALECTFACTS_H_
#define TSXPORT_DIALECTFACTS_H_

#include <algorithm>
#include <iterator>
#include <span>
#include <string_view>

// The dialects that documents are written in, and what each has no place for: data, so that a host
// can ask before it fits.
//
//   const tsx::DialectFacts* pmml = tsx::FindDialect("pmml");
//   if (const char* lack = pmml->Lack(tsx::DialectContent::kArima)) {
//     Refuse(std::string(pmml->name) + " has no place for ARIMA, " + lack);
//   }
//
// The library refuses nothing for the sake of these facts: it writes what the host gives and leaves
// out what has no place. TSXMLTree::SetPMMLOutput() tells what becomes of a model whose method the
// dialect does not have.
//
// Constant expressions throughout; any thread may read them.
namespace tsx {

// What a model may bring along.
enum class DialectContent {
  kSmoothing,       // models of exponential smoothing
  kArima,           // ARIMA models
  kCroston,         // Croston's method
  kTransformation,  // a series that was modelled on a logarithm's or a root's scale
  kMissingValues,   // a history with holes
};

// One thing that a dialect has no place for.
struct DialectLack {
  DialectContent content;
  // What there is to say about it, behind "... has no place for it, ".
  const char* consequence;
};

struct DialectFacts {
  const char* name;  // for people to choose it by
  std::span<const DialectLack> lacks;

  constexpr bool Holds(DialectContent content) const { return Lack(content) == nullptr; }

  // The consequence of having no place for `content`; null when there is a place.
  constexpr const char* Lack(DialectContent content) const {
    const auto lack = std::find_if(lacks.begin(), lacks.end(), [content](const DialectLack& l) {
      return l.content == content;
    });
    return lack == lacks.end() ? nullptr : lack->consequence;
  }
};

inline constexpr char kReadersForecastWrongly[] = "so its readers would forecast wrongly";

inline constexpr DialectLack kPmmlLacks[] = {
    {DialectContent::kArima, "of which PMML 4.2 knows no more than the name"},
    {DialectContent::kCroston, kReadersForecastWrongly},
    {DialectContent::kTransformation, kReadersForecastWrongly},
    {DialectContent::kMissingValues, kReadersForecastWrongly},
};

// The first is the one that a new tree writes, and holds everything.
inline constexpr DialectFacts kDialects[] = {
    {"tscxml", {}},        // time-series XML
    {"pmml", kPmmlLacks},  // PMML 4.2
};

// The dialect of that name; null when there is none.
constexpr const DialectFacts* FindDialect(std::string_view name) {
  const auto* const dialect =
      std::find_if(std::begin(kDialects), std::end(kDialects),
                   [name](const DialectFacts& d) { return d.name == name; });
  return dialect == std::end(kDialects) ? nullptr : dialect;
}

}  // namespace tsx

#endif  // TSXPORT_DIALECTFACTS_H_
