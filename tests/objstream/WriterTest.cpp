#include <climits>
#include <gtest/gtest.h>
#include <limits>
#include <sstream>

#include <tsxport/ExportFormat.h>
#include <tsxport/XMLDocType.h>
#include <tsxport/XMLObj.h>

#include "support/FailingAllocation.h"
#include "support/FailingStream.h"
#include "support/Golden.h"
#include "support/ScopedLocale.h"

namespace {

using TIMESERIESXML::XMLObj;

template <typename Write>
std::string TextOf(Write write) {
  std::ostringstream os;
  write(os);
  return os.str();
}

// The line of a value in an object at the left margin.
template <typename T>
std::string LineOf(const T& value) {
  return TextOf([&](std::ostream& os) { XMLObj("x", 0).WriteSubElement(os, value); });
}

TEST(ObjStreamWriter, RootStartTagHasTheNoticeAndNoLineFeed) {
  EXPECT_EQ(TextOf([](auto& os) { TIMESERIESXML::StartRoot(os, "Copyright 2024"); }),
            "<MCXMLRoot copyright=\"Copyright 2024\">");
}

TEST(ObjStreamWriter, NoticeIsEscapedAsAnAttributeValue) {
  EXPECT_EQ(TextOf([](auto& os) { TIMESERIESXML::StartRoot(os, " \"A\" & <B>\n "); }),
            "<MCXMLRoot copyright=\"&#32;&quot;A&quot; &amp; &lt;B&gt;&#10;&#32;\">");
  EXPECT_EQ(TextOf([](auto& os) { TIMESERIESXML::StartRoot(os, ""); }),
            "<MCXMLRoot copyright=\"\">");
}

TEST(ObjStreamWriter, HeaderIsTheRootStartTag) {
  EXPECT_EQ(TextOf([](auto& os) { TIMESERIESXML::WriteHeader(os, "a<b"); }),
            "<MCXMLRoot copyright=\"a&lt;b\">");
}

TEST(ObjStreamWriter, RootEndTagBeginsWithALineFeed) {
  EXPECT_EQ(TextOf([](auto& os) { TIMESERIESXML::EndRoot(os); }), "\n</MCXMLRoot>");
}

TEST(ObjStreamWriter, EndOfHeaderIsTheRootEndTag) {
  EXPECT_EQ(TextOf([](auto& os) { TIMESERIESXML::EndHeader(os); }), "\n</MCXMLRoot>");
}

TEST(ObjStreamWriter, ObjectKeepsNameAndDepth) {
  const XMLObj object("weights", 2);
  EXPECT_EQ(object.GetName(), "weights");
  EXPECT_EQ(object.GetNTabs(), 2);
}

TEST(ObjStreamWriter, ObjectsAreValues) {
  const XMLObj object("weights", 2);
  XMLObj other("x", 0);
  other = object;
  const XMLObj copy(other);  // NOLINT(performance-unnecessary-copy-initialization)
  EXPECT_EQ(copy.GetName(), "weights");
  EXPECT_EQ(copy.GetNTabs(), 2);
}

TEST(ObjStreamWriter, ObjectTagsStandAfterItsTabs) {
  EXPECT_EQ(TextOf([](auto& os) { XMLObj("x", 0).StartObj(os); }), "\n<Obj name=\"x\">");
  EXPECT_EQ(TextOf([](auto& os) { XMLObj("x", 2).StartObj(os); }), "\n\t\t<Obj name=\"x\">");
  EXPECT_EQ(TextOf([](auto& os) { XMLObj("x", 0).EndObj(os); }), "\n</Obj>");
  EXPECT_EQ(TextOf([](auto& os) { XMLObj("x", 2).EndObj(os); }), "\n\t\t</Obj>");
}

TEST(ObjStreamWriter, ValuesStandOneTabDeeper) {
  EXPECT_EQ(TextOf([](auto& os) { XMLObj("x", 2).WriteSubElement(os, 1); }),
            "\n\t\t\t<Int value=\"1\"/>");
  EXPECT_EQ(TextOf([](auto& os) { XMLObj("x", 40).WriteSubElement(os, 1); }),
            "\n" + std::string(41, '\t') + "<Int value=\"1\"/>");
}

TEST(ObjStreamWriter, NegativeDepthHasNoTabs) {
  for (const int depth : {-1, -2, INT_MIN}) {
    const XMLObj object("x", depth);
    EXPECT_EQ(TextOf([&](auto& os) { object.StartObj(os); }), "\n<Obj name=\"x\">");
    EXPECT_EQ(TextOf([&](auto& os) { object.WriteSubElement(os, 1); }), "\n<Int value=\"1\"/>");
    EXPECT_EQ(TextOf([&](auto& os) { object.EndObj(os); }), "\n</Obj>");
  }
}

// Counts what it is given.
class CountingBuffer : public std::streambuf {
 public:
  std::streamsize count() const { return count_; }

 protected:
  int_type overflow(int_type c) override {
    ++count_;
    return traits_type::not_eof(c);
  }
  std::streamsize xsputn(const char* /*bytes*/, std::streamsize count) override {
    count_ += count;
    return count;
  }

 private:
  std::streamsize count_ = 0;
};

TEST(ObjStreamWriter, TheDeepestObjectHasValuesADeeperTab) {
  CountingBuffer buffer;
  std::ostream os(&buffer);
  XMLObj("x", INT_MAX).WriteSubElement(os, 1);
  EXPECT_EQ(buffer.count(), INT_MAX + 1L + 17);  // "\n" and <Int value="1"/>
}

TEST(ObjStreamWriter, ObjectNamesAreNotEscaped) {
  EXPECT_EQ(TextOf([](auto& os) { XMLObj(" a&b<c>\"  ", 0).StartObj(os); }),
            "\n<Obj name=\" a&b<c>\"  \">");
}

TEST(ObjStreamWriter, IntIsAnInt) {
  EXPECT_EQ(LineOf(3), "\n\t<Int value=\"3\"/>");
  EXPECT_EQ(LineOf(INT_MAX), "\n\t<Int value=\"2147483647\"/>");
  EXPECT_EQ(LineOf(INT_MIN), "\n\t<Int value=\"-2147483648\"/>");
}

TEST(ObjStreamWriter, UnsignedIntIsAnInt) {
  EXPECT_EQ(LineOf(0U), "\n\t<Int value=\"0\"/>");
  EXPECT_EQ(LineOf(4294967295U), "\n\t<Int value=\"4294967295\"/>");
}

TEST(ObjStreamWriter, BoolIsAnIntOfZeroOrOne) {
  EXPECT_EQ(LineOf(true), "\n\t<Int value=\"1\"/>");
  EXPECT_EQ(LineOf(false), "\n\t<Int value=\"0\"/>");
}

TEST(ObjStreamWriter, LongIsALong) {
  EXPECT_EQ(LineOf(-7L), "\n\t<Long value=\"-7\"/>");
  EXPECT_EQ(LineOf(999999999999999L), "\n\t<Long value=\"999999999999999\"/>");
}

TEST(ObjStreamWriter, LongBeyond15DigitsIsRounded) {
  EXPECT_EQ(LineOf(1000000000000000L), "\n\t<Long value=\"1e+15\"/>");
  EXPECT_EQ(LineOf(1234567890123456789L), "\n\t<Long value=\"1.23456789012346e+18\"/>");
  EXPECT_EQ(LineOf(LONG_MIN), "\n\t<Long value=\"-9.22337203685478e+18\"/>");
}

TEST(ObjStreamWriter, DoubleHas15Digits) {
  EXPECT_EQ(LineOf(0.5), "\n\t<Double value=\"0.5\"/>");
  EXPECT_EQ(LineOf(-1 / 3.0), "\n\t<Double value=\"-0.333333333333333\"/>");
  EXPECT_EQ(LineOf(1e-5), "\n\t<Double value=\"1e-05\"/>");
  EXPECT_EQ(LineOf(-0.0), "\n\t<Double value=\"-0\"/>");
}

TEST(ObjStreamWriter, DoublesThatAreNoNumbersGoOutAsTheSystemWritesThem) {
  using Limits = std::numeric_limits<double>;
  EXPECT_EQ(LineOf(Limits::infinity()), "\n\t<Double value=\"inf\"/>");
  EXPECT_EQ(LineOf(-Limits::infinity()), "\n\t<Double value=\"-inf\"/>");
  EXPECT_EQ(LineOf(Limits::quiet_NaN()), "\n\t<Double value=\"nan\"/>");
}

TEST(ObjStreamWriter, MostNegativeDoubleIsMissing) {
  EXPECT_EQ(LineOf(-1.7976931348623157e308), "\n\t<Double value=\"Missing\"/>");
}

TEST(ObjStreamWriter, NeighbourOfTheMostNegativeDoubleIsANumber) {
  EXPECT_EQ(LineOf(-1.7976931348623155e308), "\n\t<Double value=\"-1.79769313486232e+308\"/>");
  EXPECT_EQ(LineOf(1.7976931348623157e308), "\n\t<Double value=\"1.79769313486232e+308\"/>");
}

TEST(ObjStreamWriter, StringIsEscaped) {
  EXPECT_EQ(LineOf(std::string("a<b")), "\n\t<String value=\"a&lt;b\"/>");
  EXPECT_EQ(LineOf(std::string("a b")), "\n\t<String value=\"a b\"/>");
  EXPECT_EQ(LineOf(std::string("  \t\"x\"\r\n&>'")),
            "\n\t<String value=\"&#32;&#32;&#9;&quot;x&quot;&#13;&#10;&amp;&gt;'\"/>");
  EXPECT_EQ(LineOf(std::string(" ")), "\n\t<String value=\"&#32;\"/>");
  EXPECT_EQ(LineOf(std::string()), "\n\t<String value=\"\"/>");
}

TEST(ObjStreamWriter, BytesGoOutAsTheyAre) {
  const std::string bytes("\xFC\0\x01\xC3\xBC", 5);
  EXPECT_EQ(LineOf(bytes), "\n\t<String value=\"" + bytes + "\"/>");
}

TEST(ObjStreamWriter, LongStringsGoOutWhole) {
  for (const std::size_t size : {4000U, 4096U, 100000U}) {
    const std::string plain(size, 'x');
    EXPECT_EQ(LineOf(plain), "\n\t<String value=\"" + plain + "\"/>");
    EXPECT_EQ(LineOf(plain + "<"), "\n\t<String value=\"" + plain + "&lt;\"/>");
  }
}

TEST(ObjStreamWriter, LocalesDoNotMatter) {
  const test::ScopedLocale comma("de_DE.UTF-8");
  const test::ScopedGroupingCxxLocale grouping;
  EXPECT_EQ(LineOf(1234567.5), "\n\t<Double value=\"1234567.5\"/>");
  EXPECT_EQ(LineOf(1234567), "\n\t<Int value=\"1234567\"/>");
}

TEST(ObjStreamWriter, StreamsOwnFormattingDoesNotMatter) {
  std::ostringstream os;
  os << std::hex << std::showpos << std::scientific;
  os.width(20);
  XMLObj("x", -1).WriteSubElement(os, 12);
  EXPECT_EQ(os.str(), "\n<Int value=\"12\"/>");
}

void WriteWholeStream(std::ostream& os) {
  TIMESERIESXML::ExportFormat format;
  TIMESERIESXML::XMLDocType("MCXMLRoot", "savexml.dtd", 0).ToStream(os, format, false);
  TIMESERIESXML::StartRoot(os, "A & B");
  const XMLObj object("obj1", 0);
  object.StartObj(os);
  object.WriteSubElement(os, 3);
  object.WriteSubElement(os, 0.5);
  object.WriteSubElement(os, std::numeric_limits<double>::lowest());
  object.WriteSubElement(os, std::string("a<b"));
  const XMLObj inner("inner", 1);
  inner.StartObj(os);
  inner.WriteSubElement(os, true);
  inner.WriteSubElement(os, 4294967295U);
  inner.WriteSubElement(os, -123456789012345L);
  inner.WriteSubElement(os, std::string());
  inner.EndObj(os);
  object.EndObj(os);
  TIMESERIESXML::EndRoot(os);
}

TEST(ObjStreamWriter, WholeStream) {
  const std::string text = TextOf([](auto& os) { WriteWholeStream(os); });
  test::ExpectGolden("objstream/golden/stream.xml", text);
  test::ExpectWellFormed(text);
}

TEST(ObjStreamWriter, StreamMayFailAtEveryByte) {
  const std::string whole = TextOf([](auto& os) { WriteWholeStream(os); });
  for (std::size_t room = 0; room < whole.size(); ++room) {
    test::FailingStreambuf buffer(room);
    std::ostream os(&buffer);
    WriteWholeStream(os);
    EXPECT_TRUE(os.bad());
    ASSERT_EQ(buffer.taken(), whole.substr(0, room));
  }
}

TEST(ObjStreamWriter, StreamThatIsNotGoodTakesNothing) {
  std::ostringstream os;
  os.setstate(std::ios::eofbit);
  WriteWholeStream(os);
  EXPECT_EQ(os.str(), "");
}

TEST(ObjStreamWriter, MemoryExhaustionLeavesNoPartOfALine) {
  const std::string value = "a<b, and more than a string holds without memory of its own";
  std::streamsize written = 0;
  test::WithEveryAllocationFailing(
      [&] {
        CountingBuffer buffer;
        std::ostream os(&buffer);
        written = 0;
        try {
          XMLObj("x", 0).WriteSubElement(os, value);
        } catch (...) {
          written = buffer.count();
          throw;
        }
      },
      [&] { EXPECT_EQ(written, 0); });
}

}  // namespace
