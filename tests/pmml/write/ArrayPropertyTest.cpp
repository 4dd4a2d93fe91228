// The arrays of many models, taken out of the documents by an independent XML parser.

#include <bit>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <memory>
#include <pugixml.hpp>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include <tsxport/TSXMLTree.h>

#include "support/Models.h"

namespace {

// Any finite double that is not the missing value.
double AnyValue(std::mt19937_64& random) {
  for (;;) {
    const auto value = std::bit_cast<double>(random());
    if (std::isfinite(value) && value != test::kMissing) return value;
  }
}

std::valarray<double> AnyValues(std::mt19937_64& random, std::size_t count) {
  std::valarray<double> values(count);
  for (double& value : values) value = AnyValue(random);
  return values;
}

// The document of a model in this state.
pugi::xml_document Document(const ESForecastState::Fields& state) {
  TSXMLTree tree;
  tree.SetPMMLOutput(true);
  EXPECT_TRUE(tree.AddModelTree(test::ModelOf(std::make_unique<ESForecastState>(state)),
                                TSXDictionaryRefs("m", "", "y")));
  std::ostringstream out;
  EXPECT_TRUE(tree.WriteToStream(out));
  pugi::xml_document document;
  EXPECT_TRUE(document.load_string(out.str().c_str()));
  return document;
}

// The text holds the values to 15 digits, as many as "n" says, with one blank between two of them.
void ExpectArray(const pugi::xml_document& document, const std::valarray<double>& values) {
  const pugi::xpath_node_set arrays = document.select_nodes("//Array");
  ASSERT_EQ(arrays.size(), 1U);
  const pugi::xml_node array = arrays.first().node();
  EXPECT_EQ(array.attribute("n").as_string(), std::to_string(values.size()));
  EXPECT_STREQ(array.attribute("type").as_string(), "real");
  std::istringstream text(array.text().get());
  for (std::size_t i = 0; i < values.size(); ++i) {
    std::string word;
    ASSERT_TRUE(std::getline(text, word, ' ')) << "only " << i << " values";
    char* end = nullptr;
    const double read = std::strtod(word.c_str(), &end);
    ASSERT_TRUE(!word.empty() && *end == '\0') << word;
    // Half a unit of the 15th digit; the smallest numbers have fewer digits to lose.
    ASSERT_LE(std::abs(read / 2 - values[i] / 2), 2.6e-15 * std::abs(values[i]) + 1e-323) << word;
  }
  EXPECT_TRUE(text.eof()) << "more than " << values.size() << " values";
}

TEST(PmmlArrays, OfSeasonsHoldAsManyValuesAsTheyCount) {
  std::mt19937_64 random(1);
  for (const int kind : {ESModelSpec::kAdditiveWinters, ESModelSpec::kMultiplicativeWinters,
                         ESModelSpec::kSimpleSeasonal}) {
    for (unsigned length = 2; length <= 60; ++length) {
      const std::valarray<double> season = AnyValues(random, length);
      ExpectArray(Document({.spec = ESModelSpec(ESModelSpec::ForKind(kind, length)),
                            .estimates = {0.5, 0.25, 0.125},
                            .smoothed = {.level = 1, .trend = 2, .phase = 1, .season = season}}),
                  season);
      if (HasFatalFailure()) return;
    }
  }
}

TEST(PmmlArrays, OfBrownsTrendHoldInterceptAndSlope) {
  std::mt19937_64 random(2);
  for (int i = 0; i < 200; ++i) {
    const double alpha = std::ldexp(1, -static_cast<int>(random() % 20));
    const double level = std::normal_distribution<double>(0, 1000)(random);
    const double trend = std::normal_distribution<double>(0, 10)(random);
    ExpectArray(Document({.spec = ESModelSpec(ESModelSpec::ForKind(ESModelSpec::kBrown, 1)),
                          .estimates = {alpha},
                          .smoothed = {.level = level, .trend = trend}}),
                {level + trend / alpha - trend, trend});
    if (HasFatalFailure()) return;
  }
}

TEST(PmmlArrays, AreNotThereForKindsWithoutThem) {
  for (const int kind : {ESModelSpec::kDampedTrend, ESModelSpec::kHolt, ESModelSpec::kSimple}) {
    EXPECT_TRUE(Document({.spec = ESModelSpec(ESModelSpec::ForKind(kind, 1)),
                          .estimates = {0.5, 0.25, 0.125},
                          .smoothed = {.level = 1, .trend = 2}})
                    .select_nodes("//Array")
                    .empty());
  }
}

}  // namespace
