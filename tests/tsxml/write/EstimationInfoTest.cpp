#include <gtest/gtest.h>
#include <limits>

#include "support/Models.h"
#include "support/XmlText.h"
#include "tsxml/write/EstimationInfoElement.h"

namespace {

using test::Compact;

constexpr double kInf = std::numeric_limits<double>::infinity();

std::string TextOf(const EstimationInfo::Fields& fields) {
  return Compact(*tsx::MakeEstimationInfo(EstimationInfo(fields)));
}

TEST(EstimationInfoElement, AllMissingLeavesThreeAttributesAndNoChildren) {
  EXPECT_EQ(TextOf({.span = {.start = 2, .length = 142}, .degrees_of_freedom = 139}),
            "<EstimationInfo periodStartIndex=\"2\" periodLength=\"142\""
            " degreesOfFreedom=\"139\"/>");
}

TEST(EstimationInfoElement, StatisticsFollowTheErrorVarianceInTableOrder) {
  EstimationInfo::Fields fields;
  fields.error_variance = 0.5;
  for (int code = 0; code < BFSharedConst::kGOFStatCount; ++code) {
    fields.statistics[static_cast<BFSharedConst::GOFStatType>(code)] = code + 0.25;
  }
  EXPECT_EQ(TextOf(fields),
            "<EstimationInfo periodStartIndex=\"0\" periodLength=\"0\" degreesOfFreedom=\"0\">"
            "<Statistic type=\"errVariance\">0.5</Statistic>"
            "<Statistic type=\"meanSqrErr\">0.25</Statistic>"
            "<Statistic type=\"rootMeanSqrErr\">1.25</Statistic>"
            "<Statistic type=\"meanAbsPctErr\">2.25</Statistic>"
            "<Statistic type=\"meanAbsErr\">3.25</Statistic>"
            "<Statistic type=\"maxAbsPctErr\">4.25</Statistic>"
            "<Statistic type=\"maxAbsErr\">5.25</Statistic>"
            "<Statistic type=\"rSqr\">6.25</Statistic>"
            "<Statistic type=\"normBayesIC\">7.25</Statistic>"
            "<Statistic type=\"logLikelihood\">8.25</Statistic>"
            "<Statistic type=\"akaikeIC\">13.25</Statistic>"
            "<Statistic type=\"bayesIC\">14.25</Statistic>"
            "<Statistic type=\"stationaryRSqr\">15.25</Statistic>"
            "</EstimationInfo>");
}

TEST(EstimationInfoElement, LogLikelihoodOfMinusInfinityHasItsText) {
  EstimationInfo::Fields fields;
  fields.statistics[BFSharedConst::kLogLikelihood] = -kInf;
  EXPECT_EQ(TextOf(fields),
            "<EstimationInfo periodStartIndex=\"0\" periodLength=\"0\" degreesOfFreedom=\"0\">"
            "<Statistic type=\"logLikelihood\">-INF</Statistic></EstimationInfo>");
}

TEST(EstimationInfoElement, LjungBoxStandsLastWithItsAttributes) {
  EstimationInfo::Fields fields;
  fields.statistics[BFSharedConst::kRSqr] = 0.5;
  fields.ljung_box = {.statistic = 20.5, .k = 18, .degrees_of_freedom = 15, .p_value = 0.125};
  EXPECT_EQ(TextOf(fields),
            "<EstimationInfo periodStartIndex=\"0\" periodLength=\"0\" degreesOfFreedom=\"0\">"
            "<Statistic type=\"rSqr\">0.5</Statistic>"
            "<LjungBoxStatistic k=\"18\" degreesOfFreedom=\"15\" pValue=\"0.125\">20.5"
            "</LjungBoxStatistic></EstimationInfo>");
}

TEST(EstimationInfoElement, MissingPValueIsWrittenAsTheNumberItIs) {
  EstimationInfo::Fields fields;
  fields.ljung_box = {.statistic = 20.5, .k = 18, .degrees_of_freedom = 15};
  EXPECT_EQ(TextOf(fields),
            "<EstimationInfo periodStartIndex=\"0\" periodLength=\"0\" degreesOfFreedom=\"0\">"
            "<LjungBoxStatistic k=\"18\" degreesOfFreedom=\"15\""
            " pValue=\"-1.79769313486232e+308\">20.5</LjungBoxStatistic></EstimationInfo>");
}

TEST(EstimationInfoElement, MissingLjungBoxStatisticLeavesTheElementOut) {
  EstimationInfo::Fields fields;
  fields.ljung_box = {.k = 18, .degrees_of_freedom = 15, .p_value = 0.5};
  EXPECT_EQ(TextOf(fields),
            "<EstimationInfo periodStartIndex=\"0\" periodLength=\"0\" degreesOfFreedom=\"0\"/>");
}

TEST(EstimationInfoElement, InfiniteLjungBoxStatisticIsWrittenByTheNumberListRules) {
  EstimationInfo::Fields fields;
  fields.ljung_box = {.statistic = kInf, .k = 18, .degrees_of_freedom = 15, .p_value = 0};
  EXPECT_EQ(TextOf(fields),
            "<EstimationInfo periodStartIndex=\"0\" periodLength=\"0\" degreesOfFreedom=\"0\">"
            "<LjungBoxStatistic k=\"18\" degreesOfFreedom=\"15\" pValue=\"0\">INF"
            "</LjungBoxStatistic></EstimationInfo>");
}

}  // namespace
