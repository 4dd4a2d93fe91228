#include <gtest/gtest.h>
#include <limits>
#include <vector>

#include "support/ScopedLocale.h"
#include "xml/ElementPtr.h"
#include "xml/NumberList.h"
#include "xml/Text.h"

namespace {

constexpr double kMissing = -std::numeric_limits<double>::max();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

std::string List(const std::vector<double>& values) {
  return tsx::NumberListText(values, kMissing);
}

TEST(NumberList, SeparatesBySingleBlanks) { EXPECT_EQ(List({1, 2.5, -3}), "1 2.5 -3"); }
TEST(NumberList, OneValueHasNoBlank) { EXPECT_EQ(List({0.25}), "0.25"); }
TEST(NumberList, WithoutValuesIsEmpty) { EXPECT_EQ(List({}), ""); }

TEST(NumberList, MissingIsNaNAndInfinityINF) {
  EXPECT_EQ(List({1.5, kMissing, kInfinity}), "1.5 NaN INF");
  EXPECT_EQ(List({-kInfinity, kMissing}), "-INF NaN");
}

TEST(NumberList, InfinitiesStayAsFormattedWhereAskedFor) {
  const std::vector<double> values = {kInfinity, kMissing, -kInfinity};
  EXPECT_EQ(tsx::NumberListText(values, kMissing, tsx::Infinities::kAsFormatted), "inf NaN -inf");
}

TEST(NumberList, MissingIsTheGivenValueOnly) {
  const std::vector<double> values = {-99, kMissing};
  EXPECT_EQ(tsx::NumberListText(values, -99), "NaN -1.79769313486232e+308");
}

TEST(NumberList, InfinityMayBeTheMissingValue) {
  const std::vector<double> values = {kInfinity, -kInfinity};
  EXPECT_EQ(tsx::NumberListText(values, kInfinity), "NaN -INF");
}

TEST(NumberList, NotANumberThatIsNotMissingPassesAsFormatted) {
  EXPECT_EQ(List({std::numeric_limits<double>::quiet_NaN()}), "nan");
}

TEST(NumberList, MinusZeroKeepsItsSign) { EXPECT_EQ(List({-0.0, 0.0}), "-0 0"); }

TEST(NumberList, IsTheSameInAnyLocale) {
  const test::ScopedLocale german("de_DE.UTF-8");
  const test::ScopedGroupingCxxLocale grouping;
  EXPECT_EQ(List({1234.5, 1e6}), "1234.5 1000000");
}

TEST(NumberList, ManyLongNumbersKeepEveryDigit) {
  const std::vector<double> values(1000, -1.23456789012345e-300);
  std::string expected = "-1.23456789012345e-300";
  for (int i = 1; i < 1000; ++i) expected += " -1.23456789012345e-300";
  EXPECT_EQ(List(values), expected);
}

TEST(ListText, EverySpellingOfInfinityIsMapped) {
  EXPECT_EQ(tsx::ListText("1.#INF"), "INF");
  EXPECT_EQ(tsx::ListText("inf"), "INF");
  EXPECT_EQ(tsx::ListText("Inf"), "INF");
  EXPECT_EQ(tsx::ListText("-1.#INF"), "-INF");
  EXPECT_EQ(tsx::ListText("-inf"), "-INF");
  EXPECT_EQ(tsx::ListText("-Inf"), "-INF");
}

TEST(ListText, AnyOtherTextPasses) {
  for (const char* text : {"INF", "-INF", "iNf", "infinity", "nan", "-nan", "1.#IND", "", "1"}) {
    EXPECT_EQ(tsx::ListText(text), text);
  }
}

std::string Filled(const double* values, std::size_t count) {
  const auto element = test::NewElement("e");
  tsx::FillNumberList(*element, values, count, kMissing);
  return test::StringOf(*element);
}

TEST(FillNumberList, AddsOneText) {
  const double values[] = {1, 2};
  EXPECT_EQ(Filled(values, 2), "\n<e>1 2</e>");
}

TEST(FillNumberList, ShortAndLongListsHaveTheSameForm) {
  for (const std::size_t count : {1U, 31U, 32U, 33U, 5000U}) {
    const std::vector<double> values(count, -1.23456789012345e-300);
    EXPECT_EQ(Filled(values.data(), count), "\n<e>" + List(values) + "</e>");
  }
}

TEST(FillNumberList, NullAddsNothing) { EXPECT_EQ(Filled(nullptr, 3), "\n<e/>"); }

TEST(FillNumberList, CountOfZeroAddsNothing) {
  const double value = 1;
  EXPECT_EQ(Filled(&value, 0), "\n<e/>");
}

struct Appended {
  bool result;
  std::string text;
};

Appended AppendTo(const std::valarray<double>& values, bool force) {
  const auto parent = test::NewElement("p");
  const bool result = tsx::AppendVector(*parent, "v", values, force, kMissing);
  return {result, test::StringOf(*parent)};
}

TEST(AppendVector, MakesAnElementWithTheList) {
  const Appended appended = AppendTo({1.5, kMissing, kInfinity}, false);
  EXPECT_TRUE(appended.result);
  EXPECT_EQ(appended.text, "\n<p>\n\t<v>1.5 NaN INF</v>\n</p>");
}

TEST(AppendVector, EmptyAddsNothing) {
  const Appended appended = AppendTo({}, false);
  EXPECT_FALSE(appended.result);
  EXPECT_EQ(appended.text, "\n<p/>");
}

TEST(AppendVector, EmptyButForcedMakesAnEmptyElement) {
  const Appended appended = AppendTo({}, true);
  EXPECT_TRUE(appended.result);
  EXPECT_EQ(appended.text, "\n<p>\n\t<v/>\n</p>");
}

TEST(AppendVector, ForceChangesNothingForValues) {
  EXPECT_EQ(AppendTo({7}, true).text, AppendTo({7}, false).text);
}

}  // namespace
