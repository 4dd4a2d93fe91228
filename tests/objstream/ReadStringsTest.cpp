#include <gtest/gtest.h>

#include "objstream/Values.h"

namespace {

using test::StringLine;
using test::ValueOf;

std::optional<std::string> StringOf(const std::string& line) {
  return ValueOf<std::string>(line, "before");
}

TEST(ReadStrings, StringLineGivesAString) { EXPECT_EQ(StringOf(StringLine("abc")), "abc"); }
TEST(ReadStrings, BlanksComeBack) { EXPECT_EQ(StringOf(StringLine("a b")), "a b"); }

TEST(ReadStrings, EverythingUpToTheQuoteComesBack) {
  EXPECT_EQ(StringOf(StringLine(" \ta<b>=c/ ")), " \ta<b>=c/ ");
}

TEST(ReadStrings, ReferencesAreNotDecoded) {
  EXPECT_EQ(StringOf(StringLine("a&lt;b")), "a&lt;b");
  EXPECT_EQ(StringOf(StringLine("&#32;&quot;")), "&#32;&quot;");
}

TEST(ReadStrings, EmptyValueIsTheEmptyString) {
  EXPECT_EQ(StringOf("<String value=\"\"/>\n"), "");
  EXPECT_EQ(StringOf("<String value=\"\"/>\r\n"), "");
  EXPECT_EQ(StringOf("<String value=\"\"/>"), "");
}

TEST(ReadStrings, NoTokenBehindTheAttributeIsTheEmptyString) {
  EXPECT_EQ(StringOf("<String value"), "");
  EXPECT_EQ(StringOf("<String value="), "");
  EXPECT_EQ(StringOf("<String value=\"\n"), "");
  EXPECT_EQ(StringOf("<String value=\"\"\r\n"), "");
}

// Only the very form that the writer gives an empty value counts as one.
TEST(ReadStrings, TagEndBehindOtherThanTwoQuotesIsText) {
  EXPECT_EQ(StringOf("<String value=/>"), "/>");
  EXPECT_EQ(StringOf("<String value=\"/>"), "/>");
  EXPECT_EQ(StringOf("<String value=\"\" />"), " />");
  EXPECT_EQ(StringOf("<String value=\"\"/>x"), "/>x");
  EXPECT_EQ(StringOf("<String value=\"\"/"), "/");
  EXPECT_EQ(StringOf("<String value=\"\"\r/>"), "/>");
}

TEST(ReadStrings, MoreThanTwoQuotesAreSkippedToo) {
  EXPECT_EQ(StringOf("<String value=\"\"\"/>"), "");
  EXPECT_EQ(StringOf("<String value=\"\"\"x\"/>"), "x");
}

// The byte behind "value" is used up: when it is a quote, it is not one of the two.
TEST(ReadStrings, QuoteThatEndsTheAttributeNameDoesNotCount) {
  EXPECT_EQ(StringOf("<String value\"\"/>"), "/>");
  EXPECT_EQ(StringOf("<String value\"\"\"/>"), "");
}

TEST(ReadStrings, CarriageReturnEndsTheText) {
  EXPECT_EQ(StringOf("<String value=\"a\rb\"/>\n"), "a");
  EXPECT_EQ(StringOf("<String value=\"ab\r\n"), "ab");
}

TEST(ReadStrings, OtherElementsAndAttributesAreRefused) {
  for (const char* line :
       {"", "\n", "<", "<String", "<String \n", "<Strings value=\"a\"/>", "<Int value=\"a\"/>",
        "<String Value=\"a\"/>", "<String  value=\"a\"/>", "<String value =\"a\"/>"}) {
    EXPECT_EQ(StringOf(line), std::nullopt) << line;
  }
}

TEST(ReadStrings, BytesComeBackAsTheyAre) {
  std::string bytes;
  for (int code = 1; code < 256; ++code) {
    const char c = static_cast<char>(code);
    if (c != '"' && c != '\r' && c != '\n') bytes += c;
  }
  EXPECT_EQ(StringOf("<String value=\"" + bytes.substr(0, 126) + "\"/>\n"), bytes.substr(0, 126));
  EXPECT_EQ(StringOf("<String value=\"" + bytes.substr(126) + "\"/>\n"), bytes.substr(126));
}

}  // namespace
