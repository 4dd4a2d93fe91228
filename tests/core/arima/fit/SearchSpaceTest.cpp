// Partial autocorrelations by hand-worked cases.

#include <gtest/gtest.h>

#include "arima/fit/SearchSpace.h"
#include "core/support/Close.h"
#include "math/Polynomial.h"

namespace tsffit {
namespace {

using test::ExpectClose;

TEST(PartialAutocorrelations, OfTheSecondOrder) {
  // phi_22 = r_2, phi_21 = r_1 (1 - r_2)
  ExpectClose(FromPartials(std::vector{0.5, 0.3}), {0.35, 0.3});
  ExpectClose(*ToPartials(std::vector{0.35, 0.3}), {0.5, 0.3});
}

TEST(PartialAutocorrelations, ThereAndBackAgain) {
  const std::vector<double> partials = {0.9, -0.8, 0.1, 0.99, -0.5, 0.7, 0, -0.95};
  for (std::size_t count = 0; count <= partials.size(); ++count) {
    const std::span<const double> some = std::span(partials).first(count);
    ExpectClose(*ToPartials(FromPartials(some)), {some.begin(), some.end()}, 1e-10);
  }
}

TEST(PartialAutocorrelations, InsideTheUnitIntervalMeanStability) {
  for (const double last : {0.999, -0.999}) {
    Polynomial p = {1};
    for (const double c : FromPartials(std::vector{0.9, -0.8, 0.7, last})) p.push_back(-c);
    EXPECT_TRUE(IsStable(p));
  }
  EXPECT_FALSE(ToPartials(std::vector{0.5, 1.0}));
  EXPECT_FALSE(ToPartials(std::vector{0.7, 0.3}));  // 1 - 0.7 - 0.3 = 0
}

}  // namespace
}  // namespace tsffit
