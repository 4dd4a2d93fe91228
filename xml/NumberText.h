#ifndef TSXPORT_XML_NUMBERTEXT_H_
#define TSXPORT_XML_NUMBERTEXT_H_

#include <cstddef>
#include <string_view>

namespace tsx {

// The longest number text: sign, "0.000" and fifteen digits ("-0.000123456789012345"), or sign,
// fifteen digits, decimal point and exponent ("-1.23456789012345e-300").
inline constexpr std::size_t kMaxNumberSize = 22;

// Writes the text of `value` as "%.15g" gives it in the classic locale, at most kMaxNumberSize
// bytes, and returns its end. No locale, stream or allocation takes part.
char* PutNumber(double value, char* out) noexcept;

// The same as an object. The view is into it.
class NumberText {
 public:
  explicit NumberText(double value) noexcept
      : size_(static_cast<std::size_t>(PutNumber(value, text_) - text_)) {}
  NumberText(const NumberText&) = delete;
  NumberText& operator=(const NumberText&) = delete;

  std::string_view view() const { return {text_, size_}; }

 private:
  char text_[kMaxNumberSize];
  std::size_t size_;
};

}  // namespace tsx

#endif  // TSXPORT_XML_NUMBERTEXT_H_
