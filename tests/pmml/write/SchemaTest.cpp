// PMML documents against the published schema of PMML 4.2, by two validators. The schema is not
// ours and not in this tree: its path comes from the build (TSXPORT_PMML_XSD) or from the
// environment variable of that name, and without one these tests are skipped.

#include <cstdlib>
#include <gtest/gtest.h>
#include <libxml/parser.h>
#include <libxml/xmlschemas.h>
#include <limits>
#include <memory>
#include <sstream>
#include <string>
#include <xercesc/framework/MemBufInputSource.hpp>
#include <xercesc/parsers/XercesDOMParser.hpp>
#include <xercesc/sax/ErrorHandler.hpp>
#include <xercesc/sax/SAXParseException.hpp>
#include <xercesc/util/PlatformUtils.hpp>
#include <xercesc/util/XMLString.hpp>

#include <tsxport/TSXMLTree.h>

#include "export/TSXMLTreeImp.h"
#include "support/Calendars.h"
#include "support/Models.h"

// Xerces-C asks the C library for the locale of the environment, which keeps a copy of LOCPATH for
// good. The leak checker need not tell.
extern "C" __attribute__((visibility("default"))) const char* __lsan_default_suppressions();
extern "C" const char* __lsan_default_suppressions() { return "leak:__argz_add_sep\n"; }

namespace {

std::string SchemaPath() {
  const char* fromEnvironment = std::getenv("TSXPORT_PMML_XSD");
  return fromEnvironment != nullptr ? fromEnvironment : TSXPORT_PMML_XSD;
}

// What libxml2 says against the document; empty when it is valid.
class LibxmlValidator {
 public:
  explicit LibxmlValidator(const std::string& schema) {
    const std::unique_ptr<xmlSchemaParserCtxt, decltype(&xmlSchemaFreeParserCtxt)> parser(
        xmlSchemaNewParserCtxt(schema.c_str()), &xmlSchemaFreeParserCtxt);
    schema_.reset(xmlSchemaParse(parser.get()));
    if (!schema_) throw std::runtime_error("libxml2 cannot read the schema " + schema);
  }

  std::string Faults(const std::string& document) const {
    const std::unique_ptr<xmlDoc, decltype(&xmlFreeDoc)> parsed(
        xmlReadMemory(document.data(), static_cast<int>(document.size()), "document.xml", nullptr,
                      XML_PARSE_NONET | XML_PARSE_NOERROR),
        &xmlFreeDoc);
    if (!parsed) return "not well-formed";
    const std::unique_ptr<xmlSchemaValidCtxt, decltype(&xmlSchemaFreeValidCtxt)> context(
        xmlSchemaNewValidCtxt(schema_.get()), &xmlSchemaFreeValidCtxt);
    std::string faults;
    xmlSchemaSetValidErrors(context.get(), &LibxmlValidator::Add, &LibxmlValidator::Add, &faults);
    const int result = xmlSchemaValidateDoc(context.get(), parsed.get());
    if (result != 0 && faults.empty()) faults = "invalid for no told reason";
    return faults;
  }

 private:
  __attribute__((format(printf, 2, 3))) static void Add(void* faults, const char* format, ...) {
    char line[1024];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(line, sizeof line, format, arguments);
    va_end(arguments);
    *static_cast<std::string*>(faults) += line;
  }

  std::unique_ptr<xmlSchema, decltype(&xmlSchemaFree)> schema_{nullptr, &xmlSchemaFree};
};

// The same by Xerces-C.
class XercesValidator : private xercesc::ErrorHandler {
 public:
  explicit XercesValidator(const std::string& schema) {
    parser_.setErrorHandler(this);
    parser_.setDoNamespaces(true);
    parser_.setDoSchema(true);
    parser_.setValidationScheme(xercesc::XercesDOMParser::Val_Always);
    parser_.loadGrammar(schema.c_str(), xercesc::Grammar::SchemaGrammarType, true);
    if (!faults_.empty()) throw std::runtime_error("Xerces-C, " + schema + ": " + faults_);
    parser_.useCachedGrammarInParse(true);
  }

  std::string Faults(const std::string& document) {
    faults_.clear();
    const xercesc::MemBufInputSource source(reinterpret_cast<const XMLByte*>(document.data()),
                                            document.size(), "document.xml");
    parser_.parse(source);
    return faults_;
  }

 private:
  void warning(const xercesc::SAXParseException& /*e*/) override {}
  void error(const xercesc::SAXParseException& e) override { Add(e); }
  void fatalError(const xercesc::SAXParseException& e) override { Add(e); }
  void resetErrors() override {}

  void Add(const xercesc::SAXParseException& e) {
    char* text = xercesc::XMLString::transcode(e.getMessage());
    faults_ += std::to_string(e.getLineNumber()) + ": " + text + "\n";
    xercesc::XMLString::release(&text);
  }

  std::string faults_;
  xercesc::XercesDOMParser parser_;
};

struct Documents {
  bool history = false;
  bool calendar = false;
  bool application = false;
};

ESForecastState::Fields StateOf(int kind) {
  return {.spec = ESModelSpec(ESModelSpec::ForKind(kind, 4)),
          .estimates = {0.5, 0.125, 0.75},
          .smoothed = {.level = 100, .trend = 2, .phase = 3, .season = {0.5, 1.5, 0.75, 1.25}}};
}

std::string Write(const ESForecastState::Fields& state, const Documents& with,
                  double rootMeanSquare = 2.5) {
  EstimationInfo::Fields info;
  info.span = {.start = 0, .length = 24};
  info.degrees_of_freedom = 21;
  info.error_variance = 6.25;
  info.statistics[BFSharedConst::kRootMeanSqrErr] = rootMeanSquare;
  const std::valarray<double> none;
  const TSFModel model(
      new TSFModelImp({.state = std::make_unique<ESForecastState>(state),
                       .info = EstimationInfo(info),
                       .history = with.history ? std::valarray<double>{1.5, -2, 1e21} : none}));
  TSXMLTree tree;
  tree.SetPMMLOutput(true);
  if (with.application) tree.SetApplication("planner", "2.1");
  TSXDictionaryRefs refs("m", "", "y");
  if (with.calendar) refs.SetDateSpecID(tree.AddDateSpec(test::Monthly(1949, 0), "months"));
  EXPECT_TRUE(tree.AddModelTree(model, refs));
  std::ostringstream out;
  EXPECT_TRUE(tree.WriteToStream(out));
  return out.str();
}

class Schema : public testing::Test {
 protected:
  static void SetUpTestSuite() { xercesc::XMLPlatformUtils::Initialize(); }
  static void TearDownTestSuite() { xercesc::XMLPlatformUtils::Terminate(); }

  void SetUp() override {
    if (SchemaPath().empty()) {
      GTEST_SKIP() << "no PMML 4.2 schema: set TSXPORT_PMML_XSD to the path of its file";
    }
    libxml_ = std::make_unique<LibxmlValidator>(SchemaPath());
    xerces_ = std::make_unique<XercesValidator>(SchemaPath());
  }

  void ExpectValid(const std::string& document) {
    EXPECT_EQ(libxml_->Faults(document), "") << document;
    EXPECT_EQ(xerces_->Faults(document), "") << document;
  }

  // What libxml2 and Xerces-C must say, each in its own words.
  void ExpectInvalid(const std::string& document, const std::string& byLibxml,
                     const std::string& byXerces) {
    EXPECT_NE(libxml_->Faults(document).find(byLibxml), std::string::npos)
        << libxml_->Faults(document) << document;
    EXPECT_NE(xerces_->Faults(document).find(byXerces), std::string::npos)
        << xerces_->Faults(document) << document;
  }

  std::unique_ptr<LibxmlValidator> libxml_;
  std::unique_ptr<XercesValidator> xerces_;
};

TEST_F(Schema, DocumentsOfEveryKindAreValid) {
  for (int kind = ESModelSpec::kAdditiveWinters; kind <= ESModelSpec::kSimple; ++kind) {
    for (int bits = 0; bits < 8; ++bits) {
      const Documents with{(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0};
      SCOPED_TRACE(testing::Message() << "kind " << kind << ", variant " << bits);
      ExpectValid(Write(StateOf(kind), with));
    }
  }
}

// The schema wants the values of a season wherever there is one.
TEST_F(Schema, SeasonalModelWithASeasonalValueMissingIsInvalidForWantOfItsArray) {
  ESForecastState::Fields state = StateOf(ESModelSpec::kMultiplicativeWinters);
  state.smoothed.season[2] = test::kMissing;
  ExpectInvalid(Write(state, {}), "Seasonality_ExpoSmooth", "Seasonality_ExpoSmooth");
}

// The schema's real numbers are xs:double, which spells infinity INF; attributes are written by
// the number format, which spells it inf.
TEST_F(Schema, InfiniteStatisticIsInvalid) {
  ExpectInvalid(Write(StateOf(ESModelSpec::kSimple), {}, std::numeric_limits<double>::infinity()),
                "RMSE", "39: invalid character");
}

// Likewise NaN, which the number format spells nan.
TEST_F(Schema, StatisticThatIsNotANumberIsInvalid) {
  ExpectInvalid(Write(StateOf(ESModelSpec::kSimple), {}, std::numeric_limits<double>::quiet_NaN()),
                "RMSE", "39: invalid character");
}

// A tree without models has no model element, and its first field no name; the schema takes both.
TEST_F(Schema, TreeWithoutModelsIsValid) {
  TSXMLTree tree;
  tree.SetPMMLOutput(true);
  std::ostringstream out;
  ASSERT_TRUE(tree.WriteToStream(out));
  ExpectValid(out.str());
}

// The year of the first case stands in a second attribute "month", which no XML reader takes.
TEST_F(Schema, FirstCaseDayIsNotEvenWellFormed) {
  TSXDateSpec days(TSXDateSpec::Day);
  ASSERT_TRUE(days.SetFirstCaseDay(15, 3, 2001));
  TSXMLTree tree;
  tree.SetPMMLOutput(true);
  tree.AddDateSpec(days, "");
  std::ostringstream out;
  ASSERT_TRUE(tree.WriteToStream(out));
  EXPECT_EQ(libxml_->Faults(out.str()), "not well-formed");
  EXPECT_NE(xerces_->Faults(out.str()), "");
}

}  // namespace
