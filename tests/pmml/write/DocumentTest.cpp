// The PMML document that a tree writes.

#include <gtest/gtest.h>
#include <memory>
#include <sstream>

#include <tsxport/TSXMLTree.h>

#include "export/TSXMLTreeImp.h"
#include "pmml/write/TSXPMMLDocument.h"
#include "support/Calendars.h"
#include "support/FailingAllocation.h"
#include "support/FailingStream.h"
#include "support/Golden.h"
#include "support/Models.h"
#include "support/XmlText.h"

namespace {

using tsx::pmml::TimeField;
using tsx::pmml::TSXPMMLDocument;

std::string Written(TSXMLTreeImp& imp, bool withDeclaration = true) {
  std::ostringstream out;
  EXPECT_TRUE(imp.WriteToStream(out, withDeclaration));
  return out.str();
}

void ExpectDocument(const std::string& golden, const std::string& text) {
  test::ExpectGolden("pmml/golden/" + golden, text);
  test::ExpectWellFormed(text);
}

TSXDictionaryRefs Refs(const std::string& name = "m", const std::string& variable = "y") {
  return {name, "", variable};
}

class PmmlTree : public testing::Test {
 protected:
  PmmlTree() { imp_.SetPMMLOutputFlag(true); }
  bool AddSimple(const TSXDictionaryRefs& refs) {
    return imp_.AddModelTree(test::SimpleModel(), refs);
  }
  static bool Contains(const std::string& text, const std::string& part) {
    return text.find(part) != std::string::npos;
  }
  static std::size_t Count(const std::string& text, const std::string& part) {
    std::size_t count = 0;
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) {
      ++count;
    }
    return count;
  }

  TSXMLTreeImp imp_;
};

TEST_F(PmmlTree, WithoutModelsDeclaresAFieldWithoutAName) {
  ExpectDocument("empty_tree.xml", Written(imp_));
}

TEST_F(PmmlTree, WholeDocumentWithCalendarAndApplication) {
  imp_.SetApplication("planner", "2.1");
  imp_.AddDateSpec(test::Monthly(1949, 0), "months");
  ASSERT_TRUE(AddSimple(Refs()));
  ExpectDocument("document.xml", Written(imp_));
}

TEST_F(PmmlTree, DefaultApplicationStaysUntilOneIsSet) {
  const std::string text = Written(imp_);
  EXPECT_TRUE(Contains(text,
                       "<Header\n\t\tcopyright=\"dmg.org\">\n\t\t<Application\n"
                       "\t\t\tname=\"TimeSeriesApp\"\n\t\t\tversion=\"4.0\"/>"));
}

TEST_F(PmmlTree, ApplicationWithEmptyVersionCarriesTheNameOnly) {
  imp_.SetApplication("planner", "");
  EXPECT_TRUE(Contains(Written(imp_), "<Application\n\t\t\tname=\"planner\"/>"));
}

TEST_F(PmmlTree, EmptyApplicationNameKeepsTheOneWrittenBefore) {
  imp_.SetApplication("planner", "2.1");
  Written(imp_);
  imp_.SetApplication("", "3");
  EXPECT_TRUE(Contains(Written(imp_), "name=\"planner\"\n\t\t\tversion=\"2.1\""));
}

TEST_F(PmmlTree, ApplicationReachesTheWriterStateAtAWriteOnly) {
  imp_.SetApplication("planner", "2.1");
  imp_.SetApplication("", "");
  EXPECT_TRUE(Contains(Written(imp_), "name=\"TimeSeriesApp\""));
}

TEST_F(PmmlTree, EmptyDictionaryHasNoExtension) {
  EXPECT_FALSE(Contains(Written(imp_), "Extension"));
}

TEST_F(PmmlTree, TwoDateSpecificationsStandInOneExtensionInOrderWhetherReferredToOrNot) {
  imp_.AddDateSpec(test::Yearly(), "");
  imp_.AddDateSpec(test::Hourly(), "");
  const std::string text = Written(imp_);
  EXPECT_EQ(Count(text, "<Extension"), 1U);
  EXPECT_EQ(Count(text, "<DateSpecification"), 2U);
  EXPECT_LT(text.find("dateSpecID=\"1\""), text.find("dateSpecID=\"2\""));
  EXPECT_LT(text.find("</Extension>"), text.find("<DataField"));
}

TEST_F(PmmlTree, TimeFieldIsThatOfTheLastSpecification) {
  imp_.AddDateSpec(test::Monthly(), "");
  imp_.AddDateSpec(test::Hourly(), "");
  EXPECT_TRUE(Contains(Written(imp_),
                       "dataType=\"time\"\n\t\t\toptype=\"continuous\"\n\t\t\tname=\"Hour\"\n"
                       "\t\t\tdisplayName=\"Hour\"/>"));
}

TEST_F(PmmlTree, WithoutDeclarationTheElementStandsAlone) {
  const std::string text = Written(imp_, false);
  EXPECT_EQ(text.substr(0, 7), "\n<PMML\n");
  EXPECT_EQ("<?xml version=\"1.0\" encoding=\"UTF-8\" ?>" + text, Written(imp_, true));
}

TEST_F(PmmlTree, TwoWritesGiveTwoIdenticalDocuments) {
  imp_.AddDateSpec(test::Monthly(), "");
  ASSERT_TRUE(AddSimple(Refs("one")));
  ASSERT_TRUE(AddSimple(Refs("two")));
  const std::string first = Written(imp_);
  EXPECT_EQ(Written(imp_), first);
  EXPECT_EQ(Count(first, "<TimeSeriesModel"), 2U);
}

TEST_F(PmmlTree, DictionaryDeclaresTheFieldsOfTheLastModelOnly) {
  ASSERT_TRUE(AddSimple(Refs("one", "first")));
  ASSERT_TRUE(AddSimple(Refs("two", "second")));
  const std::string text = Written(imp_);
  EXPECT_EQ(Count(text, "<DataField"), 2U);
  EXPECT_TRUE(Contains(text, "name=\"second\"\n\t\t\tdisplayName=\"second\""));
  EXPECT_FALSE(Contains(text, "displayName=\"first\""));
  EXPECT_TRUE(Contains(text, "name=\"first\"\n\t\t\t\tusageType=\"predicted\""));
}

TEST_F(PmmlTree, ModelWithReferencesThatFailTheCheckIsWrittenAllTheSame) {
  TSXDictionaryRefs refs("", "", "", {"x", ""});
  refs.SetDateSpecID(77);
  EXPECT_TRUE(AddSimple(refs));
  EXPECT_EQ(Count(Written(imp_), "<TimeSeriesModel"), 1U);
}

TEST_F(PmmlTree, ModelsAreNotCountedAsModelsOfTheOtherDialect) {
  ASSERT_TRUE(AddSimple(Refs()));
  EXPECT_EQ(imp_.GetModelCount(), 0U);
}

TEST_F(PmmlTree, CrostonModelIsAbsentFromTheDocumentAndCounted) {
  ASSERT_TRUE(imp_.AddModelTree(TSFCrModel(new TSFCrModelImp({})), Refs()));
  EXPECT_TRUE(imp_.GetPMMLOutputFlag());
  EXPECT_EQ(imp_.GetModelCount(), 1U);
  EXPECT_FALSE(Contains(Written(imp_), "Croston"));
}

TEST_F(PmmlTree, SmoothingModelsTakenAsPMMLAreAbsentAfterAFallBack) {
  ASSERT_TRUE(AddSimple(Refs("before")));
  imp_.AddModelTree(test::ArimaModel(), Refs("arima"));
  ASSERT_FALSE(imp_.GetPMMLOutputFlag());
  ASSERT_TRUE(AddSimple(Refs("after")));
  const std::string text = Written(imp_);
  EXPECT_TRUE(Contains(text, "modelName=\"after\""));
  EXPECT_FALSE(Contains(text, "modelName=\"before\""));
}

TEST_F(PmmlTree, HostThatSwitchesPMMLOnAgainFindsItsModelsBack) {
  ASSERT_TRUE(AddSimple(Refs("before")));
  imp_.AddModelTree(test::ArimaModel(), Refs("arima"));
  imp_.SetPMMLOutputFlag(true);
  EXPECT_TRUE(Contains(Written(imp_), "modelName=\"before\""));
}

TEST_F(PmmlTree, HistoryOfTheModelIsItsTimeSeries) {
  ASSERT_TRUE(AddSimple(Refs()));
  EXPECT_EQ(Count(Written(imp_), "<TimeValue"), 3U);
}

TEST_F(PmmlTree, EmptyModelIsWrittenUnderItsNames) {
  TSFModel empty;
  EXPECT_TRUE(imp_.AddPMMLModelTree(empty, Refs("none", "nothing"), nullptr));
  const std::string text = Written(imp_);
  EXPECT_TRUE(Contains(text, "modelName=\"none\""));
  EXPECT_TRUE(Contains(text, "displayName=\"nothing\""));
  EXPECT_TRUE(Contains(text, "\t\t<ExponentialSmoothing\n\t\t\tRMSE=\"0\"/>\n"));
}

TEST_F(PmmlTree, EmptyModelRepeatsTheNumbersOfTheOneBeforeIt) {
  ASSERT_TRUE(AddSimple(Refs("one", "first")));
  TSFModel empty;
  EXPECT_TRUE(imp_.AddPMMLModelTree(empty, Refs("none", "nothing"), nullptr));
  const std::string text = Written(imp_);
  const std::size_t second = text.find("modelName=\"none\"");
  ASSERT_NE(second, std::string::npos);
  EXPECT_TRUE(Contains(text.substr(second), "alpha=\"0.25\"\n\t\t\t\tsmoothedValue=\"10\"/>"));
  EXPECT_TRUE(Contains(text, "displayName=\"nothing\""));
  EXPECT_EQ(Count(text, "<TimeSeries\n"), 1U);
}

TEST_F(PmmlTree, NullHistoryIsAnEmptyOne) {
  TSFModel model = test::SimpleModel();
  EXPECT_TRUE(imp_.AddPMMLModelTree(model, Refs(), nullptr));
  EXPECT_FALSE(Contains(Written(imp_), "<TimeSeries\n"));
}

TEST_F(PmmlTree, BrokenStreamTakesAPrefixAndTheTreeIsWhole) {
  imp_.AddDateSpec(test::Monthly(), "");
  ASSERT_TRUE(AddSimple(Refs()));
  const std::string whole = Written(imp_);
  for (std::size_t capacity = 0; capacity < whole.size(); capacity += 7) {
    test::FailingStreambuf buffer(capacity);
    std::ostream out(&buffer);
    EXPECT_TRUE(imp_.WriteToStream(out, true));
    EXPECT_EQ(buffer.taken(), whole.substr(0, capacity));
    test::FailingStreambuf again(capacity);
    std::ostream throwing(&again);
    throwing.exceptions(std::ios::badbit);
    EXPECT_THROW(imp_.WriteToStream(throwing, true), std::ios_base::failure);
  }
  EXPECT_EQ(Written(imp_), whole);
}

TEST_F(PmmlTree, AdmissionIsWholeOrNotAtAllWhenMemoryRunsOut) {
  const TSFModel model = test::SimpleModel();
  const TSXDictionaryRefs refs("a model name beyond any small buffer", "d", "a long variable name");
  test::WithEveryAllocationFailing([&] {
    TSXMLTreeImp imp;
    imp.SetPMMLOutputFlag(true);
    try {
      imp.AddModelTree(model, refs);
    } catch (const std::bad_alloc&) {
      const test::AllocationsSucceed look;
      EXPECT_EQ(Count(Written(imp), "<TimeSeriesModel"), 0U);
      EXPECT_EQ(imp.GetPMMLDocument().GetModelRecord().dependent_var_id, "");
      throw;
    }
  });
}

TEST_F(PmmlTree, AdmissionOfAnotherModelLeavesTheFirstWholeWhenMemoryRunsOut) {
  const TSFModel model = test::ModelOf(std::make_unique<ESForecastState>(test::WintersState()));
  const TSXDictionaryRefs refs("another name beyond any small buffer", "d", "a long variable name");
  imp_.AddDateSpec(test::Yearly(), "a descriptor that does not fit a small buffer");
  ASSERT_TRUE(AddSimple(Refs()));
  imp_.AddDateSpec(test::Monthly(), "a descriptor that does not fit a small buffer");
  const std::string before = Written(imp_);
  test::WithEveryAllocationFailing([&] {
    TSXMLTreeImp imp;
    {
      const test::AllocationsSucceed setUp;
      imp.SetPMMLOutputFlag(true);
      imp.AddDateSpec(test::Yearly(), "a descriptor that does not fit a small buffer");
      imp.AddModelTree(test::SimpleModel(), Refs());
      imp.AddDateSpec(test::Monthly(), "a descriptor that does not fit a small buffer");
    }
    try {
      imp.AddModelTree(model, refs);
    } catch (const std::bad_alloc&) {
      const test::AllocationsSucceed look;
      EXPECT_EQ(Written(imp), before);
      throw;
    }
  });
}

TEST_F(PmmlTree, WriteLeavesTheTreeWholeWhereverMemoryRunsOut) {
  imp_.SetApplication("an application with a long name", "and a version that is long too");
  imp_.AddDateSpec(test::Monthly(), "a descriptor that does not fit a small buffer");
  ASSERT_TRUE(AddSimple(Refs()));
  const std::string whole = Written(imp_);
  test::WithEveryAllocationFailing([&] {
    test::FailingStreambuf buffer(0);
    std::ostream out(&buffer);
    imp_.WriteToStream(out, true);
  });
  EXPECT_EQ(Written(imp_), whole);
}

TEST(PmmlWriterState, NoRootTakesNoDictionary) {
  const TSXPMMLDocument document;
  EXPECT_FALSE(document.AddDataDictionary(nullptr, nullptr));
}

TEST(PmmlWriterState, CheckExpectsNoPredictors) {
  const TSXPMMLDocument document;
  unsigned index = 5;
  EXPECT_TRUE(document.CheckRefs(Refs(), index));
  EXPECT_EQ(index, 0U);
  EXPECT_FALSE(document.CheckRefs({"m", "", "y", {"x"}}, index));
  EXPECT_FALSE(document.CheckRefs({"", "", "y"}, index));
  EXPECT_FALSE(document.CheckRefs({"m", "", ""}, index));
}

TEST(PmmlWriterState, CheckLooksIntoItsCopyOfTheDictionary) {
  TSXMLTreeImp imp;
  imp.SetPMMLOutputFlag(true);
  imp.AddDateSpec(test::Yearly(), "");
  TSXDictionaryRefs refs = Refs();
  refs.SetDateSpecID(imp.AddDateSpec(test::Monthly(), ""));
  unsigned index = 0;
  EXPECT_FALSE(imp.GetPMMLDocument().CheckRefs(refs, index)) << "copied when a model is added";
  ASSERT_TRUE(imp.AddModelTree(test::SimpleModel(), refs));
  EXPECT_TRUE(imp.GetPMMLDocument().CheckRefs(refs, index));
  EXPECT_EQ(index, 1U);
}

TEST(PmmlWriterState, EveryModelBringsANewCopyOfTheDictionary) {
  TSXMLTreeImp imp;
  imp.SetPMMLOutputFlag(true);
  ASSERT_TRUE(imp.AddModelTree(test::SimpleModel(), Refs()));
  TSXDictionaryRefs refs = Refs();
  refs.SetDateSpecID(imp.AddDateSpec(test::Monthly(), ""));
  unsigned index = 0;
  EXPECT_FALSE(imp.GetPMMLDocument().CheckRefs(refs, index));
  ASSERT_TRUE(imp.AddModelTree(test::SimpleModel(), Refs()));
  EXPECT_TRUE(imp.GetPMMLDocument().CheckRefs(refs, index));
}

TEST(PmmlWriterState, TimeFieldCountsOnlyWhenNameAndKindAreBothThere) {
  const std::string byDefault = R"(dataType="date" optype="continuous" name="Month")";
  TSXPMMLDocument document;
  for (const TimeField& half :
       {TimeField{.name = "Hour", .kind = ""}, TimeField{.name = "", .kind = "time"}}) {
    document.SetTimeField(half);
    const std::string text = test::Compact(*document.BuildDocument(nullptr));
    EXPECT_NE(text.find(byDefault), std::string::npos) << text;
  }
}

}  // namespace
