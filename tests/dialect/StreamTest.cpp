// The three verbs of a dialect in a row, into a sink that keeps nothing, give the document that a
// tree collects and writes.

#include <gtest/gtest.h>
#include <memory>
#include <new>
#include <sstream>
#include <utility>

#include <tsxport/TSXMLTree.h>
#include <tsxport/XMLUtil.h>

#include "export/Dialects.h"
#include "export/TSXMLTreeImp.h"
#include "support/Calendars.h"
#include "support/Models.h"
#include "xml/NodeAccess.h"

namespace {

using tsx::ElementPtr;
using tsx::Offer;

// Writes each part as it comes.
class Stream : public tsx::DocumentSink {
 public:
  explicit Stream(std::string name) : end_("\n</" + std::move(name) + ">") {}

  // The root has children at this point, so it ends with its end tag.
  void Open(ElementPtr root) override {
    text_ = TIMESERIESXML::XMLUtil::FIRST_LINE;
    TIMESERIESXML::ExportFormat format;
    root->ToString(text_, format);
    ASSERT_TRUE(text_.ends_with(end_));
    text_.resize(text_.size() - end_.size());
  }
  void Take(ElementPtr element) override {
    TIMESERIESXML::ExportFormat format;
    tsx::NodeAccess::TabLevel(format) = 1;
    element->ToString(text_, format);
  }
  void Close() override { text_ += end_; }

  const std::string& text() const { return text_; }

 private:
  std::string end_;
  std::string text_;
};

class Never : public tsx::ElementSink {
  void Take(ElementPtr /*element*/) override { ADD_FAILURE() << "taken"; }
};

const TSXDateSpec kMonthly = test::Monthly(1949, 0);

TSXDictionaryRefs Refs(const std::string& name) {
  TSXDictionaryRefs refs(name, "", "y");
  refs.SetDateSpecID(1);
  return refs;
}

std::string Collected(bool pmml) {
  TSXMLTree tree;
  tree.SetApplication("planner", "2.1");
  tree.SetPMMLOutput(pmml);
  tree.AddDateSpec(kMonthly, "months");
  EXPECT_TRUE(tree.AddModelTree(test::SimpleModel(), Refs("one")));
  EXPECT_TRUE(tree.AddModelTree(test::ModelOf(std::make_unique<ESForecastState>(test::HoltState())),
                                Refs("two")));
  std::ostringstream out;
  EXPECT_TRUE(tree.WriteToStream(out));
  return out.str();
}

// `known` goes in before the document is begun, for what stands in front of the models.
template <typename Known>
std::string Streamed(tsx::Dialect& dialect, const std::string& root, Known known) {
  tsx::Application application;
  application.Set("planner", "2.1");
  tsx::DateSpecDictionary dictionary;
  dictionary.Register(kMonthly, "months");
  dialect.SeeCalendar(kMonthly);
  known(dictionary);

  const TSFModel one = test::SimpleModel();
  const TSFModel two = test::ModelOf(std::make_unique<ESForecastState>(test::HoltState()));
  Stream out(root);
  dialect.Begin({application, dictionary.entries()}, out);
  EXPECT_TRUE(dialect.Model(Offer(one, Refs("one")), dictionary, out));
  EXPECT_TRUE(dialect.Model(Offer(two, Refs("two")), dictionary, out));
  dialect.End(out);
  return out.text();
}

TEST(Verbs, StreamTimeSeriesXML) {
  const auto dialect = tsx::MakeDialect(tsx::PlaceOfTimeSeriesXML());
  const std::string text = Streamed(*dialect, "TSCXML", [](tsx::DateSpecDictionary& dictionary) {
    dictionary.MarkReferenced(0);  // the calendars are listed in front
  });
  EXPECT_EQ(text, Collected(false));
}

// The fields are declared in front and are those of the model added last, so one goes ahead.
TEST(Verbs, StreamPMML) {
  class Nowhere : public tsx::ElementSink {
    void Take(ElementPtr /*element*/) override {}
  };
  const auto dialect = tsx::MakeDialect(tsx::PlaceOfPMML());
  const std::string text = Streamed(*dialect, "PMML", [&](tsx::DateSpecDictionary& dictionary) {
    Nowhere nowhere;
    const TSFModel model = test::SimpleModel();
    dialect->Model(Offer(model, Refs("")), dictionary, nowhere);
  });
  EXPECT_EQ(text, Collected(true));
}

TEST(Verbs, RefusedModelReachesNoSinkAndMarksNoCalendar) {
  Never never;
  tsx::DateSpecDictionary dictionary;
  dictionary.Register(kMonthly, "months");
  const auto dialect = tsx::MakeDialect(tsx::PlaceOfTimeSeriesXML());
  const TSFModel model = test::SimpleModel();
  EXPECT_FALSE(dialect->Model(Offer(model, Refs("")), dictionary, never));
  const TSFModel holed =
      test::ModelOf(std::make_unique<ESForecastState>(test::HoltState(test::kMissing)));
  EXPECT_FALSE(dialect->Model(Offer(holed, Refs("m")), dictionary, never));
  EXPECT_FALSE(dictionary.entries()[0].referenced);
}

TEST(Verbs, PmmlHasNoElementForCrostonsMethod) {
  Never never;
  tsx::DateSpecDictionary dictionary;
  const TSFCrModel croston(new TSFCrModelImp({}));
  const auto dialect = tsx::MakeDialect(tsx::PlaceOfPMML());
  EXPECT_FALSE(dialect->Model(Offer(croston, TSXDictionaryRefs("m", "", "y")), dictionary, never));
}

// A sink that fails leaves the calendar unmarked, as if the model had never been offered.
TEST(Verbs, SinkThatThrowsLeavesTheCalendarUnmarked) {
  class Full : public tsx::ElementSink {
    void Take(ElementPtr /*element*/) override { throw std::bad_alloc(); }
  };
  Full full;
  tsx::DateSpecDictionary dictionary;
  dictionary.Register(kMonthly, "months");
  const auto dialect = tsx::MakeDialect(tsx::PlaceOfTimeSeriesXML());
  const TSFModel model = test::SimpleModel();
  EXPECT_THROW(dialect->Model(Offer(model, Refs("m")), dictionary, full), std::bad_alloc);
  EXPECT_FALSE(dictionary.entries()[0].referenced);
}

TEST(NamedWrites, WriteTheirDialectWhateverIsChosen) {
  TSXMLTreeImp imp;
  ASSERT_TRUE(imp.AddModelTree(test::SimpleModel(), TSXDictionaryRefs("m", "", "y")));
  std::ostringstream pmml;
  EXPECT_TRUE(imp.WritePMMLToStream(pmml, false));
  EXPECT_EQ(pmml.str().substr(0, 7), "\n<PMML\n");
  imp.SetPMMLOutputFlag(true);
  std::ostringstream xml;
  EXPECT_TRUE(imp.WriteXMLToStream(xml, true));
  EXPECT_NE(xml.str().find("<TSCXML"), std::string::npos);
  EXPECT_TRUE(imp.GetPMMLOutputFlag());
  EXPECT_EQ(imp.GetModelCount(), 0U);
}

}  // namespace
