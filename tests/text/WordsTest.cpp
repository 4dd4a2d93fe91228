#include <gtest/gtest.h>

#include "text/Words.h"

namespace tsx::text {
namespace {

TEST(Joined, KeepsEmptyParts) { EXPECT_EQ(Joined({"", "a", ""}, ","), ",a,"); }

TEST(Counted, OneIsAlone) {
  EXPECT_EQ(Counted(1, "case"), "1 case");
  EXPECT_EQ(Counted(0, "case"), "0 cases");
  EXPECT_EQ(Counted(12, "case"), "12 cases");
}

}  // namespace
}  // namespace tsx::text
