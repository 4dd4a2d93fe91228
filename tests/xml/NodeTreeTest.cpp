#include <cstring>
#include <gtest/gtest.h>

#include "support/FailingAllocation.h"
#include "xml/ElementPtr.h"
#include "xml/Text.h"

namespace {

using test::AddChild;
using test::NewElement;
using TIMESERIESXML::XMLAttribute;
using TIMESERIESXML::XMLElement;
using TIMESERIESXML::XMLInterface;
using TIMESERIESXML::XMLString;

TEST(NodeTree, AddElementReturnsTheNumberOfChildren) {
  const auto root = NewElement("r");
  EXPECT_EQ(root->AddElement(XMLElement::Create("a")), 1);
  EXPECT_EQ(root->AddElement(XMLString::Create("b")), 2);
  EXPECT_EQ(root->AddElement(XMLElement::Create("c")), 3);
  for (int i = 4; i < 1000; ++i) EXPECT_EQ(root->AddElement(XMLString::Create("")), i);
}

TEST(NodeTree, BuildersTextsCountAsChildren) {
  const auto root = NewElement("r");
  tsx::AppendText(*root, "a");
  EXPECT_EQ(root->AddElement(XMLElement::Create("b")), 2);
}

TEST(NodeTree, ChildrenOfBothKindsKeepTheirOrder) {
  const auto root = NewElement("r");
  root->AddElement(XMLString::Create("1"));
  root->AddElement(XMLElement::Create("a"));
  tsx::AppendText(*root, "2");
  root->AddElement(XMLString::Create("3"));
  root->AddElement(XMLElement::Create("b"));
  EXPECT_EQ(test::StreamedTextOf(*root, false), "<r>1<a/>23<b/></r>");
}

TEST(NodeTree, AttributesOfOneNameAreBothKept) {
  const auto root = NewElement("r");
  root->AddAttribute("x", "1");
  root->AddAttribute("x", "2");
  EXPECT_EQ(test::StreamedTextOf(*root, false), "<r x=\"1\" x=\"2\"/>");
}

TEST(NodeTree, AttributesOfAllKindsKeepTheirOrder) {
  const auto root = NewElement("r");
  root->AddAttribute("a", "1");
  root->AddAttribute(XMLAttribute::Create("b", "2"));
  root->AddAttribute("c", 3);
  root->AddAttribute(new XMLAttribute("d", 0.5));
  EXPECT_EQ(test::StreamedTextOf(*root, false), "<r a=\"1\" b=\"2\" c=\"3\" d=\"0.5\"/>");
}

TEST(NodeTree, AttributesAndChildrenMayBeAddedInAnyTurn) {
  const auto root = NewElement("r");
  tsx::AppendText(*root, "t");
  root->AddAttribute("a", "1");
  AddChild(*root, "e");
  root->AddAttribute("b", "2");
  tsx::AppendText(*root, "u");
  EXPECT_EQ(test::StreamedTextOf(*root, false), "<r a=\"1\" b=\"2\">t<e/>u</r>");
}

TEST(NodeTree, NumericAttributesStoreFifteenDigits) {
  const auto root = NewElement("r");
  root->AddAttribute("x", 0.1);
  root->AddAttribute("y", 1e21);
  EXPECT_EQ(test::StreamedTextOf(*root, false), "<r x=\"0.1\" y=\"1e+21\"/>");
}

TEST(NodeTree, ChildMayBeFilledAfterItWasAdded) {
  const auto root = NewElement("r");
  XMLElement* child = XMLElement::Create("c");
  root->AddElement(child);
  child->AddAttribute("x", "1");
  AddChild(*child, "d");
  EXPECT_EQ(test::StreamedTextOf(*root, false), "<r><c x=\"1\"><d/></c></r>");
}

TEST(NodeTree, ManyAttributesAndChildrenAreAllKept) {
  const auto root = NewElement("r");
  std::string attributes;
  std::string children;
  for (int i = 0; i < 500; ++i) {
    const std::string n = std::to_string(i);
    root->AddAttribute("a" + n, i);
    AddChild(*root, "e" + n);
    tsx::AppendText(*root, n);
    attributes += " a" + n + "=\"" + n + "\"";
    children += "<e" + n + "/>" + n;
  }
  EXPECT_EQ(test::StreamedTextOf(*root, false), "<r" + attributes + ">" + children + "</r>");
}

TEST(NodeTree, NodesMayStandOnTheStack) {
  XMLElement root("r");
  root.AddAttribute("x", "1");
  root.AddElement(new XMLString("text"));
  EXPECT_EQ(test::StreamedTextOf(root, false), "<r x=\"1\">text</r>");
}

TEST(NodeTree, DestructionSkipsNullEntries) {
  const auto root = NewElement("r");
  root->AddAttribute(static_cast<XMLAttribute*>(nullptr));
  EXPECT_EQ(root->AddElement(static_cast<XMLElement*>(nullptr)), 1);
  EXPECT_EQ(root->AddElement(static_cast<XMLString*>(nullptr)), 2);
  AddChild(*root, "c");
}

TEST(NodeTree, DeletingTheRootFreesEverything) {
  const long before = test::LiveBlocks();
  {
    const auto root = NewElement("r");
    for (int i = 0; i < 100; ++i) {
      XMLElement& child = AddChild(*root, "child with quite a long name");
      child.AddAttribute(XMLAttribute::Create("a", std::string(100, 'x')));
      child.AddAttribute("b", std::string(100, 'x'));
      child.AddElement(XMLString::Create(std::string(100, 'x')));
      tsx::AppendText(child, std::string(2U << 20U, 'x'));
    }
  }
  EXPECT_EQ(test::LiveBlocks(), before);
}

TEST(NodeTree, DeepTreesAreFreed) {
  const long before = test::LiveBlocks();
  {
    const auto root = NewElement("r");
    XMLElement* innermost = root.get();
    for (int i = 0; i < 20000; ++i) innermost = &AddChild(*innermost, "e");
  }
  EXPECT_EQ(test::LiveBlocks(), before);
}

TEST(NodeTree, AppendHandsTheElementOver) {
  const auto root = NewElement("r");
  tsx::ElementPtr child = tsx::MakeElement("c");
  child->AddAttribute("x", "1");
  tsx::Append(*root, std::move(child));
  EXPECT_EQ(test::StreamedTextOf(*root, false), "<r><c x=\"1\"/></r>");
}

// Where a virtual function stands in the table, by the C++ ABI of this platform.
template <typename Function>
std::size_t SlotOf(Function function) {
  std::size_t words[2] = {};
  static_assert(sizeof function == sizeof words);
  std::memcpy(words, &function, sizeof words);
  return (words[0] - 1) / sizeof(void*);
}

TEST(NodeTree, VirtualFunctionsKeepTheirOrder) {
  // The destructor has the first two slots.
  EXPECT_EQ(SlotOf(&XMLInterface::ToString), 2U);
  EXPECT_EQ(SlotOf(&XMLInterface::ToStream), 3U);
  EXPECT_EQ(SlotOf(&XMLElement::ToString), 2U);
  EXPECT_EQ(SlotOf(&XMLElement::ToStream), 3U);
  EXPECT_EQ(SlotOf(static_cast<int (XMLElement::*)(XMLElement*)>(&XMLElement::AddElement)), 4U);
  EXPECT_EQ(SlotOf(static_cast<int (XMLElement::*)(XMLString*)>(&XMLElement::AddElement)), 5U);
}

}  // namespace
