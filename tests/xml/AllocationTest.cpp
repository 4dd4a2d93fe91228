#include <gtest/gtest.h>
#include <ostream>
#include <streambuf>

#include <tsxport/NumberFormat.h>
#include <tsxport/WriteTree.h>
#include <tsxport/XMLDocType.h>

#include "support/FailingAllocation.h"
#include "support/ScopedLocale.h"
#include "xml/ElementPtr.h"
#include "xml/NumberList.h"
#include "xml/Text.h"

namespace {

using test::WithEveryAllocationFailing;
using TIMESERIESXML::XMLAttribute;
using TIMESERIESXML::XMLElement;
using TIMESERIESXML::XMLInterface;
using TIMESERIESXML::XMLString;

const std::string kLong(200, 'x');
const std::string kHuge(2U << 20U, 'x');  // too long to stand inside an element

// Memory of its own, so that writing to it allocates nothing.
class FixedBuffer : public std::streambuf {
 public:
  FixedBuffer() { setp(bytes_, bytes_ + sizeof bytes_); }
  std::string_view taken() const { return {pbase(), static_cast<std::size_t>(pptr() - pbase())}; }

 private:
  char bytes_[20000];
};

bool IsWrittenAs(const XMLInterface& node, std::string_view expected) {
  FixedBuffer buffer;
  std::ostream os(&buffer);
  TIMESERIESXML::ExportFormat format;
  format.SetFormat(false);
  node.ToStream(os, format, false);
  return buffer.taken() == expected;
}

// Fails every allocation of `add` in turn. The element must keep what it had.
template <typename Add>
void ExpectKeptByElement(Add add) {
  WithEveryAllocationFailing([&] {
    const auto element = test::NewElement("element");
    element->AddAttribute("a", "1");
    tsx::AppendText(*element, "text");
    try {
      add(*element);
    } catch (const std::bad_alloc&) {
      EXPECT_TRUE(IsWrittenAs(*element, "<element a=\"1\">text</element>"));
      throw;
    }
  });
}

TEST(Allocation, WritingATreeNeedsNone) {
  const auto root = test::NewElement("r");
  for (int i = 0; i < 100; ++i) test::AddChild(*root, "child").AddAttribute("a", "b");
  FixedBuffer buffer;
  std::ostream os(&buffer);
  TIMESERIESXML::ExportFormat format;
  test::FailAllocationsFrom(1);
  root->ToStream(os, format, false);
  const long allocations = test::AllocationCount();
  test::FailAllocationsFrom(0);
  EXPECT_EQ(allocations, 0);
  EXPECT_TRUE(os.good());
}

TEST(Allocation, EveryCreateFailsCleanly) {
  WithEveryAllocationFailing([] { delete XMLElement::Create(kLong); });
  WithEveryAllocationFailing([] { delete XMLString::Create(kLong); });
  WithEveryAllocationFailing([] { delete XMLAttribute::Create(kLong, kLong); });
  WithEveryAllocationFailing([] { delete XMLAttribute::Create("x", 0.1); });
  WithEveryAllocationFailing([] { delete TIMESERIESXML::XMLDocType::Create(kLong, kLong, 0); });
}

TEST(Allocation, EveryConstructorFailsCleanly) {
  WithEveryAllocationFailing([] { delete new XMLElement(kLong); });
  WithEveryAllocationFailing([] { delete new XMLString(kLong); });
  WithEveryAllocationFailing([] { delete new XMLAttribute(kLong, kLong); });
  WithEveryAllocationFailing([] { delete new XMLAttribute("x", 0.1); });
  WithEveryAllocationFailing([] { const XMLElement onStack(kLong); });
}

TEST(Allocation, AddAttributeThatFailsChangesNothing) {
  ExpectKeptByElement([](XMLElement& e) { e.AddAttribute("name", kLong); });
  ExpectKeptByElement([](XMLElement& e) { e.AddAttribute(kLong, 0.1); });
  ExpectKeptByElement([](XMLElement& e) { e.AddAttribute("name", kHuge); });
  ExpectKeptByElement([](XMLElement& e) { e.AddAttribute(kHuge, 0.1); });
}

TEST(Allocation, TextThatFailsChangesNothing) {
  ExpectKeptByElement([](XMLElement& e) { tsx::AppendText(e, kLong); });
  ExpectKeptByElement([](XMLElement& e) { tsx::AppendText(e, kHuge); });
}

TEST(Allocation, VectorThatFailsChangesNothing) {
  const std::valarray<double> values(0.1, 100);
  ExpectKeptByElement([&](XMLElement& e) { tsx::AppendVector(e, "v", values, false, -1); });
  ExpectKeptByElement(
      [&](XMLElement& e) { tsx::FillNumberList(e, &values[0], values.size(), -1); });
}

TEST(Allocation, NodeThatCouldNotBeAddedStaysWithTheCaller) {
  for (int children = 0; children < 64; ++children) {
    WithEveryAllocationFailing([&] {
      const auto element = test::NewElement("element");
      for (int i = 0; i < children; ++i) test::AddChild(*element, "c");
      std::unique_ptr<XMLElement> child(XMLElement::Create("child"));
      EXPECT_EQ(element->AddElement(child.get()), children + 1);
      child.release();
      std::unique_ptr<XMLString> text(XMLString::Create("text"));
      EXPECT_EQ(element->AddElement(text.get()), children + 2);
      text.release();
      std::unique_ptr<XMLAttribute> attribute(XMLAttribute::Create("a", "b"));
      element->AddAttribute(attribute.get());
      attribute.release();
    });
  }
}

TEST(Allocation, AppendThatFailsFreesTheChild) {
  WithEveryAllocationFailing([] {
    tsx::ElementPtr root = tsx::MakeElement("root");
    for (int i = 0; i < 40; ++i) {
      tsx::ElementPtr child = tsx::MakeElement("child");
      tsx::AppendText(*child, kLong);
      child->AddAttribute("name", kLong);
      tsx::Append(*root, std::move(child));
    }
  });
}

TEST(Allocation, AddExtensionThatFailsChangesNothing) {
  WithEveryAllocationFailing([] {
    TIMESERIESXML::XMLDocType docType("r", "s", 0);
    EXPECT_EQ(docType.AddExtension("abc"), 4);
    try {
      docType.AddExtension(kLong);
    } catch (const std::bad_alloc&) {
      EXPECT_EQ(docType.AddExtension("d"), 6);  // short enough to need no memory
      throw;
    }
  });
}

template <typename Write>
void ExpectCleanFailure(Write write) {
  const auto root = test::NewElement(kLong);
  root->AddAttribute("\xfc", std::string(5000, '\xfc'));  // longer than an output block
  test::AddText(test::AddChild(*root, "c"), std::string(20000, '\xfc'));
  const std::string before = test::StringOf(*root);
  WithEveryAllocationFailing([&] { write(*root); });
  EXPECT_EQ(test::StringOf(*root), before);
}

TEST(Allocation, WritingToAStringFailsCleanly) {
  ExpectCleanFailure([](const XMLElement& root) {
    TIMESERIESXML::ExportFormat format;
    std::string text;
    root.ToString(text, format);
  });
}

TEST(Allocation, ConvertingFailsCleanly) {
  const test::ScopedLocale german("de_DE.ISO-8859-1");
  ExpectCleanFailure([](const XMLElement& root) {
    FixedBuffer buffer;
    std::ostream os(&buffer);
    TIMESERIESXML::WriteTreeUTF8(os, nullptr, &root, true);
  });
}

TEST(Allocation, FormattingFailsCleanly) {
  WithEveryAllocationFailing([] { TIMESERIESXML::Format(-1.23456789012345e-300, false, nullptr); });
  WithEveryAllocationFailing([] {
    char format[] = "%.150f";
    TIMESERIESXML::Format(1, true, format);
  });
}

}  // namespace
