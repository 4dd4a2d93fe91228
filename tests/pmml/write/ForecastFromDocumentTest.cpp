// A PMML document is enough to forecast from: its numbers are taken out by an independent XML
// parser and go on as the PMML standard's exponential smoothing does.

#include <charconv>
#include <cmath>
#include <gtest/gtest.h>
#include <pugixml.hpp>
#include <sstream>
#include <string>
#include <vector>

#include <tsffit/tsffit.h>
#include <tsxport/TSXMLTree.h>

#include "support/Golden.h"

namespace {

std::vector<double> ArrayOf(const pugi::xml_node& array) {
  std::istringstream in(array.text().get());
  std::vector<double> values;
  std::string word;
  while (in >> word) values.push_back(word == "NaN" ? NAN : std::stod(word));
  return values;
}

std::vector<double> Series(const std::string& file) {
  std::istringstream in(test::ReadTestFile("data/" + file));
  std::vector<double> values;
  std::string line;
  std::getline(in, line);
  while (std::getline(in, line)) values.push_back(std::stod(line.substr(line.find(',') + 1)));
  return values;
}

double Forecast(const pugi::xml_node& smoothing, unsigned h) {
  const pugi::xml_node trend = smoothing.child("Trend_ExpoSmooth");
  const pugi::xml_node season = smoothing.child("Seasonality_ExpoSmooth");
  const std::string trendKind = trend.attribute("trend").as_string();
  const double slope = trend.attribute("smoothedValue").as_double();
  double value = smoothing.child("Level").attribute("smoothedValue").as_double();
  if (trendKind == "additive") value += h * slope;
  if (trendKind == "damped_additive") {
    const double phi = trend.attribute("phi").as_double();
    for (unsigned i = 1; i <= h; ++i) value += std::pow(phi, i) * slope;
  }
  if (trendKind == "polynomial_exponential") {
    const std::vector<double> line = ArrayOf(trend.child("Array"));
    value = line.at(0) + h * line.at(1);
  }
  if (!season) return value;
  const std::vector<double> values = ArrayOf(season.child("Array"));
  const double factor = values.at((season.attribute("phase").as_uint() + h - 1) % values.size());
  const bool multiplicative = std::string(season.attribute("type").as_string()) == "multiplicative";
  return multiplicative ? value * factor : value + factor;
}

class ForecastFromPmml : public testing::TestWithParam<int> {
 protected:
  void SetUp() override {
    const std::vector<double> series = Series("airpassengers.csv");
    tsffit::SmoothingOptions options;
    options.kind = GetParam();
    options.season_length = 12;
    // An odd end of the series, so that the phase is not 0.
    fit_ = tsffit::FitSmoothing(std::span(series).first(139), options);
    ASSERT_EQ(fit_.status, tsffit::FitStatus::kOk) << fit_.message;
    TSXMLTree tree;
    tree.SetPMMLOutput(true);
    ASSERT_TRUE(tree.AddModelTree(fit_.model, TSXDictionaryRefs("m", "", "y")));
    std::ostringstream out;
    ASSERT_TRUE(tree.WriteToStream(out));
    document_.load_string(out.str().c_str());
    model_ = document_.child("PMML").child("TimeSeriesModel");
  }

  tsffit::SmoothingFit fit_;
  pugi::xml_document document_;
  pugi::xml_node model_;
};

TEST_P(ForecastFromPmml, GivesTheForecastsOfTheCore) {
  const tsffit::Forecasts forecasts = tsffit::Forecast(fit_.model, 30);
  ASSERT_EQ(forecasts.value.size(), 30U);
  for (unsigned h = 1; h <= 30; ++h) {
    const double expected = forecasts.value[h - 1];
    EXPECT_NEAR(Forecast(model_.child("ExponentialSmoothing"), h), expected,
                1e-9 * std::abs(expected));
  }
}

TEST_P(ForecastFromPmml, EveryArrayCountsItsValues) {
  for (const pugi::xpath_node& found : document_.select_nodes("//Array")) {
    EXPECT_EQ(ArrayOf(found.node()).size(), found.node().attribute("n").as_uint());
  }
}

TEST_P(ForecastFromPmml, HistoryIsTheSeriesThatWasFitted) {
  const std::vector<double> series = Series("airpassengers.csv");
  unsigned index = 0;
  for (const pugi::xml_node& value : model_.child("TimeSeries").children("TimeValue")) {
    EXPECT_EQ(value.attribute("value").as_double(), series[index]);
    EXPECT_EQ(value.attribute("index").as_uint(), ++index);
  }
  EXPECT_EQ(index, 139U);
  EXPECT_EQ(model_.child("TimeSeries").attribute("endTime").as_uint(), 139U);
}

std::string KindName(const testing::TestParamInfo<int>& info) {
  constexpr const char* kNames[] = {
      "AdditiveWinters",       "Brown",          "DampedTrend", "Holt",
      "MultiplicativeWinters", "SimpleSeasonal", "Simple"};
  return kNames[info.param];
}

INSTANTIATE_TEST_SUITE_P(EveryKind, ForecastFromPmml,
                         testing::Range<int>(ESModelSpec::kAdditiveWinters,
                                             ESModelSpec::kSimple + 1),
                         KindName);

}  // namespace
