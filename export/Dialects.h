#ifndef TSXPORT_EXPORT_DIALECTS_H_
#define TSXPORT_EXPORT_DIALECTS_H_

#include <cstddef>
#include <iterator>
#include <memory>

#include "dialect/Dialect.h"

namespace tsx {

// Places in the list of dialects, which is that of their facts.
inline constexpr std::size_t kDialectCount = std::size(kDialects);
inline constexpr std::size_t kFirstDialect = 0;  // what a new tree writes; it has every model

// A dialect's object, for one tree.
std::unique_ptr<Dialect> MakeDialect(std::size_t place);

namespace pmml {
class TSXPMMLDocument;
}

// The two that TSXMLTreeImp calls by their names.
std::size_t PlaceOfTimeSeriesXML();
std::size_t PlaceOfPMML();
const pmml::TSXPMMLDocument& AsPMML(const Dialect& dialect);  // which must be that one

}  // namespace tsx

#endif  // TSXPORT_EXPORT_DIALECTS_H_
