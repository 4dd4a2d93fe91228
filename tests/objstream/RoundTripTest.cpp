#include <climits>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <sstream>

#include <tsxport/ExportFormat.h>
#include <tsxport/ObjStreamReader.h>
#include <tsxport/XMLDocType.h>
#include <tsxport/XMLObj.h>
#include <tsxport/XmluReader.h>

#include "objstream/MemoryFile.h"

// What comes back of a value that was written, over the edges of its range. What the format loses
// is stated as such.
namespace {

namespace ts = TIMESERIESXML;

using Limits = std::numeric_limits<double>;

std::string StreamOf(const auto& value) {
  std::ostringstream os;
  const ts::XMLObj object("x", 0);
  object.StartObj(os);
  object.WriteSubElement(os, value);
  object.EndObj(os);
  return os.str();
}

// Through writer and reader. The object's tags show that the line was one line.
template <typename T>
T Back(const T& value) {
  const std::string stream = StreamOf(value);
  test::MemoryFile in(stream);
  T back{};
  EXPECT_TRUE(ts::ParseStartObj(in, "x") && ts::ParseValue(in, back) && ts::ParseEndObj(in))
      << stream;
  return back;
}

template <typename T>
T XmluBack(const T& value) {
  const std::string stream = StreamOf(value);
  test::MemoryFile in(stream);
  T back{};
  EXPECT_TRUE(xmlu::ParseStartObj(in, "x") && xmlu::ParseValue(in, back) && xmlu::ParseEndObj(in))
      << stream;
  return back;
}

template <typename T>
void ExpectBack(const T& value, const T& expected) {
  EXPECT_EQ(Back(value), expected);
  EXPECT_EQ(XmluBack(value), expected);
}

template <typename T>
void ExpectSame(const T& value) {
  ExpectBack(value, value);
}

TEST(RoundTrip, Bools) {
  EXPECT_EQ(Back(true), true);
  EXPECT_EQ(Back(false), false);
}

TEST(RoundTrip, EveryIntComesBack) {
  for (const int value :
       {0, 1, -1, 9, 10, 999999, 1000000, INT_MAX - 1, INT_MAX, INT_MIN, INT_MIN + 1}) {
    ExpectSame(value);
  }
  std::mt19937 random(1);
  for (int i = 0; i < 100000; ++i) ExpectSame(static_cast<int>(random()));
}

TEST(RoundTrip, EveryUnsignedIntComesBack) {
  for (const unsigned value : {0U, 1U, 2147483647U, 2147483648U, UINT_MAX - 1, UINT_MAX}) {
    ExpectSame(value);
  }
  std::mt19937 random(2);
  for (int i = 0; i < 100000; ++i) ExpectSame(static_cast<unsigned>(random()));
}

TEST(RoundTrip, LongsOf15DigitsComeBack) {
  constexpr long kLast = 999999999999999;
  for (const long value :
       {0L, 1L, -1L, long{INT_MAX} + 1, long{INT_MIN} - 1, kLast - 1, kLast, -kLast}) {
    ExpectSame(value);
  }
  std::mt19937_64 random(3);
  std::uniform_int_distribution<long> distribution(-kLast, kLast);
  for (int i = 0; i < 100000; ++i) ExpectSame(distribution(random));
}

// They are written with an exponent, and the reading stops at the decimal point or at the "e".
TEST(RoundTrip, LongsOf16DigitsComeBackAsTheirLeadingDigits) {
  ExpectBack(1000000000000000L, 1L);    // 1e+15
  ExpectBack(1234567890123456L, 1L);    // 1.23456789012346e+15
  ExpectBack(-9876543210987654L, -9L);  // -9.87654321098765e+15
  ExpectBack(9999999999999996L, 1L);    // 1e+16
  ExpectBack(LONG_MAX, 9L);
  ExpectBack(LONG_MIN, -9L);
}

TEST(RoundTrip, DoublesOf15DigitsComeBack) {
  for (const double value : {0.0, 0.5, -0.5, 0.1, 1e-5, 123456789.012345, 999999999999999.0, 1e15,
                             1e300, -1e-300, 2.2250738585072e-308}) {
    ExpectSame(value);
  }
}

TEST(RoundTrip, MinusZeroComesBack) {
  EXPECT_TRUE(std::signbit(Back(-0.0)));
  EXPECT_TRUE(std::signbit(XmluBack(-0.0)));
}

TEST(RoundTrip, SmallestDoublesComeBack) { ExpectSame(Limits::denorm_min()); }

TEST(RoundTrip, OtherDoublesComeBackWithin15Digits) {
  ExpectBack(1 / 3.0, 0.333333333333333);
  ExpectBack(1.0 + Limits::epsilon(), 1.0);
  ExpectBack(2.2250738585072014e-308, 2.2250738585072e-308);
  std::mt19937_64 random(4);
  for (int i = 0; i < 100000; ++i) {
    const double value =
        std::ldexp(static_cast<double>(random()), static_cast<int>(random() % 1900) - 1000);
    const double back = Back(value);
    ASSERT_LE(std::fabs(back - value), 5.2e-15 * value);
    ASSERT_EQ(Back(back), back);  // the loss is there once
  }
}

TEST(RoundTrip, MissingComesBack) { EXPECT_EQ(Back(Limits::lowest()), Limits::lowest()); }

TEST(RoundTrip, MissingComesBackAsZeroByXmlu) { EXPECT_EQ(XmluBack(Limits::lowest()), 0); }

// 15 digits of them round up, beyond the range; reading stops at its end.
TEST(RoundTrip, LargestDoublesComeBackAsTheLargest) {
  ExpectSame(Limits::max());
  ExpectBack(std::nextafter(Limits::max(), 0), Limits::max());
}

TEST(RoundTrip, NeighbourOfTheMissingValueComesBackMissing) {
  ExpectBack(std::nextafter(Limits::lowest(), 0), Limits::lowest());
}

TEST(RoundTrip, InfinitiesAndNotANumbersComeBackAsZero) {
  for (const double value : {Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN()}) {
    ExpectBack(value, 0.0);
  }
}

TEST(RoundTrip, PlainStringsComeBack) {
  for (const char* value : {"", "a", "a b", "/", "value=", "'", "=", "\xFC\xC3\xBC", "\v\f\x7F"}) {
    const std::string text(value);
    EXPECT_EQ(Back(text), text);
  }
}

TEST(RoundTrip, EscapedBytesComeBackAsReferences) {
  EXPECT_EQ(Back(std::string("a<b")), "a&lt;b");
  EXPECT_EQ(Back(std::string("a>b & \"c\"")), "a&gt;b &amp; &quot;c&quot;");
  EXPECT_EQ(Back(std::string("\t\r\n")), "&#9;&#13;&#10;");
  EXPECT_EQ(Back(std::string(" a  b ")), "&#32;a &#32;b&#32;");
  EXPECT_EQ(Back(std::string("/>")), "/&gt;");
}

TEST(RoundTrip, StringsEndAtANul) {
  EXPECT_EQ(Back(std::string("a\0b", 3)), "a");
  EXPECT_EQ(Back(std::string("\0b", 2)), "");
}

TEST(RoundTrip, StringsOf236CharactersComeBackFromDepthZero) {
  const std::string text(236, 'x');  // with a tab, <String value="..."/> makes 255
  EXPECT_EQ(Back(text), text);
}

TEST(RoundTrip, LongerStringsAreRefused) {
  const std::string stream = StreamOf(std::string(237, 'x'));
  test::MemoryFile in(stream);
  std::string back = "before";
  EXPECT_TRUE(ts::ParseStartObj(in, "x"));
  EXPECT_FALSE(ts::ParseValue(in, back));
  EXPECT_EQ(back, "before");
}

TEST(RoundTrip, ValuesComeBackFromUpToTheDepthThatALineHolds) {
  const auto readsFrom = [](int depth) {
    std::ostringstream os;
    ts::XMLObj("x", depth).WriteSubElement(os, 7);
    const std::string line = os.str().substr(1);
    test::MemoryFile in(line);
    int back = 0;
    return ts::ParseValue(in, back) && back == 7;
  };
  EXPECT_TRUE(readsFrom(238));  // 239 tabs and 16 characters
  EXPECT_FALSE(readsFrom(239));
}

TEST(RoundTrip, ObjectNameWithAQuoteIsNotFound) {
  std::ostringstream os;
  ts::XMLObj("a\"b", 0).StartObj(os);
  const std::string stream = os.str();
  test::MemoryFile in(stream);
  EXPECT_FALSE(ts::ParseStartObj(in, "a\"b"));
}

TEST(RoundTrip, WholeStreamWithADocTypeInFrontOfIt) {
  std::ostringstream os;
  ts::ExportFormat format;
  ts::XMLDocType("MCXMLRoot", "savexml.dtd", 0).ToStream(os, format, false);
  ts::StartRoot(os, "(c)");
  const ts::XMLObj object("my weights", 0);
  object.StartObj(os);
  object.WriteSubElement(os, 0.25);
  object.EndObj(os);
  ts::EndRoot(os);
  const std::string stream = os.str();
  test::MemoryFile in(stream);
  double back = 0;
  EXPECT_TRUE(ts::ParseStartXML(in) && ts::ParseStartObj(in, "my weights") &&
              ts::ParseValue(in, back) && ts::ParseEndObj(in));
  EXPECT_EQ(back, 0.25);
}

TEST(RoundTrip, StreamForXmlu) {
  std::ostringstream os;
  os << "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<!DOCTYPE MCXMLRoot SYSTEM \"savexml.dtd\">";
  ts::StartRoot(os, "(c)");
  os << '\n';  // the next line's own line feed makes the separating line
  const ts::XMLObj object("weights", 0);
  object.StartObj(os);
  object.WriteSubElement(os, 0.25);
  object.EndObj(os);
  ts::EndRoot(os);
  const std::string stream = os.str();
  test::MemoryFile in(stream);
  double back = 0;
  EXPECT_TRUE(xmlu::ParseStartXML(in) && xmlu::ParseStartObj(in, "weights") &&
              xmlu::ParseValue(in, back) && xmlu::ParseEndObj(in));
  EXPECT_EQ(back, 0.25);
}

}  // namespace
