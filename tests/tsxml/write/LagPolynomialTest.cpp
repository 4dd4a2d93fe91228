// Lag polynomials at positions that the embedded core's own specifications do not have.

#include <gtest/gtest.h>

#include "support/ArimaModels.h"
#include "support/Models.h"
#include "support/XmlText.h"
#include "tsxml/write/LagPolynomial.h"
#include "xml/ElementPtr.h"

namespace {

using test::CountedErrors;
using test::CountedValues;
using test::kMissing;

constexpr std::uint32_t kLastPosition = 0xFFFFFFFF;

std::string Encode(const tsx::LagPolynomial& polynomial, const std::valarray<double>& values,
                   const std::valarray<double>& stdErrors = {}) {
  const tsx::ElementPtr parent = tsx::MakeElement("M");
  tsx::AppendLagPolynomial(*parent, "P", polynomial, {values, stdErrors});
  return test::Compact(*parent);
}

TEST(LagPolynomial, WithoutTermsWritesNothing) {
  EXPECT_EQ(Encode({.first = 0}, CountedValues(3)), "<M/>");
}

TEST(LagPolynomial, ZeroLagThenNonSeasonalThenSeasonalLagsTakeConsecutivePositions) {
  EXPECT_EQ(Encode({.first = 2, .has_zero_lag = true, .non_seasonal = {1}, .seasonal = {12}},
                   CountedValues(5), CountedErrors(5)),
            "<M><P><NonSeasonalFactor>"
            "<ZeroLagTerm><EstimatedParameter>2.5 2.25</EstimatedParameter></ZeroLagTerm>"
            "<LagTerm lag=\"1\"><EstimatedParameter>3.5 3.25</EstimatedParameter></LagTerm>"
            "</NonSeasonalFactor><SeasonalFactor>"
            "<LagTerm lag=\"12\"><EstimatedParameter>4.5 4.25</EstimatedParameter></LagTerm>"
            "</SeasonalFactor></P></M>");
}

TEST(LagPolynomial, LagsStandInTheOrderOfTheirList) {
  EXPECT_EQ(Encode({.non_seasonal = {3, 1}}, CountedValues(2)),
            "<M><P><NonSeasonalFactor>"
            "<LagTerm lag=\"3\"><EstimatedParameter>0.5</EstimatedParameter></LagTerm>"
            "<LagTerm lag=\"1\"><EstimatedParameter>1.5</EstimatedParameter></LagTerm>"
            "</NonSeasonalFactor></P></M>");
}

TEST(LagPolynomial, LagOfZeroInAListIsAZeroLagTermThere) {
  EXPECT_EQ(Encode({.seasonal = {0, 4}}, CountedValues(2)),
            "<M><P><SeasonalFactor>"
            "<ZeroLagTerm><EstimatedParameter>0.5</EstimatedParameter></ZeroLagTerm>"
            "<LagTerm lag=\"4\"><EstimatedParameter>1.5</EstimatedParameter></LagTerm>"
            "</SeasonalFactor></P></M>");
}

TEST(LagPolynomial, LargestLagIsWrittenWhole) {
  EXPECT_EQ(Encode({.non_seasonal = {kLastPosition}}, {}),
            "<M><P><NonSeasonalFactor><LagTerm lag=\"4294967295\"/></NonSeasonalFactor></P></M>");
}

TEST(LagPolynomial, OneValueTooFewLeavesEveryTermEmpty) {
  EXPECT_EQ(Encode({.first = 1, .has_zero_lag = true, .non_seasonal = {1}, .seasonal = {4}},
                   CountedValues(3), CountedErrors(4)),
            "<M><P><NonSeasonalFactor><ZeroLagTerm/><LagTerm lag=\"1\"/></NonSeasonalFactor>"
            "<SeasonalFactor><LagTerm lag=\"4\"/></SeasonalFactor></P></M>");
}

TEST(LagPolynomial, OneStandardErrorTooFewLeavesThemAllOut) {
  EXPECT_EQ(Encode({.first = 1, .non_seasonal = {1, 2}}, CountedValues(3), CountedErrors(2)),
            "<M><P><NonSeasonalFactor>"
            "<LagTerm lag=\"1\"><EstimatedParameter>1.5</EstimatedParameter></LagTerm>"
            "<LagTerm lag=\"2\"><EstimatedParameter>2.5</EstimatedParameter></LagTerm>"
            "</NonSeasonalFactor></P></M>");
}

TEST(LagPolynomial, MissingValueLeavesItsOwnTermEmptyOnly) {
  EXPECT_EQ(Encode({.non_seasonal = {1, 2}}, {kMissing, 1.5}, {0.25, kMissing}),
            "<M><P><NonSeasonalFactor><LagTerm lag=\"1\"/>"
            "<LagTerm lag=\"2\"><EstimatedParameter>1.5</EstimatedParameter></LagTerm>"
            "</NonSeasonalFactor></P></M>");
}

TEST(LagPolynomial, FarPositionWithoutWrappingIsTooFewValues) {
  EXPECT_EQ(Encode({.first = kLastPosition - 1, .non_seasonal = {1}}, CountedValues(3)),
            "<M><P><NonSeasonalFactor><LagTerm lag=\"1\"/></NonSeasonalFactor></P></M>");
}

// 4294967295 + 2 is 1 in 32 bits: one value is enough, and it belongs to the second term.
TEST(LagPolynomial, EndWrapsAroundAndSoDoPositions) {
  EXPECT_EQ(Encode({.first = kLastPosition, .non_seasonal = {1, 2}}, {0.5}, {0.25}),
            "<M><P><NonSeasonalFactor><LagTerm lag=\"1\"/>"
            "<LagTerm lag=\"2\"><EstimatedParameter>0.5 0.25</EstimatedParameter></LagTerm>"
            "</NonSeasonalFactor></P></M>");
}

TEST(LagPolynomial, EndThatWrapsToMoreThanTheValuesLeavesEveryTermEmpty) {
  EXPECT_EQ(Encode({.first = kLastPosition, .non_seasonal = {1, 2, 3}}, {0.5}),
            "<M><P><NonSeasonalFactor><LagTerm lag=\"1\"/><LagTerm lag=\"2\"/><LagTerm lag=\"3\"/>"
            "</NonSeasonalFactor></P></M>");
}

TEST(LagPolynomial, EndThatWrapsToZeroReadsNothingBeyondTheVector) {
  EXPECT_EQ(Encode({.first = kLastPosition, .has_zero_lag = true}, CountedValues(3)),
            "<M><P><NonSeasonalFactor><ZeroLagTerm/></NonSeasonalFactor></P></M>");
  EXPECT_EQ(Encode({.first = kLastPosition, .has_zero_lag = true}, {}),
            "<M><P><NonSeasonalFactor><ZeroLagTerm/></NonSeasonalFactor></P></M>");
}

}  // namespace
