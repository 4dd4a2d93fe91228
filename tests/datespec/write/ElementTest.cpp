// The DateSpecification element, against documents written by hand.

#include <gtest/gtest.h>
#include <limits>
#include <string>

#include <tsxport/ExportFormat.h>
#include <tsxport/XMLUtil.h>

#include "datespec/Calendars.h"
#include "datespec/write/DateSpecificationElement.h"
#include "support/Golden.h"
#include "support/ScopedLocale.h"

namespace {

using test::AddGaps;
using test::Make;
using test::Monthly;
using test::MonthsInQuarters;
using test::StartAt;
using test::Yearly;
using namespace test::periods;

// A document whose root is the element.
std::string Document(const TSXDateSpec& spec, const std::string& descriptor = "", unsigned id = 1) {
  std::string text = TIMESERIESXML::XMLUtil::FIRST_LINE + "\n";
  TIMESERIESXML::ExportFormat format;
  tsx::MakeDateSpecification(spec, descriptor, id)->ToString(text, format);
  return text;
}

void ExpectDocument(const std::string& name, const std::string& text) {
  test::ExpectGolden("datespec/golden/" + name + ".xml", text);
  test::ExpectWellFormed(text);
}

TSXDateSpec MonthsFromApril1949() {
  TSXDateSpec spec = Monthly();
  StartAt(spec, {1949, 3});
  return spec;
}

TEST(DateSpecificationElement, BaseAloneHasItsFirstCaseOnly) {
  ExpectDocument("year", Document(Yearly()));
}

TEST(DateSpecificationElement, WholeCycleHasNoSubCycle) {
  ExpectDocument("months", Document(MonthsFromApril1949(), "calendar months", 2));
}

TEST(DateSpecificationElement, PartOfACycleHasStartAndLengthEvenFromZero) {
  ExpectDocument("half_year", Document(Make(Year, {{Month, 12, 0, 6}})));
}

TEST(DateSpecificationElement, IncrementSeasonAndFiscalYearStandWithThePeriods) {
  TSXDateSpec spec = MonthsInQuarters();
  ASSERT_EQ(spec.SetLowestIncrement(3).GetCode(), 0U);
  spec.SetForcedSeasonLength(2);
  spec.SetFiscalYearStart(7);
  StartAt(spec, {1999, 2, 6});
  ExpectDocument("months_in_quarters", Document(spec));
}

TEST(DateSpecificationElement, GapsAreAListOfVirtualOffsets) {
  TSXDateSpec spec = Monthly();
  StartAt(spec, {1999, 3});
  AddGaps(spec, {1000, 4, 2});
  ExpectDocument("gaps", Document(spec));
}

TEST(DateSpecificationElement, EveryPeriodHasItsName) {
  ExpectDocument("every_period",
                 Document(Make(SimpleSequence, {{Cycle, 2},
                                                {Year, 10},
                                                {Quarter, 4},
                                                {Month, 12},
                                                {Week, 4},
                                                {Day, 7},
                                                {Hour, 24},
                                                {Minute, 60},
                                                {Second, 60},
                                                {Obs, 4294967295U, 3, 4294967290U}}),
                          "", 4294967295U));
}

// Meant so: the year stands in a second attribute "month". XML readers reject such an element, so
// this is the one document that is not well-formed.
TEST(DateSpecificationElement, FirstCaseDayRepeatsTheMonthAttributeForTheYear) {
  TSXDateSpec spec = test::Workdays();
  AddGaps(spec, {4});
  ASSERT_TRUE(spec.SetFirstCaseDay(15, 3, 2001));
  test::ExpectGolden("datespec/golden/first_case_day.xml", Document(spec));
}

TEST(DateSpecificationElement, ClearedFirstCaseDayIsLeftOut) {
  TSXDateSpec spec = test::Workdays();
  ASSERT_TRUE(spec.SetFirstCaseDay(15, 3, 2001));
  ASSERT_TRUE(spec.SetFirstCaseDay(0, 0, 0));
  EXPECT_EQ(Document(spec).find("FirstCaseDay"), std::string::npos);
}

TEST(DateSpecificationElement, ClearedGapsAreLeftOut) {
  TSXDateSpec spec = MonthsFromApril1949();
  AddGaps(spec, {3});
  spec.ClearGaps();
  ExpectDocument("months", Document(spec, "calendar months", 2));
}

TEST(DateSpecificationElement, NamelessPeriodIsLeftOut) {
  TSXDateSpec spec = MonthsFromApril1949();
  ASSERT_EQ(spec.AddPeriod(TSXDateSpec::PeriodType{11}, 5, 0, 0).GetCode(), 0U);
  StartAt(spec, {1949, 3, 2});
  ExpectDocument("months", Document(spec, "calendar months", 2));
}

TEST(DateSpecificationElement, NamelessBaseIsLeftOut) {
  EXPECT_EQ(Document(TSXDateSpec(TSXDateSpec::PeriodType{12})),
            "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n\n"
            "<DateSpecification\n\tdateSpecID=\"1\">\n\t<Periods/>\n</DateSpecification>");
}

TEST(DateSpecificationElement, DescriptorIsEscaped) {
  const std::string text = Document(Yearly(), "<A & \"B\">");
  EXPECT_NE(text.find("dateSpecDescriptor=\"&lt;A &amp; &quot;B&quot;&gt;\""), std::string::npos);
  test::ExpectWellFormed(text);
}

// Such a gap has no tuple of its own: it is told with the first case's.
TEST(DateSpecificationElement, GapBeyondTheLastPositionIsToldAsZero) {
  TSXDateSpec spec = Yearly();
  AddGaps(spec, {2, std::numeric_limits<long>::max()});
  EXPECT_NE(Document(spec).find("<GapList>2 0</GapList>"), std::string::npos);
}

TEST(DateSpecificationElement, ManyGapsMakeOneList) {
  TSXDateSpec spec = Yearly();
  std::string list;
  for (long offset = 1; offset <= 3000; ++offset) {
    AddGaps(spec, {2 * offset});
    list += (offset == 1 ? "" : " ") + std::to_string(2 * offset);
  }
  EXPECT_NE(Document(spec).find("<GapList>" + list + "</GapList>"), std::string::npos);
}

TEST(DateSpecificationElement, IsTheSameUnderAnyLocale) {
  const std::string text = Document(MonthsFromApril1949(), "", 1000000);
  const test::ScopedLocale comma("de_DE.UTF-8");
  const test::ScopedGroupingCxxLocale grouping;
  EXPECT_EQ(Document(MonthsFromApril1949(), "", 1000000), text);
  EXPECT_NE(text.find("dateSpecID=\"1000000\""), std::string::npos);
}

TEST(DateSpecificationElement, LeavesTheSpecificationAsItWas) {
  TSXDateSpec spec = MonthsFromApril1949();
  AddGaps(spec, {3, 4});
  const TSXDateSpec before = spec;
  Document(spec);
  EXPECT_TRUE(test::AreSame(spec, before));
}

}  // namespace
