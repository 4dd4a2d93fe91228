#include <gtest/gtest.h>

#include <tsxport/TSXMLTree.h>

#include "export/TSXMLTreeImp.h"
#include "support/Calendars.h"
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

TEST(DictionaryEntry, IsUnreferencedAtFirst) {
  const tsx::DicDateSpec entry{Yearly(), 1, "years"};
  EXPECT_FALSE(entry.referenced);
  EXPECT_EQ(entry.id, 1U);
  EXPECT_EQ(entry.descriptor, "years");
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
