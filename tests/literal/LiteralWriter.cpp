#include <limits>
#include <locale>
#include <memory>
#include <sstream>

#include "tests/literal/LiteralObjStream.h"

namespace literal {
namespace {

const std::string kInt = "Int";
const std::string kLong = "Long";
const std::string kDouble = "Double";
const std::string kString = "String";
const std::string kValue = "value";

void Write(std::ostream& os, const std::string& s) {
  for (const char c : s) os.put(c);
}

std::string Format(double value) {
  std::ostringstream os;
  os.imbue(std::locale::classic());
  os.precision(15);
  os << value;
  return os.str();
}

void ReplaceAll(std::string& s, const char* find, const std::string& with) {
  const std::size_t length = std::string(find).size();
  for (std::size_t at = s.find(find); at != std::string::npos; at = s.find(find, at)) {
    s.replace(at, length, with);
    at += with.size();
  }
}

class Attribute {
 public:
  static Attribute* Create(const std::string& name, const std::string& value) {
    return new Attribute(name, value);
  }
  static Attribute* Create(const std::string& name, double value) {
    return new Attribute(name, Format(value));
  }

  void ToString(std::string& out) const {
    std::string escaped = value_;
    ReplaceAll(escaped, "&", "&amp;");
    ReplaceAll(escaped, "<", "&lt;");
    ReplaceAll(escaped, ">", "&gt;");
    ReplaceAll(escaped, "\"", "&quot;");
    ReplaceAll(escaped, "\t", "&#9;");
    ReplaceAll(escaped, "\n", "&#10;");
    ReplaceAll(escaped, "\r", "&#13;");
    ReplaceAll(escaped, "  ", " &#32;");
    if (!escaped.empty()) {
      if (escaped.front() == ' ') escaped.replace(0, 1, "&#32;");
      if (escaped.back() == ' ') escaped.replace(escaped.size() - 1, 1, "&#32;");
    }
    out += name_ + "=" + "\"" + escaped + "\"";
  }

 private:
  Attribute(const std::string& name, const std::string& value) : name_(name), value_(value) {}

  std::string name_;
  std::string value_;
};

std::string GetTabs(int n) {
  std::string tabs;
  for (int i = 0; i < n; ++i) tabs += "\t";
  return tabs;
}

template <typename Value>
void WriteValue(std::ostream& os, int nTabs, const std::string& tag, const Value& value) {
  std::string line = "\n" + GetTabs(nTabs + 1) + "<" + tag + " ";
  const std::unique_ptr<Attribute> attribute(Attribute::Create(kValue, value));
  attribute->ToString(line);
  line += "/";
  line += ">";
  Write(os, line);
}

}  // namespace

void StartRoot(std::ostream& os, const std::string& notice) {
  std::string line = "<MCXMLRoot ";
  const std::unique_ptr<Attribute> attribute(Attribute::Create("copyright", notice));
  attribute->ToString(line);
  line += ">";
  Write(os, line);
}

void EndRoot(std::ostream& os) { Write(os, "\n</MCXMLRoot>"); }

void XMLObj::StartObj(std::ostream& os) const {
  Write(os, "\n" + GetTabs(n_tabs_) + "<Obj name=\"" + name_ + "\">");
}

void XMLObj::EndObj(std::ostream& os) const { Write(os, "\n" + GetTabs(n_tabs_) + "</Obj>"); }

void XMLObj::WriteSubElement(std::ostream& os, int value) const {
  WriteValue(os, n_tabs_, kInt, static_cast<double>(value));
}
void XMLObj::WriteSubElement(std::ostream& os, unsigned int value) const {
  WriteValue(os, n_tabs_, kInt, static_cast<double>(value));
}
void XMLObj::WriteSubElement(std::ostream& os, long value) const {
  WriteValue(os, n_tabs_, kLong, static_cast<double>(value));
}
void XMLObj::WriteSubElement(std::ostream& os, bool value) const {
  WriteValue(os, n_tabs_, kInt, value ? 1.0 : 0.0);
}
void XMLObj::WriteSubElement(std::ostream& os, double value) const {
  if (value == -std::numeric_limits<double>::max()) {
    WriteValue(os, n_tabs_, kDouble, std::string("Missing"));
  } else {
    WriteValue(os, n_tabs_, kDouble, value);
  }
}
void XMLObj::WriteSubElement(std::ostream& os, const std::string& value) const {
  WriteValue(os, n_tabs_, kString, value);
}

}  // namespace literal
