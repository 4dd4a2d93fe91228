#include <gtest/gtest.h>

#include <tsxport/XMLString.h>

#include "xml/ElementPtr.h"
#include "xml/Text.h"

namespace {

using TIMESERIESXML::ExportFormat;
using TIMESERIESXML::XMLString;

// By ToString(), ToStream() and as an element's text, which must agree.
std::string Written(const std::string& data) {
  const std::unique_ptr<XMLString> string(XMLString::Create(data));
  const std::string text = test::StringOf(*string);
  EXPECT_EQ(test::StreamedTextOf(*string), text);
  const auto element = test::NewElement("e");
  tsx::AppendText(*element, data);
  EXPECT_EQ(test::StringOf(*element), "\n<e>" + text + "</e>");
  return text;
}

TEST(CharacterData, AmpersandAndLessThanAreEscaped) {
  EXPECT_EQ(Written("a>b & c"), "a>b &amp; c");
  EXPECT_EQ(Written("<&<"), "&lt;&amp;&lt;");
}

TEST(CharacterData, EntityInTheDataIsEscapedAgain) { EXPECT_EQ(Written("&lt;"), "&amp;lt;"); }

TEST(CharacterData, QuotesTabsAndLineEndsStay) {
  EXPECT_EQ(Written("\"it's\"\t\r\n]]>"), "\"it's\"\t\r\n]]>");
}

TEST(CharacterData, BlanksStayAtBothEndsAndInPairs) { EXPECT_EQ(Written("  a  "), "  a  "); }

TEST(CharacterData, MayBeEmpty) { EXPECT_EQ(Written(""), ""); }

TEST(CharacterData, NulAndHighBytesStay) {
  const std::string bytes("a\0\xff\x80", 4);
  EXPECT_EQ(Written(bytes), bytes);
}

TEST(CharacterData, TurnsOffNewParagraphAndIndentation) {
  ExportFormat format;
  std::string text;
  XMLString("x").ToString(text, format);
  EXPECT_FALSE(format.IsNewParagraph());
  EXPECT_FALSE(format.HasIndentation());
}

TEST(CharacterData, AppendsToWhatIsThere) {
  ExportFormat format;
  std::string text = "before ";
  XMLString("x").ToString(text, format);
  EXPECT_EQ(text, "before x");
}

TEST(CharacterData, LongerThanABlockIsWrittenWhole) {
  const std::string data(3U << 20U, 'x');
  EXPECT_EQ(Written(data), data);
}

}  // namespace
