#include <gtest/gtest.h>

#include "text/Utf8.h"

namespace tsx::text {
namespace {

TEST(Utf8, WellFormedTextOfEveryLengthIsAccepted) {
  EXPECT_EQ(FindInvalidUtf8("a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"), std::string_view::npos);
}

TEST(Utf8, StrayContinuationByteIsFound) { EXPECT_EQ(FindInvalidUtf8("ab\x80"), 2U); }
TEST(Utf8, TruncatedCharacterIsFound) { EXPECT_EQ(FindInvalidUtf8("a\xE2\x82"), 1U); }
TEST(Utf8, OverlongFormIsFound) { EXPECT_EQ(FindInvalidUtf8("\xC0\xAF"), 0U); }
TEST(Utf8, OverlongThreeByteFormIsFound) { EXPECT_EQ(FindInvalidUtf8("\xE0\x80\xAF"), 0U); }
TEST(Utf8, SurrogateIsFound) { EXPECT_EQ(FindInvalidUtf8("\xED\xA0\x80"), 0U); }
TEST(Utf8, NumberBeyondUnicodeIsFound) { EXPECT_EQ(FindInvalidUtf8("\xF4\x90\x80\x80"), 0U); }
TEST(Utf8, Latin1IsFound) { EXPECT_EQ(FindInvalidUtf8("caf\xE9,"), 3U); }

TEST(CleanName, LettersOfAnyAlphabetAreClean) {
  EXPECT_TRUE(IsCleanName("Ums\xC3\xA4tze in \xE2\x82\xAC"));
}

TEST(CleanName, NoBreakSpaceIsClean) { EXPECT_TRUE(IsCleanName("a\xC2\xA0z")); }
TEST(CleanName, TabIsAControlCharacter) { EXPECT_FALSE(IsCleanName("a\tb")); }
TEST(CleanName, DeleteIsAControlCharacter) { EXPECT_FALSE(IsCleanName("a\x7F")); }

TEST(CleanName, LastOfTheUpperControlCharactersIsNotClean) {
  EXPECT_FALSE(IsCleanName("a\xC2\x9F"));
}

TEST(CleanName, NonCharacterForbiddenInXmlIsNotClean) {
  EXPECT_FALSE(IsCleanName("\xEF\xBF\xBE"));
  EXPECT_FALSE(IsCleanName("\xEF\xBF\xBF"));
  EXPECT_TRUE(IsCleanName("\xEF\xBF\xBD"));
}

}  // namespace
}  // namespace tsx::text
