#include <bit>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <sstream>

#include <tsxport/NumberFormat.h>

#include "support/ScopedLocale.h"
#include "xml/NumberText.h"

namespace {

using TIMESERIESXML::Format;

std::string Text(double value) { return Format(value, false, nullptr); }

// The standard library's stream, in the classic locale with a precision of 15.
std::string StreamText(double value) {
  std::ostringstream out;
  out.imbue(std::locale::classic());
  out.precision(15);
  out << value;
  return out.str();
}

TEST(NumberText, HasFifteenSignificantDigits) {
  EXPECT_EQ(Text(0.1), "0.1");
  EXPECT_EQ(Text(1.0 / 3), "0.333333333333333");
  EXPECT_EQ(Text(2.0 / 3), "0.666666666666667");
  EXPECT_EQ(Text(-100.5), "-100.5");
}

TEST(NumberText, WholeNumbersHaveNoDecimalPoint) {
  EXPECT_EQ(Text(100), "100");
  EXPECT_EQ(Text(999999999999999), "999999999999999");
  EXPECT_EQ(Text(-7), "-7");
}

TEST(NumberText, ExponentFormBeginsAtFifteenDigits) {
  EXPECT_EQ(Text(1e14), "100000000000000");
  EXPECT_EQ(Text(1e15), "1e+15");
  EXPECT_EQ(Text(123456789012345678.0), "1.23456789012346e+17");
  EXPECT_EQ(Text(1e21), "1e+21");
}

TEST(NumberText, ExponentFormBeginsBelowOneTenThousandth) {
  EXPECT_EQ(Text(0.0001), "0.0001");
  EXPECT_EQ(Text(0.00001), "1e-05");
  EXPECT_EQ(Text(0.0000123), "1.23e-05");
  EXPECT_EQ(Text(0.00012345), "0.00012345");
}

TEST(NumberText, RoundingMayCarryIntoANewDigit) {
  EXPECT_EQ(Text(999999999999999.9), "1e+15");
  EXPECT_EQ(Text(9.9999999999999999), "10");
  EXPECT_EQ(Text(0.99999999999999994), "1");
  EXPECT_EQ(Text(0.000099999999999999999), "0.0001");
}

TEST(NumberText, HalvesRoundToEven) {
  EXPECT_EQ(Text(100000000000000.5), "100000000000000");
  EXPECT_EQ(Text(100000000000001.5), "100000000000002");
}

TEST(NumberText, MinusZeroKeepsItsSign) { EXPECT_EQ(Text(-0.0), "-0"); }

TEST(NumberText, InfinitiesAndNotANumbersAreTheSystems) {
  const double infinity = std::numeric_limits<double>::infinity();
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(Text(infinity), "inf");
  EXPECT_EQ(Text(-infinity), "-inf");
  EXPECT_EQ(Text(std::copysign(nan, 1.0)), "nan");
  EXPECT_EQ(Text(std::copysign(nan, -1.0)), "-nan");
}

TEST(NumberText, ExtremesOfTheType) {
  EXPECT_EQ(Text(std::numeric_limits<double>::max()), "1.79769313486232e+308");
  EXPECT_EQ(Text(std::numeric_limits<double>::lowest()), "-1.79769313486232e+308");
  EXPECT_EQ(Text(std::numeric_limits<double>::min()), "2.2250738585072e-308");
  EXPECT_EQ(Text(std::numeric_limits<double>::denorm_min()), "4.94065645841247e-324");
}

TEST(NumberText, LongestTextsFit) {
  EXPECT_EQ(tsx::NumberText(-1.23456789012345e-300).view().size(), tsx::kMaxNumberSize);
  EXPECT_LE(tsx::NumberText(-0.000123456789012345).view().size(), tsx::kMaxNumberSize);
}

TEST(NumberText, EqualsTheStreamsForAllKindsOfBitPatterns) {
  std::mt19937_64 random(1);
  for (int i = 0; i < 100000; ++i) {
    const auto value = std::bit_cast<double>(random());
    ASSERT_EQ(Text(value), StreamText(value)) << std::hexfloat << value;
  }
}

TEST(NumberText, EqualsTheStreamsAroundPowersOfTen) {
  for (int exponent = -20; exponent <= 20; ++exponent) {
    for (const double factor : {1.0, 0.5, 9.5, 9.99999999999999, 1.00000000000001}) {
      const double start = factor * std::pow(10.0, exponent);
      double below = start;
      double above = start;
      for (int step = 0; step < 50; ++step) {
        ASSERT_EQ(Text(below), StreamText(below)) << std::hexfloat << below;
        ASSERT_EQ(Text(-above), StreamText(-above)) << std::hexfloat << above;
        below = std::nextafter(below, 0.0);
        above = std::nextafter(above, 1e300);
      }
    }
  }
}

TEST(NumberText, EqualsTheStreamsForTiesAndShortDecimals) {
  std::mt19937_64 random(2);
  for (int i = 0; i < 50000; ++i) {
    const auto numerator = static_cast<double>(random() >> (14 + random() % 50));
    const double dyadic = numerator / static_cast<double>(std::uint64_t{1} << (random() % 50));
    ASSERT_EQ(Text(dyadic), StreamText(dyadic)) << std::hexfloat << dyadic;
    const double decimal = std::round(numerator) / std::pow(10.0, static_cast<int>(random() % 19));
    ASSERT_EQ(Text(decimal), StreamText(decimal)) << std::hexfloat << decimal;
  }
}

TEST(NumberText, IsTheSameInAnyLocale) {
  const test::ScopedLocale german("de_DE.UTF-8");
  const test::ScopedGroupingCxxLocale grouping;
  EXPECT_EQ(Text(0.5), "0.5");
  EXPECT_EQ(Text(1234567.25), "1234567.25");
  EXPECT_EQ(Text(1234567), "1234567");
  EXPECT_EQ(TIMESERIESXML::ReplaceSep(1e-7, nullptr), "1e-07");
}

TEST(NumberFormat, FormatIsIgnoredWithoutPrintf) {
  char format[] = "%.2f";
  EXPECT_EQ(Format(1.0 / 3, false, format), "0.333333333333333");
  EXPECT_EQ(TIMESERIESXML::ReplaceSep(1.0 / 3, format), "0.333333333333333");
}

TEST(NumberFormat, PrintfFollowsTheFormat) {
  char format[] = "%.2f";
  EXPECT_EQ(Format(1.0 / 3, true, format), "0.33");
}

TEST(NumberFormat, PrintfWithoutAFormatHasFifteenDigits) {
  EXPECT_EQ(Format(1.0 / 3, true, nullptr), "0.333333333333333");
  EXPECT_EQ(Format(1e15, true, nullptr), "1e+15");
}

TEST(NumberFormat, PrintfMayGiveLongText) {
  char format[] = "%.150f";
  EXPECT_EQ(Format(0.5, true, format), "0.5" + std::string(149, '0'));
  char wide[] = "%128.1f";
  EXPECT_EQ(Format(0.5, true, wide), std::string(125, ' ') + "0.5");
}

TEST(NumberFormat, TextThatPrintfCannotMakeIsEmpty) {
  char wide[] = "%2147483648.1f";  // more bytes than an int counts
  EXPECT_EQ(Format(0.5, true, wide), "");
}

TEST(NumberFormat, DecimalCharacterMayHaveSeveralBytes) {
  const test::ScopedLocale pashto("ps_AF.UTF-8");
  EXPECT_EQ(TIMESERIESXML::GetDecimalCharacter(), "\xd9\xab");
  EXPECT_EQ(Format(0.5, true, nullptr),
            "0\xd9\xab"
            "5");
  EXPECT_EQ(Format(0.5, false, nullptr), "0.5");
}

TEST(NumberFormat, OnlyPrintfFollowsTheLocale) {
  const test::ScopedLocale german("de_DE.UTF-8");
  EXPECT_EQ(Format(0.5, false, nullptr), "0.5");
  EXPECT_EQ(Format(0.5, true, nullptr), "0,5");
  EXPECT_EQ(TIMESERIESXML::GetDecimalCharacter(), ",");
}

TEST(NumberFormat, LongGoesThroughFifteenDigits) {
  EXPECT_EQ(Format(42L), "42");
  EXPECT_EQ(Format(-42L), "-42");
  EXPECT_EQ(Format(999999999999999L), "999999999999999");
  EXPECT_EQ(Format(1000000000000000L), "1e+15");
  EXPECT_EQ(Format(1234567890123456L), "1.23456789012346e+15");
}

TEST(NumberFormat, FixedTexts) {
  EXPECT_EQ(TIMESERIESXML::GetDefaultNumericFormat(), "%.15g");
  EXPECT_EQ(TIMESERIESXML::GetListSeparator(), ";");
  EXPECT_EQ(TIMESERIESXML::GetDecimalCharacter(), ".");
}

}  // namespace
