// The time-series XML document that a tree writes.

#include <gtest/gtest.h>
#include <memory>
#include <sstream>

#include <tsxport/TSXMLTree.h>

#include "export/TSXMLTreeImp.h"
#include "support/ArimaModels.h"
#include "support/Calendars.h"
#include "support/FailingAllocation.h"
#include "support/FailingStream.h"
#include "support/Golden.h"
#include "support/Models.h"
#include "support/ScopedLocale.h"

namespace {

TSXDictionaryRefs Refs(int dateSpecID = 0, const std::string& name = "m") {
  TSXDictionaryRefs refs(name, "", "y");
  refs.SetDateSpecID(dateSpecID);
  return refs;
}

std::string Written(TSXMLTree& tree) {
  std::ostringstream out;
  EXPECT_TRUE(tree.WriteToStream(out));
  return out.str();
}

std::string Written(TSXMLTreeImp& imp, bool frame) {
  std::ostringstream out;
  EXPECT_TRUE(imp.WriteToStream(out, frame));
  return out.str();
}

void ExpectDocument(const std::string& golden, const std::string& text) {
  test::ExpectGolden("export/golden/" + golden, text);
  test::ExpectWellFormed(text);
}

// An airline model on monthly data from January 1949, and a second model on the same calendar.
void FillTwoModels(TSXMLTree& tree) {
  tree.SetApplication("planner", "2.1");
  tree.AddDateSpec(test::Yearly(), "used by no model");
  const int monthly = tree.AddDateSpec(test::Monthly(1949, 0), "calendar months");
  const TSFModel winters = test::ModelOf(std::make_unique<ESForecastState>(test::WintersState()));
  TSXDictionaryRefs refs("airline", "passengers & freight, \"thousands\"", "passengers");
  refs.SetDateSpecID(monthly);
  ASSERT_TRUE(tree.AddModelTree(winters, refs));
  ASSERT_TRUE(tree.AddModelTree(test::SimpleModel(), Refs(monthly, "level")));
}

// Sales explained by their price, on monthly data.
void FillArimaModel(TSXMLTree& tree) {
  TSXDictionaryRefs refs("sales", "by price", "y", {"price"});
  refs.SetDateSpecID(tree.AddDateSpec(test::Monthly(1949, 0), ""));
  const TSFModel model =
      test::ModelOf(std::make_unique<ARMACLSForecastState>(test::RegressionCLSState()), 1);
  ASSERT_TRUE(tree.AddModelTree(model, refs));
}

TEST(Document, TwoModelsShareOneDateSpecification) {
  TSXMLTree tree;
  FillTwoModels(tree);
  ExpectDocument("two_models.xml", Written(tree));
}

TEST(Document, ArimaModelStandsInTheFrameWithItsPredictor) {
  TSXMLTree tree;
  FillArimaModel(tree);
  ExpectDocument("arima_model.xml", Written(tree));
}

TEST(Document, WithoutApplicationAndCalendarHeaderAndDictionaryAreEmpty) {
  TSXMLTree tree;
  ASSERT_TRUE(tree.AddModelTree(test::SimpleModel(), Refs()));
  ExpectDocument("bare_model.xml", Written(tree));
}

TEST(Document, NoModelsMeansNoDocumentWhateverTheDictionaryHolds) {
  TSXMLTree tree;
  tree.AddDateSpec(test::Yearly(), "");
  std::ostringstream out;
  EXPECT_FALSE(tree.WriteToStream(out));
  EXPECT_EQ(out.str(), "");
  EXPECT_EQ(tree.AddDateSpec(test::Monthly(), ""), 2) << "the dictionary must be kept";
}

TEST(Document, UnusedDateSpecificationIsNotWrittenAndIsDiscardedAllTheSame) {
  TSXMLTree tree;
  tree.AddDateSpec(test::Yearly(), "");
  ASSERT_TRUE(tree.AddModelTree(test::SimpleModel(), Refs()));
  EXPECT_EQ(Written(tree).find("DateSpecification"), std::string::npos);
  EXPECT_EQ(tree.AddDateSpec(test::Monthly(), ""), 1);
}

TEST(Document, DateSpecificationsStandInOrderOfRegistration) {
  TSXMLTree tree;
  const int yearly = tree.AddDateSpec(test::Yearly(), "");
  const int hourly = tree.AddDateSpec(test::Hourly(), "");
  ASSERT_TRUE(tree.AddModelTree(test::SimpleModel(), Refs(hourly)));
  ASSERT_TRUE(tree.AddModelTree(test::SimpleModel(), Refs(yearly)));
  const std::string text = Written(tree);
  const std::size_t year = text.find("<Year");
  const std::size_t hour = text.find("<Hour");
  ASSERT_NE(year, std::string::npos);
  ASSERT_NE(hour, std::string::npos);
  EXPECT_LT(year, hour);
}

TEST(Document, EquivalentSpecificationIsWrittenWithTheFirstOnesValues) {
  TSXDateSpec other = test::Hourly();
  other.SetFiscalYearStart(4);
  other.SetForcedSeasonLength(168);
  ASSERT_TRUE(other.SetFirstCaseDay(15, 3, 2001));
  TSXMLTree tree;
  tree.AddDateSpec(test::Hourly(), "first");
  const int id = tree.AddDateSpec(other, "second");
  ASSERT_TRUE(tree.AddModelTree(test::SimpleModel(), Refs(id)));
  const std::string text = Written(tree);
  EXPECT_NE(text.find("dateSpecDescriptor=\"first\""), std::string::npos);
  EXPECT_EQ(text.find("fiscalYearStart"), std::string::npos);
  EXPECT_EQ(text.find("forcedSeasonLength"), std::string::npos);
  EXPECT_EQ(text.find("FirstCaseDay"), std::string::npos);
}

TEST(Document, EmptyVersionLeavesTheNameAlone) {
  TSXMLTree tree;
  tree.SetApplication("App", "");
  ASSERT_TRUE(tree.AddModelTree(test::SimpleModel(), Refs()));
  EXPECT_NE(Written(tree).find("\t\t<Application\n\t\t\tname=\"App\"/>\n"), std::string::npos);
}

TEST(Document, EmptyApplicationNameDiscardsTheVersion) {
  TSXMLTree tree;
  tree.SetApplication("App", "1");
  tree.SetApplication("", "2");
  ASSERT_TRUE(tree.AddModelTree(test::SimpleModel(), Refs()));
  EXPECT_NE(Written(tree).find("\n\t<Header/>\n"), std::string::npos);
}

TEST(Document, WriteEmptiesTheTreeAndASecondOneWritesNothing) {
  TSXMLTree tree;
  FillTwoModels(tree);
  EXPECT_EQ(tree.GetModelCount(), 2U);
  Written(tree);
  EXPECT_EQ(tree.GetModelCount(), 0U);
  std::ostringstream out;
  EXPECT_FALSE(tree.WriteToStream(out));
  EXPECT_EQ(out.str(), "");
}

TEST(Document, ApplicationAndDialectSurviveAWrite) {
  TSXMLTreeImp imp;
  imp.SetApplication("App", "1");
  ASSERT_TRUE(imp.AddModelTree(test::SimpleModel(), Refs()));
  const std::string first = Written(imp, true);
  ASSERT_TRUE(imp.AddModelTree(test::SimpleModel(), Refs()));
  EXPECT_EQ(Written(imp, true), first);
  EXPECT_FALSE(imp.GetPMMLOutputFlag());
}

TEST(BareListing, ModelsStandBackToBackWithoutAFrame) {
  TSXMLTreeImp imp;
  ASSERT_TRUE(imp.AddModelTree(test::SimpleModel(), Refs(0, "one")));
  ASSERT_TRUE(imp.AddModelTree(test::SimpleModel(), Refs(0, "two")));
  const std::string text = Written(imp, false);
  test::ExpectGolden("export/golden/bare_listing.xml", text);
  test::ExpectWellFormed("<listing>" + text + "</listing>");
  EXPECT_EQ(imp.GetModelCount(), 0U);
  std::ostringstream out;
  EXPECT_FALSE(imp.WriteToStream(out, true));
}

TEST(BareListing, KeepsTheDictionary) {
  TSXMLTreeImp imp;
  const int id = imp.AddDateSpec(test::Yearly(), "");
  ASSERT_TRUE(imp.AddModelTree(test::SimpleModel(), Refs(id)));
  Written(imp, false);
  ASSERT_TRUE(imp.AddModelTree(test::SimpleModel(), Refs(id)));
  EXPECT_NE(Written(imp, true).find("<Year"), std::string::npos);
}

TEST(BareListing, BrokenStreamTakesAPrefixAndAThrowingOneLosesNothing) {
  TSXMLTreeImp imp;
  ASSERT_TRUE(imp.AddModelTree(test::SimpleModel(), Refs(0, "one")));
  ASSERT_TRUE(imp.AddModelTree(test::SimpleModel(), Refs(0, "two")));
  const std::string whole = test::ReadTestFile("export/golden/bare_listing.xml");
  for (std::size_t capacity = 0; capacity < whole.size(); ++capacity) {
    test::FailingStreambuf buffer(capacity);
    std::ostream out(&buffer);
    out.exceptions(std::ios::badbit);
    EXPECT_THROW(imp.WriteToStream(out, false), std::ios_base::failure);
    EXPECT_EQ(buffer.taken(), whole.substr(0, capacity));
    EXPECT_EQ(imp.GetModelCount(), 2U);
  }
  test::FailingStreambuf buffer(whole.size() / 2);
  std::ostream out(&buffer);
  EXPECT_TRUE(imp.WriteToStream(out, false));
  EXPECT_EQ(buffer.taken(), whole.substr(0, whole.size() / 2));
  EXPECT_EQ(imp.GetModelCount(), 0U);
}

TEST(BareListing, WithoutModelsWritesNothing) {
  TSXMLTreeImp imp;
  std::ostringstream out;
  EXPECT_FALSE(imp.WriteToStream(out, false));
  EXPECT_EQ(out.str(), "");
}

TEST(Document, CommaDecimalLocalesLeaveTheTextAlone) {
  TSXMLTree tree;
  FillTwoModels(tree);
  const test::ScopedLocale german("de_DE.UTF-8");
  const test::ScopedGroupingCxxLocale grouping;
  test::ExpectGolden("export/golden/two_models.xml", Written(tree));
}

TEST(Document, CommaDecimalLocalesLeaveAnArimaModelAlone) {
  const test::ScopedLocale german("de_DE.UTF-8");
  const test::ScopedGroupingCxxLocale grouping;
  TSXMLTree tree;
  FillArimaModel(tree);
  test::ExpectGolden("export/golden/arima_model.xml", Written(tree));
}

TEST(Document, BrokenStreamTakesAPrefixAndTheAnswerIsTrueAllTheSame) {
  const std::string whole = test::ReadTestFile("export/golden/bare_model.xml");
  for (std::size_t capacity = 0; capacity <= whole.size(); ++capacity) {
    TSXMLTree tree;
    ASSERT_TRUE(tree.AddModelTree(test::SimpleModel(), Refs()));
    test::FailingStreambuf buffer(capacity);
    std::ostream out(&buffer);
    EXPECT_TRUE(tree.WriteToStream(out));
    EXPECT_EQ(buffer.taken(), whole.substr(0, capacity));
    EXPECT_EQ(out.good(), capacity == whole.size());
    EXPECT_EQ(tree.GetModelCount(), 0U);
  }
}

void ExpectThrowingStreamLosesNothing(const std::string& golden, void (*fill)(TSXMLTree&)) {
  const std::string whole = test::ReadTestFile("export/golden/" + golden);
  for (std::size_t capacity = 0; capacity < whole.size(); ++capacity) {
    TSXMLTree tree;
    fill(tree);
    test::FailingStreambuf buffer(capacity);
    std::ostream out(&buffer);
    out.exceptions(std::ios::badbit | std::ios::failbit);
    EXPECT_THROW(tree.WriteToStream(out), std::ios_base::failure);
    EXPECT_EQ(Written(tree), whole);
  }
}

TEST(Document, ThrowingStreamLosesNothing) {
  ExpectThrowingStreamLosesNothing("bare_model.xml", [](TSXMLTree& tree) {
    ASSERT_TRUE(tree.AddModelTree(test::SimpleModel(), Refs()));
  });
}

TEST(Document, ThrowingStreamLosesNothingOfAnArimaModel) {
  ExpectThrowingStreamLosesNothing("arima_model.xml", FillArimaModel);
}

void ExpectTreeWholeWhereverMemoryRunsOut(const std::string& golden, void (*fill)(TSXMLTree&)) {
  const std::string whole = test::ReadTestFile("export/golden/" + golden);
  test::WithEveryAllocationFailing([&] {
    std::unique_ptr<TSXMLTree> tree;
    {
      const test::AllocationsSucceed setUp;
      tree = std::make_unique<TSXMLTree>();
      fill(*tree);
    }
    test::FailingStreambuf buffer(0);
    std::ostream out(&buffer);
    const unsigned count = tree->GetModelCount();
    try {
      tree->WriteToStream(out);
    } catch (const std::bad_alloc&) {
      const test::AllocationsSucceed look;
      EXPECT_EQ(tree->GetModelCount(), count);
      EXPECT_EQ(Written(*tree), whole);
      throw;
    }
  });
}

TEST(Document, TreeIsWholeWhereverMemoryRunsOut) {
  ExpectTreeWholeWhereverMemoryRunsOut("two_models.xml", FillTwoModels);
}

TEST(Document, TreeWithAnArimaModelIsWholeWhereverMemoryRunsOut) {
  ExpectTreeWholeWhereverMemoryRunsOut("arima_model.xml", FillArimaModel);
}

}  // namespace
