#ifndef TSXPORT_TEXT_NUMBERS_H_
#define TSXPORT_TEXT_NUMBERS_H_

#include <string>

// Numbers as texts, in any locale with '.' as decimal character.
namespace tsx::text {

// `value` with up to `digits` significant digits, no trailing zeros.
std::string NumberText(double value, int digits = 15);

// `value` with exactly `decimals` decimals.
std::string FixedText(double value, int decimals);

}  // namespace tsx::text

#endif  // TSXPORT_TEXT_NUMBERS_H_
