#ifndef TSXPORT_REPORT_VALUESCALE_H_
#define TSXPORT_REPORT_VALUESCALE_H_

#include <string>
#include <vector>

namespace tsx::report {

// Round numbers for an axis of values: `low` and `high` are whole multiples of `step`, which is 1,
// 2 or 5 times a power of ten.
struct ValueScale {
  double low = 0;
  double high = 1;
  double step = 1;

  std::vector<double> Ticks() const;
  // A tick's text, with as many decimals as the step needs and groups of three digits.
  std::string Label(double tick) const;
};

// The scale that holds all values from `low` to `high`, both finite, low <= high, in about `steps`
// steps. Values that are equal but for rounding get a scale around them.
ValueScale MakeValueScale(double low, double high, int steps);

}  // namespace tsx::report

#endif  // TSXPORT_REPORT_VALUESCALE_H_
