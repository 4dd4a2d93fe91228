#include <gtest/gtest.h>

#include "text/Place.h"

namespace tsx::text {
namespace {

TEST(LocatedMessage, NamesFileLineAndColumn) {
  EXPECT_EQ(LocatedMessage("a.csv", {3, 14}, "there is no month 13"),
            "a.csv:3:14: there is no month 13");
}

TEST(LocatedMessage, NamesTheFileAloneWhereThereIsNoPlace) {
  EXPECT_EQ(LocatedMessage("a.csv", {}, "the file is empty"), "a.csv: the file is empty");
}

TEST(LocatedMessage, StaysOnOneLineWhateverTheFileIsCalled) {
  EXPECT_EQ(LocatedMessage("a\nb.csv", {1, 1}, "no"), "a?b.csv:1:1: no");
}

}  // namespace
}  // namespace tsx::text
