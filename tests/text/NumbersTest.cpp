#include <gtest/gtest.h>

#include "support/ScopedLocale.h"
#include "text/Numbers.h"

namespace tsx::text {
namespace {

TEST(NumberText, HasNoTrailingZeros) { EXPECT_EQ(NumberText(12.5), "12.5"); }
TEST(NumberText, HasFifteenDigits) { EXPECT_EQ(NumberText(1.0 / 3), "0.333333333333333"); }

TEST(NumberText, IgnoresTheLocale) {
  const test::ScopedLocale german("de_DE.UTF-8");
  const test::ScopedGroupingCxxLocale grouping;
  EXPECT_EQ(NumberText(1234567.25), "1234567.25");
  EXPECT_EQ(FixedText(1234567.25, 1), "1234567.2");
}

}  // namespace
}  // namespace tsx::text
