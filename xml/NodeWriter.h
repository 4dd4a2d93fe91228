#ifndef TSXPORT_XML_NODEWRITER_H_
#define TSXPORT_XML_NODEWRITER_H_

#include <ostream>
#include <string_view>

#include <tsxport/ExportFormat.h>
#include <tsxport/XMLElement.h>

#include "xml/Output.h"

namespace tsx {

// One function for each kind of node. They append to `out` and leave it to the caller to flush.
void WriteElement(Output& out, const TIMESERIESXML::XMLElement& element,
                  TIMESERIESXML::ExportFormat& format);
void WriteText(Output& out, std::string_view escaped, TIMESERIESXML::ExportFormat& format);
void WriteAttribute(Output& out, std::string_view escaped);

// Calls write(Output&) with an output to the stream, converting from the locale's code set when
// `utf8` is set.
template <typename Write>
void WithOutput(std::ostream& os, bool utf8, Write write) {
  if (utf8) {
    Utf8Converter converter;
    Output out(os, converter);
    write(out);
    out.Flush();
  } else {
    Output out(os);
    write(out);
    out.Flush();
  }
}

}  // namespace tsx

#endif  // TSXPORT_XML_NODEWRITER_H_
