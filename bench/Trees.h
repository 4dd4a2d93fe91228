#ifndef TSXPORT_BENCH_TREES_H_
#define TSXPORT_BENCH_TREES_H_

#include <charconv>
#include <cstring>
#include <libxml/xmlwriter.h>
#include <memory>
#include <pugixml.hpp>
#include <stdexcept>
#include <string>
#include <vector>

#include <tsxport/NumberFormat.h>
#include <tsxport/XMLElement.h>

#include "tests/literal/LiteralXml.h"
#include "xml/ElementPtr.h"
#include "xml/NumberList.h"

// One and the same document for every tree: adapters for BuildDocument().
namespace bench {

inline constexpr double kMissing = -1e300;  // among no model's numbers

// The library, by the calls that a host has.
class HostTree {
 public:
  using Element = TIMESERIESXML::XMLElement*;

  Element Root(const char* name) {
    root_.reset(TIMESERIESXML::XMLElement::Create(name));
    return root_.get();
  }
  Element Child(Element parent, const char* name) {
    Element child = TIMESERIESXML::XMLElement::Create(name);
    parent->AddElement(child);
    return child;
  }
  template <typename Value>
  void Attribute(Element element, const char* name, Value value) {
    element->AddAttribute(name, value);
  }
  void List(Element element, const double* values, std::size_t count) {
    std::string text;
    for (std::size_t i = 0; i < count; ++i) {
      if (i > 0) text += ' ';
      text += TIMESERIESXML::Format(values[i], false, nullptr);
    }
    element->AddElement(TIMESERIESXML::XMLString::Create(text));
  }
  void Pair(Element element, double first, double second) {
    const double values[] = {first, second};
    List(element, values, 2);
  }
  const TIMESERIESXML::XMLElement& root() const { return *root_; }

 private:
  std::unique_ptr<TIMESERIESXML::XMLElement> root_;
};

// The library, by the calls that its own encoders use.
class EncoderTree {
 public:
  using Element = TIMESERIESXML::XMLElement*;

  Element Root(const char* name) {
    root_ = tsx::MakeElement(name);
    return root_.get();
  }
  Element Child(Element parent, const char* name) {
    tsx::ElementPtr child = tsx::MakeElement(name);
    Element element = child.get();
    tsx::Append(*parent, std::move(child));
    return element;
  }
  template <typename Value>
  void Attribute(Element element, const char* name, Value value) {
    element->AddAttribute(name, value);
  }
  void List(Element element, const double* values, std::size_t count) {
    tsx::FillNumberList(*element, values, count, kMissing);
  }
  void Pair(Element element, double first, double second) {
    const double values[] = {first, second};
    List(element, values, 2);
  }
  const TIMESERIESXML::XMLElement& root() const { return *root_; }

 private:
  tsx::ElementPtr root_;
};

class LiteralTree {
 public:
  using Element = literal::Element*;

  Element Root(const char* name) {
    root_.reset(literal::Element::Create(name));
    return root_.get();
  }
  Element Child(Element parent, const char* name) {
    Element child = literal::Element::Create(name);
    parent->AddElement(child);
    return child;
  }
  template <typename Value>
  void Attribute(Element element, const char* name, Value value) {
    element->AddAttribute(name, value);
  }
  void List(Element element, const double* values, std::size_t count) {
    const std::string text = literal::NumberListText(values, count, kMissing);
    element->AddElement(literal::String::Create(text));
  }
  void Pair(Element element, double first, double second) {
    const std::string text = literal::FormatNumber(first) + " " + literal::FormatNumber(second);
    element->AddElement(literal::String::Create(text));
  }
  const literal::Element& root() const { return *root_; }

 private:
  std::unique_ptr<literal::Element> root_;
};

// The text of numbers for the others, by the standard library and without any allocation.
template <std::size_t N>
class NumberBuffer {
 public:
  void Append(double value) {
    if (next_ != text_) *next_++ = ' ';
    next_ = std::to_chars(next_, text_ + N - 1, value, std::chars_format::general, 15).ptr;
  }
  const char* c_str() {
    *next_ = '\0';
    return text_;
  }

 private:
  char text_[N];
  char* next_ = text_;
};

class PugiTree {
 public:
  using Element = pugi::xml_node;

  Element Root(const char* name) { return document_.append_child(name); }
  Element Child(Element parent, const char* name) { return parent.append_child(name); }
  void Attribute(Element element, const char* name, const char* value) {
    element.append_attribute(name).set_value(value);
  }
  void Attribute(Element element, const char* name, double value) {
    NumberBuffer<32> text;
    text.Append(value);
    Attribute(element, name, text.c_str());
  }
  void List(Element element, const double* values, std::size_t count) {
    NumberBuffer<1024> text;
    for (std::size_t i = 0; i < count; ++i) text.Append(values[i]);
    element.append_child(pugi::node_pcdata).set_value(text.c_str());
  }
  void Pair(Element element, double first, double second) {
    const double values[] = {first, second};
    List(element, values, 2);
  }
  const pugi::xml_document& document() const { return document_; }

 private:
  pugi::xml_document document_;
};

// A writer has no tree: an element ends when one further up gets its next child.
class LibxmlWriter {
 public:
  using Element = std::size_t;  // depth

  explicit LibxmlWriter(xmlTextWriterPtr writer) : writer_(writer) {}

  Element Root(const char* name) { return Child(0, name); }
  Element Child(Element parent, const char* name) {
    EndTo(parent);
    xmlTextWriterStartElement(writer_, Chars(name));
    return ++depth_;
  }
  void Attribute(Element /*element*/, const char* name, const char* value) {
    xmlTextWriterWriteAttribute(writer_, Chars(name), Chars(value));
  }
  void Attribute(Element element, const char* name, double value) {
    NumberBuffer<32> text;
    text.Append(value);
    Attribute(element, name, text.c_str());
  }
  void List(Element /*element*/, const double* values, std::size_t count) {
    NumberBuffer<1024> text;
    for (std::size_t i = 0; i < count; ++i) text.Append(values[i]);
    xmlTextWriterWriteString(writer_, Chars(text.c_str()));
  }
  void Pair(Element element, double first, double second) {
    const double values[] = {first, second};
    List(element, values, 2);
  }
  void EndTo(Element depth) {
    for (; depth_ > depth; --depth_) xmlTextWriterEndElement(writer_);
  }

 private:
  static const xmlChar* Chars(const char* text) { return reinterpret_cast<const xmlChar*>(text); }

  xmlTextWriterPtr writer_;
  std::size_t depth_ = 0;
};

}  // namespace bench

#endif  // TSXPORT_BENCH_TREES_H_
