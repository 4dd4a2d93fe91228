#include <gtest/gtest.h>

#include "text/Quoting.h"

namespace tsx::text {
namespace {

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

}  // namespace
}  // namespace tsx::text
