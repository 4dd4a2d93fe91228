#include "report/Svg.h"

#include "text/Numbers.h"

namespace tsx::report {
namespace {

std::string_view EscapeFor(char c) {
  if (c == '&') return "&amp;";
  if (c == '<') return "&lt;";
  if (c == '>') return "&gt;";
  return {};
}

}  // namespace

std::string Pixels(double length) {
  const std::string text = text::FixedText(length, 1);
  return text.ends_with(".0") ? text.substr(0, text.size() - 2) : text;
}

SvgElement::SvgElement(std::string_view name) : name_(name) {}

SvgElement& SvgElement::With(std::string_view attribute, std::string_view value) {
  attributes_.append(" ").append(attribute).append("=\"").append(value).append("\"");
  return *this;
}

SvgElement& SvgElement::With(std::string_view attribute, double pixels) {
  return With(attribute, Pixels(pixels));
}

SvgElement& SvgElement::Holding(std::string_view content) {
  for (const char c : content) {
    const std::string_view escape = EscapeFor(c);
    content_ += escape.empty() ? std::string_view(&c, 1) : escape;
  }
  return *this;
}

std::string SvgElement::Text() const {
  const std::string start = "<" + name_ + attributes_;
  if (content_.empty()) return start + "/>\n";
  return start + ">" + content_ + "</" + name_ + ">\n";
}

}  // namespace tsx::report
