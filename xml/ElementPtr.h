#ifndef TSXPORT_XML_ELEMENTPTR_H_
#define TSXPORT_XML_ELEMENTPTR_H_

#include <memory>
#include <string_view>

#include <tsxport/XMLElement.h>

namespace tsx {

// An element under construction, owned by its builder until it is handed to its parent.
using ElementPtr = std::unique_ptr<TIMESERIESXML::XMLElement>;

ElementPtr MakeElement(std::string_view name);

// Hands `child`, which is not null, to `parent`. When that throws, nothing leaks and `parent` is
// as it was.
void Append(TIMESERIESXML::XMLElement& parent, ElementPtr child);

// Appends character data, as it stands (escaping happens on output). Empty text makes a node too:
// the element is then not written in the empty-element form.
void AppendText(TIMESERIESXML::XMLElement& parent, std::string_view text);

}  // namespace tsx

#endif  // TSXPORT_XML_ELEMENTPTR_H_
