#include <gtest/gtest.h>

#include "text/Words.h"

namespace tsx::text {
namespace {

TEST(Trimmed, LosesBlanksAndTabsAtBothEnds) {
  EXPECT_EQ(Trimmed(" \t a b\t"), "a b");
  EXPECT_EQ(Trimmed(" \t "), "");
  EXPECT_EQ(Trimmed("a\n"), "a\n");
}

TEST(AsciiLowercase, LeavesOtherAlphabetsAlone) {
  EXPECT_EQ(AsciiLowercase("DaTe \xC3\x84"), "date \xC3\x84");
}

TEST(Joined, KeepsEmptyParts) { EXPECT_EQ(Joined({"", "a", ""}, ","), ",a,"); }

TEST(Counted, OneIsAlone) {
  EXPECT_EQ(Counted(1, "case"), "1 case");
  EXPECT_EQ(Counted(0, "case"), "0 cases");
  EXPECT_EQ(Counted(12, "case"), "12 cases");
}

}  // namespace
}  // namespace tsx::text
