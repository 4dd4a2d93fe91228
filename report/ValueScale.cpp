#include "report/ValueScale.h"

#include <algorithm>
#include <cmath>

#include "text/Numbers.h"

namespace tsx::report {
namespace {

constexpr double kLargestGrouped = 1e9;  // larger and much smaller numbers go by exponents
constexpr double kSmallestFixed = 1e-6;
constexpr double kLeastDifference = 1e-12;  // of values, relative; closer ones differ by rounding

// The 1, 2 or 5 times a power of ten that is not below `width`.
double RoundStep(double width) {
  const double power = std::pow(10, std::floor(std::log10(width)));
  for (const double digit : {1.0, 2.0, 5.0}) {
    if (digit * power >= width * (1 - 1e-9)) return digit * power;
  }
  return 10 * power;
}

// A blank between groups of three digits before the point.
std::string Grouped(const std::string& text) {
  const std::size_t point = std::min(text.find('.'), text.size());
  std::string grouped;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool inside = i > 0 && i < point && text[i - 1] != '-';
    if (inside && (point - i) % 3 == 0) grouped += ' ';
    grouped += text[i];
  }
  return grouped;
}

}  // namespace

std::vector<double> ValueScale::Ticks() const {
  std::vector<double> ticks;
  const auto count = static_cast<int>(std::lround((high - low) / step));
  for (int i = 0; i <= count; ++i) ticks.push_back(low + i * step);
  return ticks;
}

std::string ValueScale::Label(double tick) const {
  const double value = std::abs(tick) < step / 2 ? 0 : tick;
  if (step < kSmallestFixed || std::max(std::abs(low), std::abs(high)) > kLargestGrouped) {
    return text::NumberText(value, 6);
  }
  const int decimals = std::max(0, static_cast<int>(-std::floor(std::log10(step) + 1e-9)));
  return Grouped(text::FixedText(value, decimals));
}

ValueScale MakeValueScale(double low, double high, int steps) {
  const double largest = std::max(std::abs(low), std::abs(high));
  if (!(high - low > kLeastDifference * largest)) {
    const double half = low == 0 ? 1 : std::abs(low) / 2;
    return MakeValueScale(low - half, high + half, steps);
  }
  ValueScale scale;
  scale.step = RoundStep(high / steps - low / steps);
  scale.low = std::floor(low / scale.step) * scale.step;
  scale.high = std::ceil(high / scale.step) * scale.step;
  return scale;
}

}  // namespace tsx::report
