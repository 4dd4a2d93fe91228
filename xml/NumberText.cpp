#include "xml/NumberText.h"

#include <charconv>

namespace tsx {

NumberText::NumberText(double value) noexcept
    : size_(static_cast<std::size_t>(
          std::to_chars(text_, text_ + sizeof text_, value, std::chars_format::general, 15).ptr -
          text_)) {}

}  // namespace tsx
