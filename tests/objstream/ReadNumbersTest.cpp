#include <cerrno>
#include <climits>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

#include "objstream/Values.h"
#include "support/ScopedLocale.h"

namespace {

using test::DoubleLine;
using test::IntLine;
using test::LongLine;
using test::StringLine;
using test::ValueOf;
using test::XmluValueOf;

constexpr double kMissing = -1.7976931348623157e308;
constexpr double kLargest = 1.7976931348623157e308;

// Both readers.
template <typename T>
void ExpectValue(const std::string& line, T expected, T before = T()) {
  EXPECT_EQ(ValueOf<T>(line, before), expected) << line;
  EXPECT_EQ(XmluValueOf<T>(line, before), expected) << line << " (xmlu)";
}

template <typename T>
void ExpectRefusal(const std::string& line) {
  EXPECT_EQ(ValueOf<T>(line, T(3)), std::nullopt) << line;
  EXPECT_EQ(XmluValueOf<T>(line, T(3)), std::nullopt) << line << " (xmlu)";
}

TEST(ReadNumbers, IntLineGivesAnInt) { ExpectValue<int>(IntLine("7"), 7); }
TEST(ReadNumbers, IntLineGivesAnUnsignedInt) { ExpectValue<unsigned>(IntLine("7"), 7); }
TEST(ReadNumbers, LongLineGivesALong) { ExpectValue<long>(LongLine("7"), 7); }
TEST(ReadNumbers, DoubleLineGivesADouble) { ExpectValue<double>(DoubleLine("0.5"), 0.5); }

TEST(ReadNumbers, IntLineIsNoLong) { ExpectRefusal<long>("<Int value=\"7\"/>"); }

TEST(ReadNumbers, EachOverloadRefusesTheOtherElements) {
  for (const auto& line : {LongLine("1"), DoubleLine("1"), StringLine("1")}) {
    ExpectRefusal<int>(line);
    ExpectRefusal<unsigned>(line);
    EXPECT_EQ(ValueOf<bool>(line), std::nullopt);
  }
  for (const auto& line : {IntLine("1"), DoubleLine("1"), StringLine("1")}) {
    ExpectRefusal<long>(line);
  }
  for (const auto& line : {IntLine("1"), LongLine("1"), StringLine("1")}) {
    ExpectRefusal<double>(line);
  }
}

TEST(ReadNumbers, ElementNamesAreComparedWhole) {
  ExpectRefusal<int>("<Integer value=\"7\"/>");
  ExpectRefusal<int>("<In value=\"7\"/>");
  ExpectRefusal<int>("<int value=\"7\"/>");
}

TEST(ReadNumbers, AnotherAttributeIsRefused) {
  ExpectRefusal<int>("<Int values=\"7\"/>");
  ExpectRefusal<long>("<Long v=\"7\"/>");
  ExpectRefusal<double>("<Double Value=\"7\"/>");
}

TEST(ReadNumbers, MissingTokensAreRefused) {
  for (const char* line : {"", "\n", "\t<", "<Int", "<Int \n", "<Int value", "<Int value=\"\"\n"}) {
    ExpectRefusal<int>(line);
    ExpectRefusal<unsigned>(line);
  }
  for (const char* line : {"", "<Long", "<Long value", "<Long value=\"\n"}) {
    ExpectRefusal<long>(line);
  }
  for (const char* line : {"", "<Double", "<Double value", "<Double value=\"\n"}) {
    ExpectRefusal<double>(line);
  }
}

// The quotes of an empty value are skipped, and the tag's end stands for the number: no digits.
TEST(ReadNumbers, EmptyValueIsZero) {
  ExpectValue<int>("<Int value=\"\"/>", 0, 3);
  ExpectValue<long>("<Long value=\"\"/>", 0, 3);
  ExpectValue<double>("<Double value=\"\"/>", 0, 3);
}

TEST(ReadNumbers, OneSignMayLead) {
  ExpectValue<int>(IntLine("-7"), -7);
  ExpectValue<int>(IntLine("+7"), 7);
  ExpectValue<long>(LongLine("--7"), 0, 3);
  ExpectValue<long>(LongLine("+-7"), 0, 3);
  ExpectValue<long>(LongLine("-+7"), 0, 3);
  ExpectValue<long>(LongLine("-"), 0, 3);
  ExpectValue<long>(LongLine("+"), 0, 3);
}

TEST(ReadNumbers, IntegersStopAtTheFirstNonDigit) {
  ExpectValue<int>(IntLine("12.9"), 12);
  ExpectValue<int>(IntLine("12abc"), 12);
  ExpectValue<long>(LongLine("1e+15"), 1);
  ExpectValue<long>(LongLine("1.23456789012346e+18"), 1);
  ExpectValue<int>(IntLine("0x10"), 0, 3);
  ExpectValue<int>(IntLine("010"), 10);
}

TEST(ReadNumbers, IntegersWithoutDigitsAreZero) {
  ExpectValue<int>(IntLine("abc"), 0, 3);
  ExpectValue<unsigned>(IntLine("inf"), 0, 3);
  ExpectValue<long>(LongLine(".5"), 0, 3);
}

// Vertical tab and form feed delimit nothing, and are white space to the number.
TEST(ReadNumbers, IntegersSkipWhiteSpaceInTheToken) {
  ExpectValue<int>(IntLine("\v\f7"), 7);
  ExpectValue<int>(IntLine("\v 7"), 0, 3);  // the blank ended the token
}

TEST(ReadNumbers, IntTakesTheLow32Bits) {
  ExpectValue<int>(IntLine("2147483647"), INT_MAX);
  ExpectValue<int>(IntLine("-2147483648"), INT_MIN);
  ExpectValue<int>(IntLine("2147483648"), INT_MIN);
  ExpectValue<int>(IntLine("4294967303"), 7);
  ExpectValue<int>(IntLine("-4294967295"), 1);
}

TEST(ReadNumbers, UnsignedIntTakesTheLow32Bits) {
  ExpectValue<unsigned>(IntLine("4294967295"), UINT_MAX);
  ExpectValue<unsigned>(IntLine("4294967296"), 0, 3);
  ExpectValue<unsigned>(IntLine("-1"), UINT_MAX);
}

TEST(ReadNumbers, LongComesBackWhole) {
  ExpectValue<long>(LongLine("9223372036854775807"), LONG_MAX);
  ExpectValue<long>(LongLine("-9223372036854775808"), LONG_MIN);
  ExpectValue<long>(LongLine("999999999999999"), 999999999999999);
}

TEST(ReadNumbers, BeyondALongTheRangeEnds) {
  ExpectValue<long>(LongLine("9223372036854775808"), LONG_MAX);
  ExpectValue<long>(LongLine("-9223372036854775809"), LONG_MIN);
  ExpectValue<long>(LongLine(std::string(100, '9')), LONG_MAX);
  ExpectValue<int>(IntLine("9223372036854775808"), -1);  // its low 32 bits
  ExpectValue<int>(IntLine("-9223372036854775809"), 0, 3);
}

TEST(ReadNumbers, ErrnoIsLeftAlone) {
  errno = EDOM;
  ExpectValue<double>(DoubleLine("0.5"), 0.5);
  EXPECT_EQ(ValueOf<long>(LongLine(std::string(100, '9'))), LONG_MAX);
  EXPECT_EQ(errno, EDOM);
}

TEST(ReadNumbers, BoolIsZeroOrOne) {
  EXPECT_EQ(ValueOf<bool>(IntLine("0"), true), false);
  EXPECT_EQ(ValueOf<bool>(IntLine("1"), false), true);
  EXPECT_EQ(ValueOf<bool>(IntLine("-0"), true), false);
  EXPECT_EQ(ValueOf<bool>(IntLine("1.9"), false), true);
  EXPECT_EQ(ValueOf<bool>(IntLine("false"), true), false);
}

TEST(ReadNumbers, AnotherNumberIsNoBool) {
  for (const bool before : {false, true}) {
    EXPECT_EQ(ValueOf<bool>(IntLine("2"), before), std::nullopt);
    EXPECT_EQ(ValueOf<bool>(IntLine("-1"), before), std::nullopt);
    EXPECT_EQ(ValueOf<bool>(IntLine(std::string(30, '9')), before), std::nullopt);
  }
}

TEST(ReadNumbers, BoolComparesTheWholeLong) {
  EXPECT_EQ(ValueOf<bool>(IntLine("4294967296"), true), std::nullopt);
  EXPECT_EQ(ValueOf<bool>(IntLine("4294967297"), false), std::nullopt);
}

TEST(ReadNumbers, BoolNeedsItsTokens) {
  EXPECT_EQ(ValueOf<bool>("<Int value", true), std::nullopt);
  EXPECT_EQ(ValueOf<bool>("<Int value=\"", true), std::nullopt);
  EXPECT_EQ(ValueOf<bool>("<Bool value=\"1\"/>", false), std::nullopt);
}

TEST(ReadNumbers, MissingGivesTheMarker) {
  EXPECT_EQ(ValueOf<double>(DoubleLine("Missing")), kMissing);
  EXPECT_EQ(ValueOf<double>(DoubleLine("Missing value")), kMissing);
}

TEST(ReadNumbers, MissingIsComparedWhole) {
  EXPECT_EQ(ValueOf<double>(DoubleLine("missing"), 3), 0);
  EXPECT_EQ(ValueOf<double>(DoubleLine("Missing>"), 3), 0);
  EXPECT_EQ(ValueOf<double>(DoubleLine("Missin"), 3), 0);
}

TEST(ReadNumbers, MissingIsNoNumberToXmlu) {
  EXPECT_EQ(XmluValueOf<double>(DoubleLine("Missing"), 3), 0);
}

TEST(ReadNumbers, DoublesAreExtracted) {
  ExpectValue<double>(DoubleLine("-1.5e-3"), -0.0015);
  ExpectValue<double>(DoubleLine("1E5"), 1e5);
  ExpectValue<double>(DoubleLine("+2"), 2);
  ExpectValue<double>(DoubleLine(".5"), 0.5);
  ExpectValue<double>(DoubleLine("5."), 5);
  ExpectValue<double>(DoubleLine("007"), 7);
  ExpectValue<double>(DoubleLine("0.333333333333333"), 0.333333333333333);
  ExpectValue<double>(DoubleLine("1.7976931348623157e308"), kLargest);
}

TEST(ReadNumbers, MinusZeroKeepsItsSign) {
  const auto value = ValueOf<double>(DoubleLine("-0"), 3);
  ASSERT_EQ(value, 0);
  EXPECT_TRUE(std::signbit(*value));
}

TEST(ReadNumbers, WhatFollowsADoubleIsIgnored) {
  ExpectValue<double>(DoubleLine("1.5abc"), 1.5);
  ExpectValue<double>(DoubleLine("1.2.3"), 1.2);
  ExpectValue<double>(DoubleLine("1,5"), 1);
  ExpectValue<double>(DoubleLine("0x1p3"), 0, 3);
}

TEST(ReadNumbers, FailedExtractionLeavesZero) {
  for (const char* text : {"abc", "inf", "-inf", "nan", "NaN", "-", "+", ".", "e5", "1e", "1e+",
                           "1.5e-", "1.5ex", "/>"}) {
    ExpectValue<double>(DoubleLine(text), 0, 3);
  }
}

TEST(ReadNumbers, OverflowLeavesTheLargestFiniteValueWithItsSign) {
  ExpectValue<double>(DoubleLine("1e309"), kLargest);
  ExpectValue<double>(DoubleLine("-1e309"), -kLargest);
  ExpectValue<double>(DoubleLine("1e999999999999"), kLargest);
}

TEST(ReadNumbers, UnderflowIsNoFailure) {
  ExpectValue<double>(DoubleLine("1e-400"), 0, 3);
  ExpectValue<double>(DoubleLine("4.94065645841247e-324"),
                      std::numeric_limits<double>::denorm_min());
  ExpectValue<double>(DoubleLine("1e-310"), 1e-310);
}

// An extraction does not get as far as the number then.
TEST(ReadNumbers, DoubleOfWhiteSpaceAloneIsLeftAsItWas) {
  ExpectValue<double>(DoubleLine("\v"), 3, 3);
  ExpectValue<double>(DoubleLine("\f\v"), 3, 3);
  EXPECT_EQ(XmluValueOf<double>("<Double value=\r", 3), 3);
}

TEST(ReadNumbers, DoubleSkipsWhiteSpaceInTheToken) {
  ExpectValue<double>(DoubleLine("\v1.5"), 1.5);
}

TEST(ReadNumbers, DoublesFollowTheGlobalCxxLocale) {
  const test::ScopedGroupingCxxLocale grouping;  // "." between groups, "," in front of decimals
  ExpectValue<double>(DoubleLine("0,5"), 0.5);
  ExpectValue<double>(DoubleLine("1.234,5"), 1234.5);
  ExpectValue<double>(DoubleLine("12.34"), 1234);  // the value although the groups are wrong
  ExpectValue<double>(DoubleLine("0.5"), 5);
  EXPECT_EQ(ValueOf<double>(DoubleLine("Missing")), kMissing);
  ExpectValue<int>(IntLine("1.234"), 1);
}

TEST(ReadNumbers, DoublesIgnoreTheCLocale) {
  const test::ScopedLocale comma("de_DE.UTF-8");
  ExpectValue<double>(DoubleLine("0.5"), 0.5);
  ExpectValue<double>(DoubleLine("0,5"), 0, 3);
  ExpectValue<double>(DoubleLine("0.5x"), 0.5);
}

TEST(ReadNumbers, NumbersAreReadFromLinesWithCarriageReturns) {
  ExpectValue<int>("\t<Int value=\"7\"/>\r\n", 7);
  ExpectValue<unsigned>("\t<Int value=\"7\"/>\r\n", 7);
  ExpectValue<long>("\t<Long value=\"7\"/>\r\n", 7);
  ExpectValue<double>("\t<Double value=\"0.5\"/>\r\n", 0.5);
  EXPECT_EQ(ValueOf<bool>("\t<Int value=\"1\"/>\r\n"), true);
}

// It begins with a carriage return, and that is white space.
TEST(ReadNumbers, CarriageReturnIsPartOfXmluTokens) {
  EXPECT_EQ(XmluValueOf<int>("<Int value=\r7\"/>"), 7);
  EXPECT_EQ(XmluValueOf<int>("<Int value=7\r"), 7);
  EXPECT_EQ(XmluValueOf<int>("<Int value\r=7"), std::nullopt);
  EXPECT_EQ(ValueOf<int>("<Int value=7\r"), 7);
}

}  // namespace
