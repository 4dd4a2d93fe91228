#include <climits>
#include <gtest/gtest.h>
#include <new>
#include <sstream>

#include <tsxport/TSXMLTree.h>

#include "dictionary/DateSpecDictionary.h"
#include "export/TSXMLTreeImp.h"
#include "pmml/write/TSXPMMLDocument.h"
#include "support/Calendars.h"
#include "support/FailingAllocation.h"
#include "support/Models.h"

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
  EXPECT_EQ(dictionary.entries()[0].descriptor, "first");
  EXPECT_FALSE(dictionary.entries()[0].referenced);
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

// Calendars of months, each with a first case of its own.
TSXDateSpec NthCalendar(unsigned n) { return Monthly(1900 + n / 12, n % 12); }

TEST(DateSpecDictionary, ManyCalendarsGetRisingIDsAndKeepThem) {
  tsx::DateSpecDictionary dictionary;
  for (unsigned n = 0; n < 200; ++n) {
    ASSERT_EQ(dictionary.Register(NthCalendar(n), ""), static_cast<int>(n) + 1);
  }
  for (unsigned n = 200; n-- > 0;) {
    ASSERT_EQ(dictionary.Register(NthCalendar(n), ""), static_cast<int>(n) + 1);
  }
  EXPECT_EQ(dictionary.entries().size(), 200U);
}

TEST(DateSpecDictionary, IDsStartAgainAfterAllIsCleared) {
  tsx::DateSpecDictionary dictionary;
  dictionary.Register(Monthly(), "");
  dictionary.Register(Yearly(), "");
  dictionary.Clear();
  EXPECT_TRUE(dictionary.entries().empty());
  EXPECT_EQ(dictionary.Register(Yearly(), ""), 1);
  EXPECT_EQ(dictionary.Register(Monthly(), ""), 2);
}

TEST(DateSpecDictionary, WriteOfADocumentStartsIDsAgain) {
  TSXMLTree tree;
  EXPECT_EQ(tree.AddDateSpec(Monthly(), ""), 1);
  EXPECT_EQ(tree.AddDateSpec(Yearly(), ""), 2);
  ASSERT_TRUE(tree.AddModelTree(test::SimpleModel(), TSXDictionaryRefs("m", "", "y")));
  std::ostringstream out;
  ASSERT_TRUE(tree.WriteToStream(out));
  EXPECT_EQ(tree.AddDateSpec(Yearly(), ""), 1);
  EXPECT_EQ(tree.AddDateSpec(Monthly(), ""), 2);
  EXPECT_EQ(tree.AddDateSpec(Yearly(), ""), 1);
}

TEST(DateSpecView, KnowsItsOwnIDsAlone) {
  tsx::DateSpecDictionary dictionary;
  dictionary.Register(Monthly(), "");
  dictionary.Register(Yearly(), "");
  const tsx::DateSpecView view = dictionary.entries();
  EXPECT_EQ(view.Find(1), 0U);
  EXPECT_EQ(view.Find(2), 1U);
  for (const int id : {0, 3, -1, INT_MAX, INT_MIN}) EXPECT_EQ(view.Find(id), std::nullopt) << id;
  EXPECT_EQ(tsx::DateSpecView().Find(1), std::nullopt);
}

TEST(DateSpecView, StaysAsItWasTaken) {
  tsx::DateSpecDictionary dictionary;
  const tsx::DateSpecView before = dictionary.entries();
  dictionary.Register(Monthly(), "months");
  const tsx::DateSpecView view = dictionary.entries();
  dictionary.Register(Yearly(), "");
  EXPECT_EQ(view.size(), 1U);
  EXPECT_EQ(view.Find(2), std::nullopt);
  dictionary.Clear();
  dictionary.Register(Hourly(), "hours");
  ASSERT_EQ(view.size(), 1U);
  EXPECT_EQ(view[0].descriptor, "months");
  EXPECT_TRUE(view[0].date_spec.IsEquivalent(Monthly(), true));
  EXPECT_TRUE(before.empty());
}

TEST(DateSpecDictionary, IsAsItWasWhereverMemoryRunsOut) {
  const TSXDateSpec monthly = Monthly();
  test::WithEveryAllocationFailing([&] {
    tsx::DateSpecDictionary dictionary;
    {
      const test::AllocationsSucceed setUp;
      dictionary.Register(Yearly(), "");
    }
    try {
      dictionary.Register(monthly, "a descriptor that does not fit a small buffer");
    } catch (const std::bad_alloc&) {
      const test::AllocationsSucceed look;
      EXPECT_EQ(dictionary.entries().size(), 1U);
      EXPECT_EQ(dictionary.Register(monthly, "months"), 2);
      EXPECT_EQ(dictionary.entries()[1].descriptor, "months");
      EXPECT_EQ(dictionary.Register(monthly, ""), 2);
      throw;
    }
  });
}

}  // namespace
