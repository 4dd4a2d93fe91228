#include "text/Numbers.h"

#include <array>
#include <charconv>

namespace tsx::text {

std::string NumberText(double value, int digits) {
  std::array<char, 64> buffer{};
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                    std::chars_format::general, digits);
  return {buffer.data(), result.ptr};
}

std::string FixedText(double value, int decimals) {
  std::array<char, 512> buffer{};  // the largest double has 309 digits before the point
  const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                    std::chars_format::fixed, decimals);
  return {buffer.data(), result.ptr};
}

}  // namespace tsx::text
