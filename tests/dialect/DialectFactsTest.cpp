#include <gtest/gtest.h>

#include <tsxport/DialectFacts.h>

namespace {

using tsx::DialectContent;
using tsx::FindDialect;

constexpr DialectContent kEverything[] = {DialectContent::kSmoothing, DialectContent::kArima,
                                          DialectContent::kCroston, DialectContent::kTransformation,
                                          DialectContent::kMissingValues};

TEST(DialectFacts, DialectsAreFoundByName) {
  ASSERT_NE(FindDialect("pmml"), nullptr);
  EXPECT_STREQ(FindDialect("pmml")->name, "pmml");
  EXPECT_EQ(FindDialect("PMML"), nullptr);
  EXPECT_EQ(FindDialect(""), nullptr);
}

TEST(DialectFacts, FirstDialectIsTimeSeriesXMLAndHoldsEverything) {
  EXPECT_STREQ(tsx::kDialects[0].name, "tscxml");
  for (const DialectContent content : kEverything) EXPECT_TRUE(tsx::kDialects[0].Holds(content));
}

TEST(DialectFacts, PmmlHoldsSmoothingAlone) {
  const tsx::DialectFacts& pmml = *FindDialect("pmml");
  for (const DialectContent content : kEverything) {
    EXPECT_EQ(pmml.Holds(content), content == DialectContent::kSmoothing);
  }
}

TEST(DialectFacts, LackSaysWhatFollows) {
  const tsx::DialectFacts& pmml = *FindDialect("pmml");
  EXPECT_STREQ(pmml.Lack(DialectContent::kArima), "of which PMML 4.2 knows no more than the name");
  EXPECT_STREQ(pmml.Lack(DialectContent::kMissingValues), "so its readers would forecast wrongly");
  EXPECT_EQ(pmml.Lack(DialectContent::kSmoothing), nullptr);
}

}  // namespace
