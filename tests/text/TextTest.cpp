#include <gtest/gtest.h>

#include "support/ScopedLocale.h"
#include "text/Text.h"

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

TEST(Printable, ControlCharactersAndStrayBytesBecomeQuestionMarks) {
  EXPECT_EQ(Printable("a\nb\x1B[0m\xFF\xC3\xA9"), "a?b?[0m?\xC3\xA9");
}

TEST(Quoted, LongTextIsCutBetweenCharacters) {
  std::string text;
  for (int i = 0; i < 50; ++i) text += "\xC3\xA9";
  EXPECT_EQ(Quoted(text), "'" + text.substr(0, 80) + "...'");
}

TEST(Quoted, TextOfFortyCharactersIsWhole) {
  EXPECT_EQ(Quoted(std::string(40, 'x')), "'" + std::string(40, 'x') + "'");
}

TEST(CsvWriting, CellsGetQuotesWhereTheyNeedThem) {
  EXPECT_EQ(CsvField("plain"), "plain");
  EXPECT_EQ(CsvField("a,b"), "\"a,b\"");
  EXPECT_EQ(CsvField("a;b"), "\"a;b\"");
  EXPECT_EQ(CsvField("say \"x\""), "\"say \"\"x\"\"\"");
  EXPECT_EQ(CsvField(" x"), "\" x\"");
  EXPECT_EQ(CsvField("\xEF\xBB\xBFx"), "\"\xEF\xBB\xBFx\"");  // or it would pass for a mark
  EXPECT_EQ(CsvField(""), "");
}

TEST(NumberText, HasNoTrailingZeros) { EXPECT_EQ(NumberText(12.5), "12.5"); }
TEST(NumberText, HasFifteenDigits) { EXPECT_EQ(NumberText(1.0 / 3), "0.333333333333333"); }
TEST(NumberText, IgnoresTheLocale) {
  const test::ScopedLocale german("de_DE.UTF-8");
  const test::ScopedGroupingCxxLocale grouping;
  EXPECT_EQ(NumberText(1234567.25), "1234567.25");
  EXPECT_EQ(FixedText(1234567.25, 1), "1234567.2");
}

TEST(Joined, KeepsEmptyParts) { EXPECT_EQ(Joined({"", "a", ""}, ","), ",a,"); }

}  // namespace
}  // namespace tsx::text
