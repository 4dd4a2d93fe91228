#ifndef TSXPORT_XML_NUMBERTEXT_H_
#define TSXPORT_XML_NUMBERTEXT_H_

#include <string_view>

namespace tsx {

// The text of a number as "%.15g" gives it in the classic locale, without any locale, stream or
// allocation. The view is into this object.
class NumberText {
 public:
  explicit NumberText(double value) noexcept;
  NumberText(const NumberText&) = delete;
  NumberText& operator=(const NumberText&) = delete;

  std::string_view view() const { return {text_, size_}; }

 private:
  // Sign, 15 digits, decimal point and either "e-308" or four zeros in front make 21 at most
  // ("-0.000123456789012345").
  char text_[32];
  std::size_t size_;
};

}  // namespace tsx

#endif  // TSXPORT_XML_NUMBERTEXT_H_
