#include <gtest/gtest.h>
#include <limits>

#include <tsxport/XMLUtil.h>

namespace {

using TIMESERIESXML::XMLUtil;

// Read by the initialiser of a static object of another file.
const std::string readAtStart = XMLUtil::FIRST_LINE + XMLUtil::XML_SP_CHARREF_SP;

TEST(XMLUtil, ConstantsAreReadyForOtherStaticInitialisers) {
  EXPECT_EQ(readAtStart, "<?xml version=\"1.0\" encoding=\"UTF-8\" ?> &#32;");
}

TEST(XMLUtil, ConstantsHaveTheirTexts) {
  EXPECT_EQ(XMLUtil::FIRST_LINE, "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>");
  EXPECT_EQ(XMLUtil::ROWSEP, "\n");
  EXPECT_EQ(XMLUtil::ITEMINDENT, "\t");
  EXPECT_EQ(XMLUtil::QUOTE, "\"");
  EXPECT_EQ(XMLUtil::EQUAL, "=");
  EXPECT_EQ(XMLUtil::BEGIN_ELEMENT, "<");
  EXPECT_EQ(XMLUtil::BEGIN_PREPROCESSOR, "!");
  EXPECT_EQ(XMLUtil::END_ELEMENT, ">");
  EXPECT_EQ(XMLUtil::BEGIN_END_ELEMENT, "/");
  EXPECT_EQ(XMLUtil::SPACE, " ");
  EXPECT_EQ(XMLUtil::AMPERSAND, "&");
  EXPECT_EQ(XMLUtil::LESS_THAN, "<");
  EXPECT_EQ(XMLUtil::GREATER_THAN, ">");
  EXPECT_EQ(XMLUtil::XML_AMPERSAND, "&amp;");
  EXPECT_EQ(XMLUtil::XML_LESS_THAN, "&lt;");
  EXPECT_EQ(XMLUtil::XML_GREATER_THAN, "&gt;");
  EXPECT_EQ(XMLUtil::XML_QUOTE, "&quot;");
  EXPECT_EQ(XMLUtil::XML_CHARREF_TAB, "&#9;");
  EXPECT_EQ(XMLUtil::XML_CHARREF_NL, "&#10;");
  EXPECT_EQ(XMLUtil::XML_CHARREF_CR, "&#13;");
  EXPECT_EQ(XMLUtil::XML_CHARREF_SP, "&#32;");
  EXPECT_EQ(XMLUtil::XML_SP_CHARREF_SP, " &#32;");
  EXPECT_EQ(XMLUtil::TAB_LENGTH, 8);
}

TEST(XMLUtil, GetTabsGivesThatManyTabs) {
  EXPECT_EQ(XMLUtil::GetTabs(1), "\t");
  EXPECT_EQ(XMLUtil::GetTabs(3), "\t\t\t");
}

TEST(XMLUtil, GetTabsBelowOneIsEmpty) {
  EXPECT_EQ(XMLUtil::GetTabs(0), "");
  EXPECT_EQ(XMLUtil::GetTabs(-1), "");
  EXPECT_EQ(XMLUtil::GetTabs(std::numeric_limits<int>::min()), "");
}

TEST(XMLUtil, ToStringIsDecimal) {
  EXPECT_EQ(XMLUtil::toString(0), "0");
  EXPECT_EQ(XMLUtil::toString(-42), "-42");
  EXPECT_EQ(XMLUtil::toString(std::numeric_limits<int>::min()), "-2147483648");
}

TEST(XMLUtil, ReplaceAtPosReplacesTheNextOccurrence) {
  std::string s = "a-b-c";
  int pos = 2;
  EXPECT_EQ(XMLUtil::ReplaceAtPos(s, "-", "++", pos), 3);
  EXPECT_EQ(pos, 3);
  EXPECT_EQ(s, "a-b++c");
}

TEST(XMLUtil, ReplaceAtPosFindsAnOccurrenceAtPosItself) {
  std::string s = "xyx";
  int pos = 2;
  EXPECT_EQ(XMLUtil::ReplaceAtPos(s, "x", "", pos), 2);
  EXPECT_EQ(s, "xy");
}

TEST(XMLUtil, ReplaceAtPosBeyondTheEndChangesNothing) {
  std::string s = "abc";
  int pos = 4;
  EXPECT_EQ(XMLUtil::ReplaceAtPos(s, "a", "b", pos), -1);
  EXPECT_EQ(pos, 4);
  EXPECT_EQ(s, "abc");
}

TEST(XMLUtil, ReplaceAtPosAtTheEndFindsNothing) {
  std::string s = "abc";
  int pos = 3;
  EXPECT_EQ(XMLUtil::ReplaceAtPos(s, "c", "d", pos), -1);
  EXPECT_EQ(s, "abc");
}

TEST(XMLUtil, ReplaceAllTakesEveryOccurrenceOnce) {
  std::string s = "&a&&";
  XMLUtil::ReplaceAll(s, "&", "&amp;");
  EXPECT_EQ(s, "&amp;a&amp;&amp;");
}

TEST(XMLUtil, ReplaceAllTakesPairsWithoutOverlap) {
  std::string s = "     ";
  XMLUtil::ReplaceAll(s, "  ", " &#32;");
  EXPECT_EQ(s, " &#32; &#32; ");
}

TEST(XMLUtil, ReplaceAllReturnsTheAnswerOfItsLastSearch) {
  std::string s = "aXXbXX";
  EXPECT_EQ(XMLUtil::ReplaceAll(s, "XX", "-"), -1);
  EXPECT_EQ(XMLUtil::ReplaceAll(s, "XX", "-"), -1);
}

TEST(XMLUtil, ReplaceAllMayShorten) {
  std::string s = "aXXbXX";
  XMLUtil::ReplaceAll(s, "XX", "");
  EXPECT_EQ(s, "ab");
}

TEST(XMLUtil, ReplaceStringTakesTheFirstOnly) {
  std::string s = "one two one";
  EXPECT_EQ(XMLUtil::ReplaceString(s, "one", "1"), 0);
  EXPECT_EQ(s, "1 two one");
  EXPECT_EQ(XMLUtil::ReplaceString(s, "three", "3"), -1);
  EXPECT_EQ(s, "1 two one");
}

}  // namespace
