#ifndef TSFCORE_AMPOWERS_H_
#define TSFCORE_AMPOWERS_H_

#include <cstdint>
#include <initializer_list>
#include <utility>
#include <vector>

#include <tsfcore/Export.h>

// The lags of one polynomial in the backshift operator, in periods, in rising order. A factor
// 1 - phi1 B - phi3 B^3 has the power list (1, 3); seasonal factors hold lags in periods too, for
// example (12, 24).
class TSF_EXPORT AMPowers {
 public:
  AMPowers() = default;
  AMPowers(std::initializer_list<std::uint32_t> lags) : lags_(lags) {}
  explicit AMPowers(std::vector<std::uint32_t> lags) : lags_(std::move(lags)) {}

  std::uint32_t GetCount() const { return static_cast<std::uint32_t>(lags_.size()); }
  std::uint32_t GetPower(std::uint32_t i) const { return lags_[i]; }

 private:
  std::vector<std::uint32_t> lags_;
};

#endif  // TSFCORE_AMPOWERS_H_
