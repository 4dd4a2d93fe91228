#include <gtest/gtest.h>

#include "export/TSXMLTreeImp.h"
#include "pmml/write/TSXPMMLDocument.h"
#include "support/Calendars.h"

namespace {

using test::Hourly;
using test::Monthly;
using test::Yearly;

class TimeFieldOfTree : public testing::Test {
 protected:
  std::string After(const TSXDateSpec& spec) {
    imp_.AddDateSpec(spec, "");
    const tsx::pmml::TimeField& field = imp_.GetPMMLDocument().GetTimeField();
    return std::string(field.name) + "/" + std::string(field.kind);
  }
  TSXMLTreeImp imp_;
};

TEST_F(TimeFieldOfTree, IsEmptyUntilASpecificationIsRegistered) {
  EXPECT_EQ(imp_.GetPMMLDocument().GetTimeField().name, "");
  EXPECT_EQ(imp_.GetPMMLDocument().GetTimeField().kind, "");
}

TEST_F(TimeFieldOfTree, IsTheLastPeriodWithItsKind) {
  EXPECT_EQ(After(Monthly()), "Month/date");
  EXPECT_EQ(After(Hourly()), "Hour/time");
  EXPECT_EQ(After(TSXDateSpec(TSXDateSpec::SimpleSequence)), "SimpleSequence/time");
  EXPECT_EQ(After(TSXDateSpec(TSXDateSpec::Cycle)), "Cycle/date");
  EXPECT_EQ(After(Yearly()), "Year/date");
  EXPECT_EQ(After(TSXDateSpec(TSXDateSpec::Quarter)), "Quarter/date");
  EXPECT_EQ(After(TSXDateSpec(TSXDateSpec::Week)), "Week/date");
  EXPECT_EQ(After(TSXDateSpec(TSXDateSpec::Day)), "Day/date");
  EXPECT_EQ(After(TSXDateSpec(TSXDateSpec::Minute)), "Minute/time");
  EXPECT_EQ(After(TSXDateSpec(TSXDateSpec::Second)), "Second/time");
}

TEST_F(TimeFieldOfTree, ObservationsAreATime) {
  TSXDateSpec spec(TSXDateSpec::Day);
  ASSERT_FALSE(spec.AddPeriod(TSXDateSpec::Obs, 3, 0, 0).IsError());
  EXPECT_EQ(After(spec), "Obs/time");
}

TEST_F(TimeFieldOfTree, PeriodWithoutANameLeavesItAsItWas) {
  constexpr auto kNameless = static_cast<TSXDateSpec::PeriodType>(11);
  After(Hourly());
  EXPECT_EQ(After(TSXDateSpec(kNameless)), "Hour/time");
  TSXDateSpec behindMonths = Monthly();
  ASSERT_FALSE(behindMonths.AddPeriod(kNameless, 4, 0, 0).IsError());
  EXPECT_EQ(After(behindMonths), "Month/date");
}

TEST_F(TimeFieldOfTree, ReusedSpecificationSetsItAgain) {
  After(Monthly());
  After(Hourly());
  EXPECT_EQ(After(Monthly()), "Month/date");
}

}  // namespace
