// Bytes become calls on a node tree. The tree is written in every way; what goes to a stream must
// equal what goes to a string, conversion must not change it, and pugixml must read from it what
// was put in.

#include <cstdlib>
#include <fuzzer/FuzzedDataProvider.h>
#include <memory>
#include <pugixml.hpp>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include <tsxport/NumberFormat.h>
#include <tsxport/WriteTree.h>
#include <tsxport/XMLElement.h>

#include "xml/ElementPtr.h"
#include "xml/NumberList.h"

namespace {

using TIMESERIESXML::XMLAttribute;
using TIMESERIESXML::XMLElement;
using TIMESERIESXML::XMLString;

constexpr double kMissing = -1.0;

void Check(bool holds) {
  if (!holds) std::abort();
}

// What was built, to be compared with what is read. Neighbouring texts are read as one.
struct Model {
  std::string name;
  std::vector<std::pair<std::string, std::string>> attributes;
  struct Child {
    std::unique_ptr<Model> element;  // null: character data
    std::string text;
  };
  std::vector<Child> children;

  void AddText(const std::string& text) {
    if (children.empty() || children.back().element != nullptr) children.push_back({nullptr, ""});
    children.back().text += text;
  }
};

struct Place {
  XMLElement* element;
  Model* model;
};

class Program {
 public:
  Program(const std::uint8_t* data, std::size_t size) : input_(data, size) {
    model_.name = Name();
    root_.reset(XMLElement::Create(model_.name));
    places_.push_back({root_.get(), &model_});
    while (input_.remaining_bytes() > 0) Step();
  }

  const XMLElement& root() const { return *root_; }
  const Model& model() const { return model_; }

 private:
  void Step() {
    const Place place = places_[input_.ConsumeIntegralInRange<std::size_t>(0, places_.size() - 1)];
    switch (input_.ConsumeIntegralInRange(0, 8)) {
      case 0:
        return AddElement(place, new XMLElement(LastName()));
      case 1:
        return AddElement(place, XMLElement::Create(LastName()));
      case 2:
        return AddText(place, XMLString::Create(LastText()));
      case 3:
        return AddText(place, new XMLString(LastText()));
      case 4:
        tsx::AppendText(*place.element, LastText());
        return place.model->AddText(text_);
      case 5:
        return AddNumbers(place);
      case 6:
        place.element->AddAttribute(AttributeName(place), LastText());
        return AddToModel(place, text_);
      case 7:
        place.element->AddAttribute(XMLAttribute::Create(AttributeName(place), LastText()));
        return AddToModel(place, text_);
      default:
        return AddNumber(place);
    }
  }

  void AddElement(Place place, XMLElement* element) {
    place.element->AddElement(element);
    auto model = std::make_unique<Model>();
    model->name = name_;
    places_.push_back({element, model.get()});
    place.model->children.push_back({std::move(model), ""});
  }

  void AddText(Place place, XMLString* string) {
    place.element->AddElement(string);
    place.model->AddText(text_);
  }

  void AddNumbers(Place place) {
    std::vector<double> values(input_.ConsumeIntegralInRange<std::size_t>(0, 40));
    for (double& value : values) value = Number();
    tsx::FillNumberList(*place.element, values, kMissing);
    if (!values.empty()) place.model->AddText(tsx::NumberListText(values, kMissing));
  }

  void AddNumber(Place place) {
    const double value = Number();
    place.element->AddAttribute(AttributeName(place), value);
    std::ostringstream expected;
    expected.precision(15);
    expected << value;
    Check(TIMESERIESXML::Format(value, false, nullptr) == expected.str());
    AddToModel(place, expected.str());
  }

  void AddToModel(Place place, const std::string& value) {
    place.model->attributes.emplace_back(name_, value);
  }

  double Number() {
    return input_.ConsumeBool() ? input_.ConsumeFloatingPoint<double>()
                                : input_.ConsumeIntegral<std::int32_t>() / 1000.0;
  }

  // A valid name.
  std::string Name() {
    std::string name = "n";
    const std::size_t length = input_.ConsumeIntegralInRange<std::size_t>(0, 30);
    for (std::size_t i = 0; i < length; ++i) name += input_.ConsumeBool() ? ':' : 'x';
    return name;
  }
  const std::string& LastName() { return name_ = Name(); }

  // Names of one element's attributes differ, as a reader wants it.
  const std::string& AttributeName(Place place) {
    return name_ = "a" + std::to_string(place.model->attributes.size());
  }

  // ASCII that XML allows; seldom longer than an output block.
  const std::string& LastText() {
    text_ = input_.ConsumeRandomLengthString(64);
    for (char& c : text_) {
      c = static_cast<char>(c & 0x7f);
      if (c < ' ' && c != '\t' && c != '\n' && c != '\r') c = ' ';
    }
    if (!text_.empty() && input_.ConsumeIntegral<std::uint8_t>() == 0xff) {
      while (text_.size() < 5000) text_ += text_;
    }
    return text_;
  }

  FuzzedDataProvider input_;
  Model model_;
  tsx::ElementPtr root_;
  std::vector<Place> places_;
  std::string name_;
  std::string text_;
};

std::string Streamed(const XMLElement& root, bool format, bool utf8) {
  std::ostringstream out;
  (utf8 ? TIMESERIESXML::WriteTreeUTF8 : TIMESERIESXML::WriteTree)(out, nullptr, &root, format);
  return out.str();
}

std::string Declared(const XMLElement& root, bool formatted) {
  TIMESERIESXML::ExportFormat format;
  format.SetFormat(formatted);
  std::string text = "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n";
  root.ToString(text, format);
  return text;
}

void Compare(const Model& model, pugi::xml_node node, bool formatted);

// Formatting puts white space in front of elements and end tags, but none beside character data.
void CompareChildren(const Model& model, pugi::xml_node node, bool formatted) {
  pugi::xml_node read = node.first_child();
  bool mayBeginLine = formatted;
  const auto skipLineBegin = [&] {
    if (mayBeginLine && read.type() == pugi::node_pcdata) read = read.next_sibling();
  };
  for (const Model::Child& child : model.children) {
    mayBeginLine = mayBeginLine && child.element != nullptr;
    skipLineBegin();
    if (child.element != nullptr) {
      Compare(*child.element, read, formatted);
      mayBeginLine = formatted;
    } else if (child.text.empty()) {
      continue;
    } else {
      Check(read.type() == pugi::node_pcdata && child.text == read.value());
    }
    read = read.next_sibling();
  }
  skipLineBegin();
  Check(!read);
}

void Compare(const Model& model, pugi::xml_node node, bool formatted) {
  Check(node.type() == pugi::node_element && model.name == node.name());
  pugi::xml_attribute read = node.first_attribute();
  for (const auto& [name, value] : model.attributes) {
    Check(name == read.name() && value == read.value());
    read = read.next_attribute();
  }
  Check(!read);
  CompareChildren(model, node, formatted);
}

// The reader turns tabs and line ends in attributes into blanks, but not what stands there as a
// reference.
void ReadBack(const Model& model, const std::string& text, bool formatted) {
  pugi::xml_document document;
  const unsigned options =
      pugi::parse_escapes | pugi::parse_ws_pcdata | pugi::parse_wconv_attribute;
  Check(document.load_buffer(text.data(), text.size(), options, pugi::encoding_utf8));
  Compare(model, document.document_element(), formatted);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Program program(data, size);
  for (const bool format : {false, true}) {
    const std::string text = Declared(program.root(), format);
    Check(Streamed(program.root(), format, false) == text);
    Check(Streamed(program.root(), format, true) == text);
    ReadBack(program.model(), text, format);
  }
  return 0;
}
