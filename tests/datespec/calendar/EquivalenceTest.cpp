// The hash by which equivalent calendars are found.

#include <algorithm>
#include <cstdint>
#include <gtest/gtest.h>
#include <random>
#include <vector>

#include "datespec/Calendars.h"
#include "datespec/calendar/DateSpecAccess.h"

namespace {

using test::Make;
using namespace test::periods;

std::uint64_t HashOf(const TSXDateSpec& spec) {
  return tsx::DateSpecAccess::Imp(spec).EquivalenceHash();
}

unsigned Below(std::mt19937& random, unsigned end) { return static_cast<unsigned>(random() % end); }

// Periods of a calendar or not, in a few variants, so that equals are common.
TSXDateSpec AnyPeriods(std::mt19937& random) {
  const unsigned start = Below(random, 2);
  switch (Below(random, 5)) {
    case 0:
      return Make(Year, {{Month, 12, start, 6}});
    case 1:
      return Make(Year, {{Quarter, 4}, {Month, 12}});
    case 2:
      return Make(Week, {{Day, 7, start, 4 + 2 * Below(random, 2)}});
    case 3:
      return Make(Day, {{Hour, 24, start, 12}, {Minute, 60}});
    default:
      return TSXDateSpec(static_cast<TSXDateSpec::PeriodType>(Below(random, 5)));
  }
}

// What is added here comes and goes by chance: increment, first case, gaps.
TSXDateSpec AnyCalendar(std::mt19937& random) {
  TSXDateSpec spec = AnyPeriods(random);
  spec.SetLowestIncrement(1 + Below(random, 2));
  spec.SetFirstCaseIndex(spec.IndexTuple(static_cast<long>(Below(random, 3))));
  for (unsigned i = Below(random, 3); i > 0; --i) {
    spec.AddGap(1 + static_cast<long>(Below(random, 3)));
  }
  return spec;
}

TEST(EquivalenceHash, IsEqualWhereCalendarsAreEquivalentAndNowhereElse) {
  std::mt19937 random(1);
  std::vector<TSXDateSpec> calendars;
  for (int i = 0; i < 1500; ++i) calendars.push_back(AnyCalendar(random));
  std::vector<std::uint64_t> hashes;
  for (const TSXDateSpec& spec : calendars) hashes.push_back(HashOf(spec));

  std::size_t equivalent = 0;
  for (std::size_t i = 0; i < calendars.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      const bool same = calendars[i].IsEquivalent(calendars[j], true);
      equivalent += same ? 1 : 0;
      ASSERT_EQ(hashes[i] == hashes[j], same) << i << " and " << j;
    }
  }
  EXPECT_GT(equivalent, 1000U) << "too few equals to tell anything";
}

// What is never compared does not count either.
TEST(EquivalenceHash, LeavesOutSeasonLengthFiscalYearAndFirstCaseDay) {
  TSXDateSpec other = test::Workdays();
  other.SetForcedSeasonLength(10);
  other.SetFiscalYearStart(4);
  ASSERT_TRUE(other.SetFirstCaseDay(15, 3, 2001));
  EXPECT_EQ(HashOf(other), HashOf(test::Workdays()));
}

TEST(EquivalenceHash, OfManyNeighboursIsNeverTheSameTwice) {
  std::vector<std::uint64_t> hashes;
  for (unsigned year = 0; year < 2000; ++year) {
    TSXDateSpec spec = test::Monthly();
    for (unsigned month = 0; month < 12; ++month) {
      test::StartAt(spec, {year, month});
      hashes.push_back(HashOf(spec));
    }
  }
  std::sort(hashes.begin(), hashes.end());
  EXPECT_EQ(std::adjacent_find(hashes.begin(), hashes.end()), hashes.end());
}

}  // namespace
