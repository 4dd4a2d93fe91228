#ifndef TSXPORT_REPORT_SVG_H_
#define TSXPORT_REPORT_SVG_H_

#include <string>
#include <string_view>

namespace tsx::report {

// A length in pixels, with at most one decimal.
std::string Pixels(double length);

// One SVG element on a line of its own:
//   SvgElement("line").With("class", "axis").With("x1", 84.5).Text();   // <line class=.. x1=../>
//   SvgElement("text").With("x", 84).Holding("R & D").Text();           // content is escaped
class SvgElement {
 public:
  explicit SvgElement(std::string_view name);

  // Values are taken as they are, so they must hold no '&', '<' or '"'.
  SvgElement& With(std::string_view attribute, std::string_view value);
  SvgElement& With(std::string_view attribute, double pixels);
  SvgElement& Holding(std::string_view content);

  std::string Text() const;

 private:
  std::string name_;
  std::string attributes_;
  std::string content_;
};

}  // namespace tsx::report

#endif  // TSXPORT_REPORT_SVG_H_
