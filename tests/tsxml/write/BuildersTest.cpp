// The builders that every model encoder shares.

#include <gtest/gtest.h>
#include <limits>

#include "support/Models.h"
#include "support/XmlText.h"
#include "tsxml/write/ModelIdentity.h"
#include "tsxml/write/Parameters.h"
#include "tsxml/write/Transformation.h"
#include "xml/ElementPtr.h"
#include "xml/NumberList.h"

namespace {

using test::Compact;
using test::kMissing;
using tsx::ElementPtr;
using tsx::MakeElement;

constexpr double kInf = std::numeric_limits<double>::infinity();

TEST(NumberList, MissingAndInfiniteValuesHaveTextsOfTheirOwn) {
  ElementPtr e = MakeElement("V");
  const std::valarray<double> values = {1.5, kMissing, kInf, -kInf};
  EXPECT_TRUE(tsx::AppendVector(*e, "L", values, false, kMissing));
  EXPECT_EQ(Compact(*e), "<V><L>1.5 NaN INF -INF</L></V>");
}

TEST(NumberList, NotANumberThatIsNotTheMissingValuePassesAsFormatted) {
  ElementPtr e = MakeElement("V");
  const std::valarray<double> values = {std::numeric_limits<double>::quiet_NaN()};
  tsx::AppendVector(*e, "L", values, false, kMissing);
  EXPECT_EQ(Compact(*e), "<V><L>nan</L></V>");
}

TEST(VectorElement, EmptyVectorWritesNothing) {
  ElementPtr e = MakeElement("V");
  EXPECT_FALSE(tsx::AppendVector(*e, "L", std::valarray<double>(), false, kMissing));
  EXPECT_EQ(Compact(*e), "<V/>");
}

TEST(VectorElement, EmptyVectorWithForceIsAnEmptyElement) {
  ElementPtr e = MakeElement("V");
  EXPECT_TRUE(tsx::AppendVector(*e, "L", std::valarray<double>(), true, kMissing));
  EXPECT_EQ(Compact(*e), "<V><L/></V>");
}

TEST(EstimatedParameter, MissingStandardErrorIsLeftOut) {
  ElementPtr e = MakeElement("P");
  EXPECT_TRUE(tsx::AppendEstimatedParameter(*e, 0.25, kMissing));
  EXPECT_EQ(Compact(*e), "<P><EstimatedParameter>0.25</EstimatedParameter></P>");
}

TEST(EstimatedParameter, StandardErrorFollowsAfterOneBlank) {
  ElementPtr e = MakeElement("P");
  EXPECT_TRUE(tsx::AppendEstimatedParameter(*e, 0.25, 0.01));
  EXPECT_EQ(Compact(*e), "<P><EstimatedParameter>0.25 0.01</EstimatedParameter></P>");
}

TEST(EstimatedParameter, MissingValueWritesNothing) {
  ElementPtr e = MakeElement("P");
  EXPECT_FALSE(tsx::AppendEstimatedParameter(*e, kMissing, 0.01));
  EXPECT_EQ(Compact(*e), "<P/>");
}

TEST(EstimatedParameter, InfinityStaysAsTheNumberFormatWritesIt) {
  ElementPtr e = MakeElement("P");
  tsx::AppendEstimatedParameter(*e, kInf, -kInf);
  EXPECT_EQ(Compact(*e), "<P><EstimatedParameter>inf -inf</EstimatedParameter></P>");
}

class NamedParameter : public testing::Test {
 protected:
  bool Append(int weight, const std::valarray<double>& values,
              const std::valarray<double>& stdErrors) {
    return tsx::AppendNamedParameter(*parent_, holt_, weight, "W", values, stdErrors);
  }

  ElementPtr parent_ = MakeElement("P");
  ESModelSpec holt_{ESModelSpec::ForKind(ESModelSpec::kHolt, 1)};
};

TEST_F(NamedParameter, HoldsTheEstimateAtItsPosition) {
  EXPECT_TRUE(Append(ESModelSpec::kTrend, {0.5, 0.125}, {0.1, 0.2}));
  EXPECT_EQ(Compact(*parent_), "<P><W><EstimatedParameter>0.125 0.2</EstimatedParameter></W></P>");
}

TEST_F(NamedParameter, WeightThatTheModelLacksIsTrueAndAbsent) {
  EXPECT_TRUE(Append(ESModelSpec::kSeason, {0.5, 0.125}, {}));
  EXPECT_EQ(Compact(*parent_), "<P/>");
}

TEST_F(NamedParameter, PositionBeyondTheValuesFails) {
  EXPECT_FALSE(Append(ESModelSpec::kTrend, {0.5}, {}));
  EXPECT_EQ(Compact(*parent_), "<P/>");
}

TEST_F(NamedParameter, PositionBeyondTheStandardErrorsMeansNone) {
  EXPECT_TRUE(Append(ESModelSpec::kTrend, {0.5, 0.125}, {0.1}));
  EXPECT_EQ(Compact(*parent_), "<P><W><EstimatedParameter>0.125</EstimatedParameter></W></P>");
}

TEST_F(NamedParameter, MissingEstimateFailsAndWritesNothing) {
  EXPECT_FALSE(Append(ESModelSpec::kLevel, {kMissing, 0.125}, {0.1, 0.1}));
  EXPECT_EQ(Compact(*parent_), "<P/>");
}

TEST(LagTerm, LagZeroHasAnElementOfItsOwnWithoutAttribute) {
  ElementPtr e = MakeElement("F");
  tsx::AppendLagTerm(*e, 0, 0.5, kMissing);
  EXPECT_EQ(Compact(*e),
            "<F><ZeroLagTerm><EstimatedParameter>0.5</EstimatedParameter></ZeroLagTerm></F>");
}

TEST(LagTerm, OtherLagsCarryTheirNumber) {
  ElementPtr e = MakeElement("F");
  tsx::AppendLagTerm(*e, 12, 0.5, 0.25);
  EXPECT_EQ(Compact(*e),
            "<F><LagTerm lag=\"12\"><EstimatedParameter>0.5 0.25</EstimatedParameter>"
            "</LagTerm></F>");
}

TEST(LagTerm, MissingValueLeavesTheTermEmpty) {
  ElementPtr e = MakeElement("F");
  tsx::AppendLagTerm(*e, 3, kMissing, 0.25);
  EXPECT_EQ(Compact(*e), "<F><LagTerm lag=\"3\"/></F>");
}

TEST(Transformation, NothingDoneWritesNothing) {
  ElementPtr e = MakeElement("M");
  EXPECT_FALSE(tsx::AppendTransformation(*e, {}));
  EXPECT_EQ(Compact(*e), "<M/>");
}

TEST(Transformation, FunctionOfTypeOneIsTheLogarithm) {
  ElementPtr e = MakeElement("M");
  EXPECT_TRUE(tsx::AppendTransformation(*e, {.function_type = 1}));
  EXPECT_EQ(Compact(*e), "<M><Transformation function=\"logarithm\"/></M>");
}

TEST(Transformation, FunctionOfTypeTwoAloneIsOnlyTheSquareRoot) {
  ElementPtr e = MakeElement("M");
  EXPECT_TRUE(tsx::AppendTransformation(*e, {.function_type = 2}));
  EXPECT_EQ(Compact(*e), "<M><Transformation function=\"squareRoot\"/></M>");
}

TEST(Transformation, AnyOtherFunctionTypeIsCalledSquareRootToo) {
  ElementPtr e = MakeElement("M");
  tsx::AppendTransformation(*e, {.function_type = -4});
  EXPECT_EQ(Compact(*e), "<M><Transformation function=\"squareRoot\"/></M>");
}

TEST(Transformation, OrdersAndDelayFollowInAFixedOrder) {
  ElementPtr e = MakeElement("M");
  tsx::AppendTransformation(
      *e, {.function_type = 1, .non_seasonal_diff = 1, .seasonal_diff = 2, .delay = 3});
  EXPECT_EQ(Compact(*e),
            "<M><Transformation function=\"logarithm\" nonSeasonalDiff=\"1\" seasonalDiff=\"2\""
            " delay=\"3\"/></M>");
}

TEST(Transformation, DifferencingAloneIsEnough) {
  ElementPtr regular = MakeElement("M");
  EXPECT_TRUE(tsx::AppendTransformation(*regular, {.non_seasonal_diff = 1}));
  EXPECT_EQ(Compact(*regular), "<M><Transformation nonSeasonalDiff=\"1\"/></M>");
  ElementPtr seasonal = MakeElement("M");
  EXPECT_TRUE(tsx::AppendTransformation(*seasonal, {.seasonal_diff = 2}));
  EXPECT_EQ(Compact(*seasonal), "<M><Transformation seasonalDiff=\"2\"/></M>");
}

TEST(Transformation, DelayAloneIsEnough) {
  ElementPtr e = MakeElement("M");
  EXPECT_TRUE(tsx::AppendTransformation(*e, {.delay = 5}));
  EXPECT_EQ(Compact(*e), "<M><Transformation delay=\"5\"/></M>");
}

std::string IdentityOf(const TSXDictionaryRefs& refs) {
  ElementPtr e = MakeElement("M");
  tsx::FillModelIdentity(*e, refs);
  return Compact(*e);
}

TEST(ModelIdentity, AllFourAttributesInOrder) {
  TSXDictionaryRefs refs("airline", "monthly", "y");
  refs.SetDateSpecID(3);
  EXPECT_EQ(IdentityOf(refs),
            "<M modelName=\"airline\" modelDescriptor=\"monthly\" variableID=\"y\""
            " dateSpecID=\"3\"/>");
}

TEST(ModelIdentity, EmptyNamesAreLeftOutButTheVariableStays) {
  EXPECT_EQ(IdentityOf(TSXDictionaryRefs()), "<M variableID=\"\"/>");
}

TEST(ModelIdentity, DateSpecificationIDOfZeroOrBelowIsNotWritten) {
  TSXDictionaryRefs refs("m", "", "y");
  EXPECT_EQ(IdentityOf(refs), "<M modelName=\"m\" variableID=\"y\"/>");
  refs.SetDateSpecID(-1);
  EXPECT_EQ(IdentityOf(refs), "<M modelName=\"m\" variableID=\"y\"/>");
}

}  // namespace
