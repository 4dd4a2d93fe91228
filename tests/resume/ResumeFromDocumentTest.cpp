// What is in a document is enough to forecast from: the numbers are taken out of the text by an
// independent XML parser and the formulas of docs/documents.md, and nothing else, go on from them.

#include <cmath>
#include <gtest/gtest.h>
#include <pugixml.hpp>
#include <sstream>
#include <string>
#include <vector>

#include <tsffit/tsffit.h>
#include <tsxport/TSXMLTree.h>

#include "NumberList.h"
#include "core/support/TestSeries.h"

namespace {

// One smoothing model as a reader of documents sees it.
class ReadModel {
 public:
  explicit ReadModel(const std::string& document) {
    document_.load_string(document.c_str());
    model_ = document_.child("TSCXML").child("ExpSmoothingModel");
    for (const pugi::xml_node child : model_.children()) {
      const std::string name = child.name();
      if (name != "Transformation" && name != "EstimationInfo") kind_ = child;
    }
  }

  double Forecast(unsigned h) const {
    const std::string kind = kind_.name();
    const double level = First("StateLevel");
    const double trend = First("StateTrend");
    double value = level;
    if (kind == "ESHolt" || kind == "ESAdditiveWinters" || kind == "ESMultiplicativeWinters") {
      value += h * trend;
    } else if (kind == "ESDampedTrend") {
      for (unsigned i = 1; i <= h; ++i) value += std::pow(First("ParmDampingTrend"), i) * trend;
    } else if (kind == "ESBrown") {
      value += (h - 1 + 1 / First("ParmLevel")) * trend;
    }
    if (kind == "ESSimpleSeasonal" || kind == "ESAdditiveWinters") value += Season(h);
    if (kind == "ESMultiplicativeWinters") value *= Season(h);
    return Back(value);
  }

 private:
  // The first number below the element, 0 where there is no such element.
  double First(const char* name) const {
    const pugi::xml_node node = kind_.child(name);
    const pugi::xml_node parameter = node.child("EstimatedParameter");
    const std::vector<double> numbers = test::NumbersIn(parameter ? parameter : node);
    return numbers.empty() ? 0 : numbers[0];
  }

  double Season(unsigned h) const {
    const pugi::xml_node node = kind_.child("StateSeason");
    const std::vector<double> season = test::NumbersIn(node);
    return season.at((node.attribute("phase").as_uint() + h - 1) % season.size());
  }

  double Back(double value) const {
    const std::string function =
        model_.child("Transformation").attribute("function").as_string("none");
    if (function == "logarithm") return std::exp(value);
    return function == "squareRoot" ? value * value : value;
  }

  pugi::xml_document document_;
  pugi::xml_node model_;
  pugi::xml_node kind_;
};

struct Case {
  int kind;
  int function_type;
};

std::string NameOf(const Case& each) {
  constexpr const char* kKinds[] = {
      "AdditiveWinters",       "Brown",          "DampedTrend", "Holt",
      "MultiplicativeWinters", "SimpleSeasonal", "Simple"};
  constexpr const char* kFunctions[] = {"", "UnderLogarithm", "UnderSquareRoot"};
  return std::string(kKinds[each.kind]) + kFunctions[each.function_type];
}
void PrintTo(const Case& each, std::ostream* os) { *os << NameOf(each); }

class ResumeFromDocument : public testing::TestWithParam<Case> {};

TEST_P(ResumeFromDocument, GivesTheForecastsOfTheCore) {
  for (const auto& [file, seasonLength] :
       {std::pair("airpassengers.csv", 12U), std::pair("ukgas.csv", 4U)}) {
    // Dropping the first cases puts the end of the series at another phase.
    for (const std::size_t dropped : {0U, 1U, 5U}) {
      std::vector<double> series = test::DataColumn(file);
      series.erase(series.begin(), series.begin() + static_cast<std::ptrdiff_t>(dropped));
      tsffit::SmoothingOptions options;
      options.kind = GetParam().kind;
      options.season_length = seasonLength;
      options.function_type = GetParam().function_type;
      const tsffit::SmoothingFit fit = tsffit::FitSmoothing(series, options);
      ASSERT_EQ(fit.status, tsffit::FitStatus::kOk) << fit.message;

      TSXMLTree tree;
      ASSERT_TRUE(tree.AddModelTree(fit.model, TSXDictionaryRefs("m", "", "y")));
      std::ostringstream document;
      ASSERT_TRUE(tree.WriteToStream(document));
      const ReadModel read(document.str());
      const tsffit::Forecasts forecasts = tsffit::Forecast(fit.model, 30);
      ASSERT_EQ(forecasts.value.size(), 30U);
      for (unsigned h = 1; h <= 30; ++h) {
        const double expected = forecasts.value[h - 1];
        EXPECT_NEAR(read.Forecast(h), expected, 1e-9 * std::abs(expected)) << file << ", h " << h;
      }
    }
  }
}

std::vector<Case> AllCases() {
  std::vector<Case> cases;
  for (int kind = ESModelSpec::kAdditiveWinters; kind <= ESModelSpec::kSimple; ++kind) {
    for (int function = TSTransformation::kNone; function <= TSTransformation::kSquareRoot;
         ++function) {
      cases.push_back({kind, function});
    }
  }
  return cases;
}

std::string CaseName(const testing::TestParamInfo<Case>& info) { return NameOf(info.param); }

INSTANTIATE_TEST_SUITE_P(EveryKindAndTransformation, ResumeFromDocument,
                         testing::ValuesIn(AllCases()), CaseName);

}  // namespace
