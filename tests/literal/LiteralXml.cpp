#include "tests/literal/LiteralXml.h"

#include <cstring>
#include <iconv.h>
#include <langinfo.h>
#include <locale>
#include <sstream>

namespace literal {
namespace {

const char* sourceCodeSet = nullptr;

const std::string kFirstLine = "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>";

std::string GetTabs(int n) {
  std::string tabs;
  for (int i = 0; i < n; ++i) tabs += "\t";
  return tabs;
}

void ReplaceAll(std::string& s, const std::string& find, const std::string& with) {
  std::size_t pos = 0;
  while ((pos = s.find(find, pos)) != std::string::npos) {
    s.replace(pos, find.size(), with);
    pos += with.size();
  }
}

void WritePiece(std::ostream& os, const std::string& piece, bool utf8) {
  if (utf8) {
    WriteUTF(os, piece);
  } else {
    Write(os, piece);
  }
}

const iconv_t kFailed = reinterpret_cast<iconv_t>(-1);  // NOLINT: iconv's own word for failure

iconv_t OpenEither(const char* source) {
  iconv_t descriptor = iconv_open("UTF-8", source);
  if (descriptor == kFailed) descriptor = iconv_open("utf8", source);
  return descriptor;
}

iconv_t Open(const char* source) {
  iconv_t descriptor = OpenEither(source);
  if (descriptor != kFailed) return descriptor;
  if (std::strncmp(source, "ISO", 3) == 0) {
    const char* rest = source + 3;
    while (*rest == ' ') ++rest;
    descriptor = OpenEither(rest);
    if (descriptor != kFailed) return descriptor;
  }
  return OpenEither("8859-1");
}

}  // namespace

void SetSourceCodeSet(const char* name) { sourceCodeSet = name; }

std::string FormatNumber(double value) {
  std::ostringstream text;
  text.imbue(std::locale::classic());
  text.precision(15);
  text << value;
  return text.str();
}

std::string NumberListText(const double* values, std::size_t count, double missing) {
  std::string list;
  for (std::size_t i = 0; i < count; ++i) {
    if (!list.empty()) list += " ";
    if (values[i] == missing) {
      list += "NaN";
      continue;
    }
    const std::string text = FormatNumber(values[i]);
    if (text == "1.#INF" || text == "inf" || text == "Inf") {
      list += "INF";
    } else if (text == "-1.#INF" || text == "-inf" || text == "-Inf") {
      list += "-INF";
    } else {
      list += text;
    }
  }
  return list;
}

void Write(std::ostream& os, const std::string& s) {
  for (const char c : s) os.put(c);
}

void WriteUTF(std::ostream& os, const std::string& s) {
  const std::string source = sourceCodeSet != nullptr ? sourceCodeSet : nl_langinfo(CODESET);
  const iconv_t descriptor = Open(source.c_str());
  if (descriptor == kFailed) return;
  std::string piece = s;
  std::string converted(4 * s.size(), '\0');
  char* from = piece.data();
  char* to = converted.data();
  std::size_t fromLeft = piece.size();
  std::size_t toLeft = converted.size();
  iconv(descriptor, &from, &fromLeft, &to, &toLeft);
  iconv_close(descriptor);
  converted.resize(converted.size() - toLeft);
  Write(os, converted);
}

void Attribute::ToString(std::string& out, ExportFormat& /*format*/) const {
  std::string value = value_;
  ReplaceAll(value, "&", "&amp;");
  ReplaceAll(value, "<", "&lt;");
  ReplaceAll(value, ">", "&gt;");
  ReplaceAll(value, "\"", "&quot;");
  ReplaceAll(value, "\t", "&#9;");
  ReplaceAll(value, "\n", "&#10;");
  ReplaceAll(value, "\r", "&#13;");
  ReplaceAll(value, "  ", " &#32;");
  if (!value.empty()) {
    if (value.front() == ' ') value.replace(0, 1, "&#32;");
    if (value.back() == ' ') value.replace(value.size() - 1, 1, "&#32;");
  }
  out += name_;
  out += "=";
  out += "\"";
  out += value;
  out += "\"";
}

void Attribute::ToStream(std::ostream& os, ExportFormat& format, bool utf8) const {
  std::string text;
  ToString(text, format);
  WritePiece(os, text, utf8);
}

void String::ToString(std::string& out, ExportFormat& format) const {
  std::string text = text_;
  ReplaceAll(text, "&", "&amp;");
  ReplaceAll(text, "<", "&lt;");
  format.new_paragraph = false;
  format.indentation = false;
  out += text;
}

void String::ToStream(std::ostream& os, ExportFormat& format, bool utf8) const {
  std::string text;
  ToString(text, format);
  WritePiece(os, text, utf8);
}

void DocType::ToString(std::string& out, ExportFormat& /*format*/) const {
  out += kFirstLine + "\n" + "<" + "!" + "DOCTYPE" + " " + root_name_ + " " + "SYSTEM" + " ";
  out += "\"" + system_id_ + "\"";
  if (!internal_subset_.empty()) out += std::string("\n") + "[" + internal_subset_ + "\n" + "]";
  out += std::string(">") + "\n";
}

void DocType::ToStream(std::ostream& os, ExportFormat& format, bool utf8) const {
  std::string text;
  ToString(text, format);
  WritePiece(os, text, utf8);
}

Element::~Element() {
  for (Attribute* attribute : attributes_) delete attribute;
  for (Node* child : children_) delete child;
}

void Element::AddAttribute(const std::string& name, const std::string& value) {
  attributes_.push_back(new Attribute(name, value));
}

void Element::AddAttribute(const std::string& name, double value) {
  attributes_.push_back(new Attribute(name, FormatNumber(value)));
}

int Element::AddElement(Node* child) {
  children_.push_back(child);
  return static_cast<int>(children_.size());
}

void Element::ToString(std::string& out, ExportFormat& format) const {
  const std::string tabs = GetTabs(format.tab_level);
  if (format.IsNewParagraph()) out += "\n";
  if (format.HasIndentation()) out += tabs;
  out += "<";
  out += name_;
  if (!attributes_.empty()) {
    ++format.tab_level;
    for (const Attribute* attribute : attributes_) {
      out += format.IsNewParagraph() ? "\n" : " ";
      if (format.HasIndentation()) out += GetTabs(format.tab_level);
      attribute->ToString(out, format);
    }
    --format.tab_level;
  }
  if (children_.empty()) {
    out += "/>";
  } else {
    out += ">";
    ++format.tab_level;
    for (const Node* child : children_) child->ToString(out, format);
    --format.tab_level;
    if (format.IsNewParagraph()) out += "\n";
    if (format.HasIndentation()) out += tabs;
    out += "</";
    out += name_;
    out += ">";
  }
  format.new_paragraph = true;
  format.indentation = true;
}

void Element::ToStream(std::ostream& os, ExportFormat& format, bool utf8) const {
  std::string text;
  const auto flush = [&] {
    WritePiece(os, text, utf8);
    text.clear();
  };
  const std::string tabs = GetTabs(format.tab_level);
  if (format.IsNewParagraph()) text += "\n";
  if (format.HasIndentation()) text += tabs;
  text += "<";
  text += name_;
  flush();
  if (!attributes_.empty()) {
    ++format.tab_level;
    for (const Attribute* attribute : attributes_) {
      text += format.IsNewParagraph() ? "\n" : " ";
      if (format.HasIndentation()) text += GetTabs(format.tab_level);
      flush();
      attribute->ToStream(os, format, utf8);
    }
    --format.tab_level;
  }
  if (children_.empty()) {
    text += "/>";
    flush();
  } else {
    text += ">";
    ++format.tab_level;
    flush();
    for (const Node* child : children_) child->ToStream(os, format, utf8);
    --format.tab_level;
    if (format.IsNewParagraph()) text += "\n";
    if (format.HasIndentation()) text += tabs;
    text += "</";
    text += name_;
    text += ">";
    flush();
  }
  format.new_paragraph = true;
  format.indentation = true;
}

namespace {

void WriteDocument(std::ostream& os, const DocType* docType, const Element* root, bool formatted,
                   bool utf8) {
  ExportFormat format;
  format.format = formatted;
  if (docType == nullptr) {
    WritePiece(os, kFirstLine, utf8);
    WritePiece(os, "\n", utf8);
  } else {
    docType->ToStream(os, format, utf8);
  }
  root->ToStream(os, format, utf8);
}

}  // namespace

void WriteTree(std::ostream& os, const DocType* docType, const Element* root, bool format) {
  WriteDocument(os, docType, root, format, false);
}

void WriteTreeUTF8(std::ostream& os, const DocType* docType, const Element* root, bool format) {
  WriteDocument(os, docType, root, format, true);
}

}  // namespace literal
