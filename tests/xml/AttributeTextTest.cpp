#include <gtest/gtest.h>

#include <tsxport/XMLAttribute.h>

#include "xml/Text.h"

namespace {

using TIMESERIESXML::XMLAttribute;

// What stands between the quotes, by both ways of output, which must agree.
std::string Written(const std::string& value) {
  const std::unique_ptr<XMLAttribute> attribute(XMLAttribute::Create("n", value));
  const std::string text = test::StringOf(*attribute);
  EXPECT_EQ(test::StreamedTextOf(*attribute), text);
  EXPECT_EQ(text.substr(0, 3), "n=\"");
  EXPECT_EQ(text.back(), '"');
  return text.substr(3, text.size() - 4);
}

TEST(AttributeText, IsNameEqualsQuotedValue) {
  EXPECT_EQ(test::StringOf(XMLAttribute("unit", "m/s")), "unit=\"m/s\"");
}

TEST(AttributeText, EmptyValueLeavesTwoAdjacentQuotes) {
  EXPECT_EQ(test::StringOf(XMLAttribute("n", "")), "n=\"\"");
}

TEST(AttributeText, NameIsNotEscaped) {
  EXPECT_EQ(test::StringOf(XMLAttribute("a&b<c", "v")), "a&b<c=\"v\"");
}

TEST(AttributeText, EmptyNameIsAccepted) {
  EXPECT_EQ(test::StringOf(XMLAttribute("", "v")), "=\"v\"");
}

TEST(AttributeText, AmpersandBecomesAnEntityAlsoWhereItBeginsOne) {
  EXPECT_EQ(Written("a&b"), "a&amp;b");
  EXPECT_EQ(Written("&amp;"), "&amp;amp;");
}

TEST(AttributeText, LessThanBecomesAnEntity) { EXPECT_EQ(Written("a<b"), "a&lt;b"); }
TEST(AttributeText, GreaterThanBecomesAnEntity) { EXPECT_EQ(Written("a>b"), "a&gt;b"); }
TEST(AttributeText, DoubleQuoteBecomesAnEntity) { EXPECT_EQ(Written("a\"b"), "a&quot;b"); }
TEST(AttributeText, ApostropheStays) { EXPECT_EQ(Written("it's"), "it's"); }

TEST(AttributeText, QuoteApostropheAndLessThanTogether) {
  EXPECT_EQ(Written("\"'<"), "&quot;'&lt;");
}

TEST(AttributeText, TabBecomesAReference) { EXPECT_EQ(Written("a\tb"), "a&#9;b"); }
TEST(AttributeText, LineFeedBecomesAReference) { EXPECT_EQ(Written("a\nb"), "a&#10;b"); }
TEST(AttributeText, CarriageReturnBecomesAReference) { EXPECT_EQ(Written("a\rb"), "a&#13;b"); }

TEST(AttributeText, SingleBlankInsideStays) { EXPECT_EQ(Written("a b c"), "a b c"); }
TEST(AttributeText, SecondOfTwoBlanksBecomesAReference) { EXPECT_EQ(Written("a  b"), "a &#32;b"); }
TEST(AttributeText, ThirdOfThreeBlanksStays) { EXPECT_EQ(Written("a   b"), "a &#32; b"); }
TEST(AttributeText, FourBlanksAreTwoPairs) { EXPECT_EQ(Written("a    b"), "a &#32; &#32;b"); }

TEST(AttributeText, OneBlankAloneBecomesAReference) { EXPECT_EQ(Written(" "), "&#32;"); }
TEST(AttributeText, TwoBlanksAloneBecomeReferences) { EXPECT_EQ(Written("  "), "&#32;&#32;"); }
TEST(AttributeText, ThreeBlanksAloneBecomeReferences) {
  EXPECT_EQ(Written("   "), "&#32;&#32;&#32;");
}

TEST(AttributeText, FourBlanksAloneKeepTheThird) { EXPECT_EQ(Written("    "), "&#32;&#32; &#32;"); }

TEST(AttributeText, LeadingBlankBecomesAReference) { EXPECT_EQ(Written(" a"), "&#32;a"); }
TEST(AttributeText, TrailingBlankBecomesAReference) { EXPECT_EQ(Written("a "), "a&#32;"); }
TEST(AttributeText, TwoTrailingBlanksKeepTheFirst) { EXPECT_EQ(Written("a  "), "a &#32;"); }
TEST(AttributeText, ThreeTrailingBlanksKeepTheFirst) { EXPECT_EQ(Written("a   "), "a &#32;&#32;"); }

TEST(AttributeText, BlankAfterATabIsOnlyABlank) { EXPECT_EQ(Written("\t a"), "&#9; a"); }
TEST(AttributeText, BlanksOnBothSidesOfALineFeedAreNoPair) {
  EXPECT_EQ(Written("a \n b"), "a &#10; b");
}

TEST(AttributeText, OtherBytesStay) {
  EXPECT_EQ(Written("\x01\x7f\xc3\xa4\xff"), "\x01\x7f\xc3\xa4\xff");
}

TEST(AttributeText, NulByteStays) {
  const std::string withNul("a\0b", 3);
  EXPECT_EQ(Written(withNul), withNul);
}

TEST(AttributeText, LongValueWithAllKindsOfBytes) {
  std::string value;
  std::string expected;
  for (int i = 0; i < 1000; ++i) {
    value += "plain text, <&>\"\t\n\r;";
    expected += "plain text, &lt;&amp;&gt;&quot;&#9;&#10;&#13;;";
  }
  EXPECT_EQ(Written(value), expected);
}

TEST(AttributeText, NumbersHaveUpToFifteenDigits) {
  EXPECT_EQ(test::StringOf(XMLAttribute("n", 0.1)), "n=\"0.1\"");
  EXPECT_EQ(test::StringOf(XMLAttribute("n", 1e21)), "n=\"1e+21\"");
  const std::unique_ptr<XMLAttribute> third(XMLAttribute::Create("n", 1.0 / 3));
  EXPECT_EQ(test::StringOf(*third), "n=\"0.333333333333333\"");
}

TEST(AttributeText, WritingLeavesTheFormatAlone) {
  TIMESERIESXML::ExportFormat format;
  std::string text;
  XMLAttribute("n", "v").ToString(text, format);
  EXPECT_TRUE(format.IsNewParagraph());
  EXPECT_TRUE(format.HasIndentation());
}

}  // namespace
