// A "CrostonModel" element is enough to forecast from: its numbers are taken out of the text by an
// independent XML parser, and the formulas of docs/documents.md go on from them.

#include <cmath>
#include <gtest/gtest.h>
#include <pugixml.hpp>
#include <sstream>
#include <string>
#include <vector>

#include <tsffit/tsffit.h>
#include <tsxport/TSXMLTree.h>

#include "core/support/TestSeries.h"

namespace {

// The model as a reader of documents goes on with it.
class ReadModel {
 public:
  explicit ReadModel(const TSFCrModel& model) {
    TSXMLTree tree;
    EXPECT_TRUE(tree.AddModelTree(model, TSXDictionaryRefs("m", "", "y")));
    std::ostringstream text;
    EXPECT_TRUE(tree.WriteToStream(text));
    pugi::xml_document document;
    EXPECT_TRUE(document.load_string(text.str().c_str()));
    const pugi::xml_node element = document.child("TSCXML").child("CrostonModel");
    function_ = element.child("Transformation").attribute("function").as_string("none");
    size_ = Read(element.child("ActualDemandSubmodel"));
    interval_ = Read(element.child("ElapsedTimeSubmodel"));
    error_ = Read(element.child("AbsoluteErrorSubmodel"));
  }

  double Rate() const { return Back(size_.level) / interval_.level; }
  double CorrectedRate() const { return (1 - interval_.weight / 2) * Rate(); }
  double ErrorLevel() const { return error_.level; }

  // Takes in the next case; `elapsed` counts the periods since the last demand, with this one.
  void TakeIn(double y, double elapsed) {
    error_.TakeIn(std::abs(y - Rate()));
    if (y == 0) return;
    size_.TakeIn(There(y));
    interval_.TakeIn(elapsed);
  }

 private:
  struct Submodel {
    double weight = 0;
    double level = 0;
    void TakeIn(double value) { level += weight * (value - level); }
  };

  static Submodel Read(const pugi::xml_node& element) {
    const pugi::xml_node simple = element.child("ESSimple");
    return {std::stod(simple.child("ParmLevel").child("EstimatedParameter").text().get()),
            std::stod(simple.child("StateLevel").text().get())};
  }
  double There(double y) const {
    if (function_ == "logarithm") return std::log(y);
    return function_ == "squareRoot" ? std::sqrt(y) : y;
  }
  double Back(double z) const {
    if (function_ == "logarithm") return std::exp(z);
    return function_ == "squareRoot" ? z * z : z;
  }

  std::string function_;
  Submodel size_, interval_, error_;
};

class ResumeCroston : public testing::TestWithParam<int> {
 protected:
  static tsffit::CrostonOptions Options() {
    tsffit::CrostonOptions options;
    options.function_type = GetParam();
    return options;
  }
};

TEST_P(ResumeCroston, GivesTheForecastsOfTheCore) {
  for (const char* file : {"intermittent_a.csv", "intermittent_b.csv"}) {
    const auto fit = tsffit::FitCroston(test::DataColumn(file), Options());
    ASSERT_EQ(fit.status, tsffit::FitStatus::kOk) << fit.message;
    const ReadModel read(fit.model);
    const double rate = tsffit::Forecast(fit.model, 1).value.at(0);
    EXPECT_NEAR(read.Rate(), rate, 1e-9 * rate);
    const double corrected =
        tsffit::Forecast(fit.model, 1, 0.95, tsffit::CrostonRate::kSyntetosBoylan).value.at(0);
    EXPECT_NEAR(read.CorrectedRate(), corrected, 1e-9 * corrected);
  }
}

TEST_P(ResumeCroston, TakesInWhatComesNextAsTheCoreDoes) {
  for (const char* file : {"intermittent_a.csv", "intermittent_b.csv"}) {
    const std::vector<double> series = test::DataColumn(file);
    const std::size_t known = series.size() / 2;
    const auto half = tsffit::FitCroston(std::span(series).first(known), Options());
    ASSERT_EQ(half.status, tsffit::FitStatus::kOk) << half.message;
    ReadModel read(half.model);
    double elapsed = 0;
    for (std::size_t t = 0; t < known; ++t) elapsed = series[t] > 0 ? 0 : elapsed + 1;
    for (std::size_t t = known; t < series.size(); ++t) {
      read.TakeIn(series[t], ++elapsed);
      if (series[t] > 0) elapsed = 0;
    }
    // The same weights over the whole series.
    tsffit::CrostonOptions options = Options();
    options.size_weight = half.summary.sizes.weight;
    options.interval_weight = half.summary.intervals.weight;
    options.error_weight = half.summary.errors.weight;
    const auto whole = tsffit::FitCroston(series, options);
    const double rate = tsffit::Forecast(whole.model, 1).value.at(0);
    EXPECT_NEAR(read.Rate(), rate, 1e-9 * rate) << file;
    const double error = whole.model.GetImp()->GetForecastState(2).GetSmState().level;
    EXPECT_NEAR(read.ErrorLevel(), error, 1e-9 * error) << file;
  }
}

std::string FunctionName(const testing::TestParamInfo<int>& info) {
  constexpr const char* kNames[] = {"AsItIs", "UnderLogarithm", "UnderSquareRoot"};
  return kNames[info.param];
}

INSTANTIATE_TEST_SUITE_P(EveryTransformation, ResumeCroston,
                         testing::Values(TSTransformation::kNone, TSTransformation::kLogarithm,
                                         TSTransformation::kSquareRoot),
                         FunctionName);

}  // namespace
