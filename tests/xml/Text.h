#ifndef TSXPORT_TESTS_XML_TEXT_H_
#define TSXPORT_TESTS_XML_TEXT_H_

#include <memory>
#include <sstream>
#include <string>

#include <tsxport/XMLElement.h>

namespace test {

// A node's text with a fresh format, by ToString() and by ToStream().
inline std::string StringOf(const TIMESERIESXML::XMLInterface& node) {
  TIMESERIESXML::ExportFormat format;
  std::string text;
  node.ToString(text, format);
  return text;
}

inline std::string StreamedTextOf(const TIMESERIESXML::XMLInterface& node, bool formatted = true,
                                  bool utf8 = false) {
  TIMESERIESXML::ExportFormat format;
  format.SetFormat(formatted);
  std::ostringstream out;
  node.ToStream(out, format, utf8);
  return out.str();
}

using ElementOwner = std::unique_ptr<TIMESERIESXML::XMLElement>;

inline ElementOwner NewElement(const std::string& name) {
  return ElementOwner(TIMESERIESXML::XMLElement::Create(name));
}

// Adds a new child and returns it; the parent owns it.
inline TIMESERIESXML::XMLElement& AddChild(TIMESERIESXML::XMLElement& parent,
                                           const std::string& name) {
  ElementOwner child = NewElement(name);
  parent.AddElement(child.get());
  return *child.release();
}

inline void AddText(TIMESERIESXML::XMLElement& parent, const std::string& text) {
  std::unique_ptr<TIMESERIESXML::XMLString> string(TIMESERIESXML::XMLString::Create(text));
  parent.AddElement(string.get());
  string.release();
}

}  // namespace test

#endif  // TSXPORT_TESTS_XML_TEXT_H_
