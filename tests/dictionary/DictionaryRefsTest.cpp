#include <gtest/gtest.h>

#include <tsxport/TSXDictionaryRefs.h>

namespace {

TEST(DictionaryRefs, DefaultRecordIsEmpty) {
  const TSXDictionaryRefs refs;
  EXPECT_EQ(refs.GetModelName(), "");
  EXPECT_EQ(refs.GetModelDescriptor(), "");
  EXPECT_EQ(refs.GetDependentVarID(), "");
  EXPECT_TRUE(refs.GetPredictorIDs().empty());
  EXPECT_EQ(refs.GetDateSpecID(), 0);
}

TEST(DictionaryRefs, BuiltFromNamesHasNoDateSpecificationUntilSet) {
  TSXDictionaryRefs refs("name", "descriptor", "y", {"x1", "x2"});
  EXPECT_EQ(refs.GetDateSpecID(), 0);
  EXPECT_EQ(refs.GetModelName(), "name");
  EXPECT_EQ(refs.GetModelDescriptor(), "descriptor");
  EXPECT_EQ(refs.GetDependentVarID(), "y");
  EXPECT_EQ(refs.GetPredictorIDs(), (std::vector<std::string>{"x1", "x2"}));
  refs.SetDateSpecID(4);
  EXPECT_EQ(refs.GetDateSpecID(), 4);
}

TEST(DictionaryRefs, CopyCarriesTheDateSpecificationAndIsIndependent) {
  TSXDictionaryRefs source("name", "", "y");
  source.SetDateSpecID(2);
  const TSXDictionaryRefs copy(source);
  TSXDictionaryRefs assigned;
  assigned = source;
  source.SetDateSpecID(9);
  EXPECT_EQ(copy.GetDateSpecID(), 2);
  EXPECT_EQ(assigned.GetDateSpecID(), 2);
  EXPECT_EQ(assigned.GetModelName(), "name");
}

}  // namespace
