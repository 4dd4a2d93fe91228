#include <gtest/gtest.h>
#include <ostream>
#include <vector>

#include "xml/ElementPtr.h"
#include "xml/NumberList.h"
#include "xml/Text.h"

// Nodes of classes that a host derives from ours.
namespace {

using TIMESERIESXML::ExportFormat;
using TIMESERIESXML::XMLAttribute;
using TIMESERIESXML::XMLElement;
using TIMESERIESXML::XMLString;

using Log = std::vector<std::string>;

template <typename Node>
class Logged : public Node {
 public:
  Logged(Log& log, const std::string& label) requires(!std::is_same_v<Node, XMLAttribute>)
      : Node(label), log_(log), label_(label) {}
  Logged(Log& log, const std::string& label) requires std::is_same_v<Node, XMLAttribute>
      : Node(label, "v"), log_(log), label_(label) {}
  ~Logged() override { log_.push_back(label_); }

 private:
  Log& log_;
  std::string label_;
};

TEST(HostNodes, AttributesDieBeforeChildrenEachInOrder) {
  Log log;
  {
    XMLElement root("r");
    auto* first = new Logged<XMLElement>(log, "first");
    root.AddElement(first);
    root.AddAttribute(new Logged<XMLAttribute>(log, "a"));
    root.AddElement(new Logged<XMLString>(log, "text"));
    root.AddAttribute(new Logged<XMLAttribute>(log, "b"));
    root.AddElement(new Logged<XMLElement>(log, "last"));
    first->AddElement(new Logged<XMLString>(log, "inner text"));
    first->AddAttribute(new Logged<XMLAttribute>(log, "inner attribute"));
  }
  const Log expected = {"a", "b", "first", "inner attribute", "inner text", "text", "last"};
  EXPECT_EQ(log, expected);
}

class Comment : public XMLElement {
 public:
  explicit Comment(std::string text) : XMLElement("comment"), text_(std::move(text)) {}
  void ToString(std::string& out, ExportFormat& /*format*/) const override {
    out += "<!--" + text_ + "-->";
  }
  void ToStream(std::ostream& os, ExportFormat& /*format*/, bool utf8) const override {
    os << (utf8 ? "<!--utf8 " : "<!--") << text_ << "-->";
  }

 private:
  std::string text_;
};

TEST(HostNodes, ElementWritesItselfInItsPlace) {
  XMLElement root("r");
  test::AddText(root, "1");
  root.AddElement(new Comment("mine"));
  test::AddText(root, "2");
  EXPECT_EQ(test::StringOf(root), "\n<r>1<!--mine-->2</r>");
  EXPECT_EQ(test::StreamedTextOf(root), "\n<r>1<!--mine-->2</r>");
  EXPECT_EQ(test::StreamedTextOf(root, true, true), "\n<r>1<!--utf8 mine-->2</r>");
}

class Flag : public XMLAttribute {
 public:
  Flag() : XMLAttribute("unused", "") {}
  void ToString(std::string& out, ExportFormat& format) const override {
    format.SetIsNewParagraph(false);
    out += "flag";
  }
  void ToStream(std::ostream& os, ExportFormat& format, bool /*utf8*/) const override {
    format.SetIsNewParagraph(false);
    os << "flag";
  }
};

TEST(HostNodes, AttributeMayChangeTheFormatForTheNext) {
  XMLElement root("r");
  root.AddAttribute("a", "1");
  root.AddAttribute(new Flag);
  root.AddAttribute("b", "2");
  EXPECT_EQ(test::StringOf(root), "\n<r\n\ta=\"1\"\n\tflag \tb=\"2\"/>");
  EXPECT_EQ(test::StreamedTextOf(root), "\n<r\n\ta=\"1\"\n\tflag \tb=\"2\"/>");
}

class Shout : public XMLString {
 public:
  explicit Shout(const std::string& text) : XMLString(text) {}
  void ToStream(std::ostream& os, ExportFormat& format, bool utf8) const override {
    XMLString::ToStream(os, format, utf8);
    os << '!';
  }
};

TEST(HostNodes, TextMayExtendItsBase) {
  XMLElement root("r");
  root.AddElement(new Shout("a&b"));
  test::AddChild(root, "c");
  EXPECT_EQ(test::StreamedTextOf(root), "\n<r>a&amp;b!<c/>\n</r>");
}

class Counting : public XMLElement {
 public:
  using XMLElement::AddElement;
  using XMLElement::XMLElement;
  int AddElement(XMLElement* child) override {
    ++elements;
    return XMLElement::AddElement(child);
  }
  int AddElement(XMLString* text) override {
    ++texts;
    return XMLElement::AddElement(text);
  }
  int elements = 0;
  int texts = 0;
};

TEST(HostNodes, BuildersAddThroughTheVirtualFunctions) {
  Counting root("r");
  const double value = 1.5;
  tsx::Append(root, tsx::MakeElement("a"));
  tsx::AppendText(root, "text");
  tsx::FillNumberList(root, &value, 1, -1);
  tsx::AppendVector(root, "v", std::span(&value, 1), false, -1);
  EXPECT_EQ(root.elements, 2);
  EXPECT_EQ(root.texts, 2);
  EXPECT_EQ(test::StreamedTextOf(root, false), "<r><a/>text1.5<v>1.5</v></r>");
}

TEST(HostNodes, DerivedElementWithoutChangesIsWrittenAsUsual) {
  XMLElement root("r");
  auto* child = new Counting("c");
  root.AddElement(child);
  test::AddChild(*child, "d").AddAttribute("x", "1");
  EXPECT_EQ(test::StreamedTextOf(root), "\n<r>\n\t<c>\n\t\t<d\n\t\t\tx=\"1\"/>\n\t</c>\n</r>");
}

struct alignas(64) Aligned : XMLElement {
  using XMLElement::XMLElement;
};

TEST(HostNodes, MayBeAllocatedInEveryWay) {
  const std::unique_ptr<XMLElement> aligned(new Aligned("a"));
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(aligned.get()) % 64, 0U);
  const std::unique_ptr<XMLElement> nothrow(new (std::nothrow) XMLElement("b"));
  EXPECT_EQ(test::StringOf(*nothrow), "\n<b/>");
  alignas(XMLElement) char place[sizeof(XMLElement)];
  auto* placed = new (place) XMLElement("c");
  EXPECT_EQ(test::StringOf(*placed), "\n<c/>");
  placed->~XMLElement();
}

}  // namespace
