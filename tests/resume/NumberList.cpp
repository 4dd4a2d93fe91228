#include "NumberList.h"

#include <charconv>
#include <stdexcept>
#include <string>

namespace test {

std::vector<double> NumbersIn(const pugi::xml_node& element) {
  const std::string text = element.text().get();
  std::vector<double> numbers;
  const char* at = text.data();
  const char* const end = at + text.size();
  while (at != end) {
    double value = 0;
    const auto [next, error] = std::from_chars(at, end, value);
    if (error != std::errc()) throw std::runtime_error("not a number list: " + text);
    numbers.push_back(value);
    at = next == end ? next : next + 1;
  }
  return numbers;
}

}  // namespace test
