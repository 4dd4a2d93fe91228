#include <gtest/gtest.h>

#include "xml/ElementPtr.h"
#include "xml/Text.h"

namespace {

using test::AddChild;
using test::AddText;
using test::NewElement;
using TIMESERIESXML::ExportFormat;
using TIMESERIESXML::XMLElement;

// By both ways of output, which must agree.
std::string Written(const XMLElement& element) {
  const std::string text = test::StringOf(element);
  EXPECT_EQ(test::StreamedTextOf(element), text);
  return text;
}

std::string WrittenOnOneLine(const XMLElement& element) {
  return test::StreamedTextOf(element, false);
}

TEST(ElementText, WithoutAttributesAndChildrenIsEmptyForm) {
  EXPECT_EQ(Written(*NewElement("a")), "\n<a/>");
}

TEST(ElementText, NameStandsAsGiven) {
  EXPECT_EQ(Written(*NewElement("xsi:a&b")), "\n<xsi:a&b/>");
  EXPECT_EQ(Written(*NewElement("")), "\n</>");
}

TEST(ElementText, AttributesStandOnLinesOfTheirOwn) {
  const auto element = NewElement("a");
  element->AddAttribute("x", "1");
  element->AddAttribute("y", "2");
  EXPECT_EQ(Written(*element), "\n<a\n\tx=\"1\"\n\ty=\"2\"/>");
}

TEST(ElementText, TagEndsBehindTheLastAttribute) {
  const auto element = NewElement("a");
  element->AddAttribute("x", "1");
  AddChild(*element, "b");
  EXPECT_EQ(Written(*element), "\n<a\n\tx=\"1\">\n\t<b/>\n</a>");
}

TEST(ElementText, ChildrenAreIndentedByOneTabMore) {
  const auto root = NewElement("a");
  AddChild(AddChild(*root, "b"), "c").AddAttribute("x", "1");
  EXPECT_EQ(Written(*root), "\n<a>\n\t<b>\n\t\t<c\n\t\t\tx=\"1\"/>\n\t</b>\n</a>");
}

TEST(ElementText, OnlyTextStandsOnOneLine) {
  const auto element = NewElement("a");
  AddText(*element, "text");
  EXPECT_EQ(Written(*element), "\n<a>text</a>");
}

TEST(ElementText, EmptyTextIsNotTheEmptyForm) {
  const auto element = NewElement("a");
  AddText(*element, "");
  EXPECT_EQ(Written(*element), "\n<a></a>");
}

TEST(ElementText, ElementBehindTextStaysOnTheLine) {
  const auto element = NewElement("a");
  AddText(*element, "text");
  AddChild(*element, "b");
  EXPECT_EQ(Written(*element), "\n<a>text<b/>\n</a>");
}

TEST(ElementText, AttributesBehindTextAreSeparatedByABlank) {
  const auto element = NewElement("a");
  AddText(*element, "text");
  XMLElement& child = AddChild(*element, "b");
  child.AddAttribute("x", "1");
  child.AddAttribute("y", "2");
  EXPECT_EQ(Written(*element), "\n<a>text<b x=\"1\" y=\"2\"/>\n</a>");
}

TEST(ElementText, LinesBeginAgainBehindAnElement) {
  const auto element = NewElement("a");
  AddText(*element, "text");
  AddChild(*element, "b");
  AddChild(*element, "c").AddAttribute("x", "1");
  EXPECT_EQ(Written(*element), "\n<a>text<b/>\n\t<c\n\t\tx=\"1\"/>\n</a>");
}

TEST(ElementText, TextBehindAnElementKeepsTheEndTagOnItsLine) {
  const auto element = NewElement("a");
  AddChild(*element, "b");
  AddText(*element, "text");
  EXPECT_EQ(Written(*element), "\n<a>\n\t<b/>text</a>");
}

TEST(ElementText, FirstGrandchildBehindTextStaysOnTheLineToo) {
  const auto element = NewElement("a");
  AddText(*element, "text");
  AddChild(AddChild(*element, "b"), "c");
  EXPECT_EQ(Written(*element), "\n<a>text<b><c/>\n\t</b>\n</a>");
}

TEST(ElementText, NextElementBehindMixedContentIsFormatted) {
  const auto root = NewElement("r");
  AddText(AddChild(*root, "a"), "text");
  AddChild(*root, "b");
  EXPECT_EQ(Written(*root), "\n<r>\n\t<a>text</a>\n\t<b/>\n</r>");
}

TEST(ElementText, WithoutFormatAllIsOnOneLine) {
  const auto root = NewElement("r");
  root->AddAttribute("x", "1");
  AddChild(*root, "a").AddAttribute("y", "2");
  AddText(AddChild(*root, "b"), "text");
  EXPECT_EQ(WrittenOnOneLine(*root), "<r x=\"1\"><a y=\"2\"/><b>text</b></r>");
}

TEST(ElementText, LineFeedInDataStaysWithoutFormat) {
  const auto root = NewElement("r");
  AddText(*root, "a\nb");
  EXPECT_EQ(WrittenOnOneLine(*root), "<r>a\nb</r>");
}

TEST(ElementText, IndentationAloneMayBeOff) {
  const auto root = NewElement("r");
  AddChild(*root, "a");
  ExportFormat format;
  format.SetIndentation(false);
  std::string text;
  root->ToString(text, format);
  // The root's start has no tabs anyway; its child's end turned indentation on again.
  EXPECT_EQ(text, "\n<r>\n<a/>\n</r>");
  EXPECT_TRUE(format.HasIndentation());
}

TEST(ElementText, NewParagraphAloneMayBeOff) {
  const auto root = NewElement("r");
  root->AddAttribute("x", "1");
  AddChild(*root, "a");
  ExportFormat format;
  format.SetIsNewParagraph(false);
  std::string text;
  root->ToString(text, format);
  EXPECT_EQ(text, "<r \tx=\"1\">\t<a/>\n</r>");
}

TEST(ElementText, WritingTwiceGivesTheSameTwice) {
  const auto root = NewElement("r");
  AddChild(*root, "a").AddAttribute("x", "1");
  const std::string first = Written(*root);
  EXPECT_EQ(Written(*root), first);
  ExportFormat format;
  std::string both;
  root->ToString(both, format);
  root->ToString(both, format);
  EXPECT_EQ(both, first + first);
}

TEST(ElementText, DeepTreesHaveAsManyTabs) {
  constexpr std::size_t kDepth = 5000;  // more tabs than an output block has bytes
  const auto root = NewElement("r");
  XMLElement* innermost = root.get();
  for (std::size_t i = 0; i < kDepth; ++i) innermost = &AddChild(*innermost, "e");
  innermost->AddAttribute("x", "1");
  std::string expected = "\n<r>";
  for (std::size_t i = 1; i < kDepth; ++i) expected += "\n" + std::string(i, '\t') + "<e>";
  expected +=
      "\n" + std::string(kDepth, '\t') + "<e\n" + std::string(kDepth + 1, '\t') + "x=\"1\"/>";
  for (std::size_t i = kDepth - 1; i > 0; --i) expected += "\n" + std::string(i, '\t') + "</e>";
  expected += "\n</r>";
  EXPECT_TRUE(Written(*root) == expected);
}

TEST(ElementText, LongNamesAndValuesAreWrittenWhole) {
  const std::string name(10000, 'n');
  const std::string value(3U << 20U, 'v');  // longer than what stands inside an element
  const auto root = NewElement(name);
  root->AddAttribute(name, value);
  root->AddAttribute(value, 1.5);
  AddText(*root, value);
  tsx::AppendText(*root, value);
  const std::string expected = "\n<" + name + "\n\t" + name + "=\"" + value + "\"\n\t" + value +
                               "=\"1.5\">" + value + value + "</" + name + ">";
  EXPECT_TRUE(Written(*root) == expected);
  EXPECT_TRUE(test::StreamedTextOf(*root, true, true) == expected);
}

}  // namespace
