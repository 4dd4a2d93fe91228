#include <gtest/gtest.h>
#include <set>

#include "models/Classes.h"

namespace tsx::models {
namespace {

TEST(Classes, EveryKindIsFoundByItsNameAndIsOfItsClass) {
  for (const ModelClass* one : Classes()) {
    ASSERT_FALSE(one->Kinds().empty());
    for (const KindInfo& kind : one->Kinds()) {
      EXPECT_EQ(&ClassOf(kind), one) << kind.title;
      const std::string name = kind.name;
      EXPECT_EQ(FindKind(name), name.empty() ? nullptr : &kind) << kind.title;
    }
  }
}

TEST(Classes, NoTwoKindsHaveTheSameTitle) {
  std::set<std::string> titles;
  std::size_t kinds = 0;
  for (const ModelClass* one : Classes()) {
    for (const KindInfo& kind : one->Kinds()) titles.insert(kind.title);
    kinds += one->Kinds().size();
  }
  EXPECT_EQ(titles.size(), kinds);
}

TEST(Classes, WhatHasNoNameAloneIsNotFoundByOne) {
  EXPECT_EQ(FindKind(""), nullptr);
  EXPECT_EQ(FindKind("arima"), nullptr);
}

TEST(Classes, NothingMeansSeasonsWhereTheKindIsLeftToChoose) { EXPECT_EQ(SeasonalPart({}), ""); }

TEST(Classes, SeasonalKindsMeanSeasons) {
  EXPECT_EQ(SeasonalPart({.kind = FindKind("winters-additive")}), "winters-additive");
  EXPECT_EQ(SeasonalPart({.kind = FindKind("holt")}), "");
  EXPECT_EQ(SeasonalPart({.kind = FindKind("croston")}), "");
}

}  // namespace
}  // namespace tsx::models
