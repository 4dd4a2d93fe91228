#include <gtest/gtest.h>

#include <tsxport/TSXMLTree.h>

#include "export/Calendars.h"
#include "export/TSXMLTreeImp.h"
#include "support/FailingAllocation.h"

namespace {

using test::Hourly;
using test::Monthly;
using test::Yearly;

TEST(DateSpecDictionary, FirstSpecificationGetsIDOne) {
  TSXMLTree tree;
  EXPECT_EQ(tree.AddDateSpec(Monthly(), ""), 1);
}

TEST(DateSpecDictionary, SameSpecificationIsEnteredOnce) {
  tsx::DateSpecDictionary dictionary;
  EXPECT_EQ(dictionary.Register(Monthly(), "first"), 1);
  EXPECT_EQ(dictionary.Register(Monthly(), "second"), 1);
  ASSERT_EQ(dictionary.entries().size(), 1U);
  EXPECT_EQ(dictionary.entries().front().descriptor, "first");
  EXPECT_FALSE(dictionary.entries().front().referenced);
}

TEST(DateSpecDictionary, EquivalentToAnEarlierOneReturnsItsID) {
  TSXMLTree tree;
  EXPECT_EQ(tree.AddDateSpec(Monthly(), ""), 1);
  EXPECT_EQ(tree.AddDateSpec(Yearly(), ""), 2);
  EXPECT_EQ(tree.AddDateSpec(Monthly(), ""), 1);
}

TEST(DateSpecDictionary, OtherFirstCaseIsAnotherSpecification) {
  TSXMLTree tree;
  EXPECT_EQ(tree.AddDateSpec(Monthly(1949, 0), ""), 1);
  EXPECT_EQ(tree.AddDateSpec(Monthly(1949, 1), ""), 2);
}

TEST(DateSpecDictionary, FiscalYearSeasonAndFirstCaseDayDoNotTellApart) {
  TSXDateSpec other = Hourly();
  other.SetFiscalYearStart(3);
  other.SetForcedSeasonLength(168);
  ASSERT_TRUE(other.SetFirstCaseDay(15, 3, 2001));
  TSXMLTree tree;
  EXPECT_EQ(tree.AddDateSpec(Hourly(), ""), 1);
  EXPECT_EQ(tree.AddDateSpec(other, ""), 1);
}

class TimeFieldOfTree : public testing::Test {
 protected:
  std::string After(const TSXDateSpec& spec) {
    imp_.AddDateSpec(spec, "");
    return imp_.GetPMMLDocument().GetTimeField().name + "/" +
           imp_.GetPMMLDocument().GetTimeField().kind;
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

TEST(DateSpecDictionary, RegistrationIsWholeOrNotAtAllWhenMemoryRunsOut) {
  const TSXDateSpec monthly = Monthly();
  test::WithEveryAllocationFailing([&] {
    TSXMLTreeImp imp;
    try {
      imp.AddDateSpec(monthly, "a descriptor that does not fit a small buffer");
    } catch (const std::bad_alloc&) {
      const test::AllocationsSucceed look;
      EXPECT_EQ(imp.GetPMMLDocument().GetTimeField().name, "");
      EXPECT_EQ(imp.AddDateSpec(monthly, ""), 1);
      throw;
    }
  });
}

}  // namespace
