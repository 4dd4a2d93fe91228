#include <gtest/gtest.h>
#include <limits>

#include "pmml/write/ExponentialSmoothing.h"
#include "support/Models.h"
#include "support/XmlText.h"

namespace {

std::string ArrayOf(std::span<const double> values) {
  const tsx::ElementPtr array = tsx::MakeElement("Array");
  tsx::pmml::AddValueList(*array, values);
  return test::Compact(*array);
}

TEST(PmmlArray, ValuesAreSeparatedBySingleBlanks) {
  const double values[] = {1, -0.5, 1e21};
  EXPECT_EQ(ArrayOf(values), "<Array>1 -0.5 1e+21</Array>");
}

TEST(PmmlArray, MissingValueIsNaN) {
  const double values[] = {test::kMissing, 2, test::kMissing};
  EXPECT_EQ(ArrayOf(values), "<Array>NaN 2 NaN</Array>");
}

TEST(PmmlArray, InfinityStaysAsTheNumberFormatWritesIt) {
  const double values[] = {std::numeric_limits<double>::infinity()};
  EXPECT_EQ(ArrayOf(values), "<Array>inf</Array>");
}

TEST(PmmlArray, NoValuesAddNoText) { EXPECT_EQ(ArrayOf({}), "<Array/>"); }

}  // namespace
