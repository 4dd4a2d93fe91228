#include <gtest/gtest.h>
#include <memory>
#include <sstream>

#include <tsxport/TSXMLTree.h>

#include "export/TSXMLTreeImp.h"
#include "support/Calendars.h"
#include "support/Models.h"

namespace {

TSXDictionaryRefs Refs() { return {"m", "", "y"}; }

TEST(TreeHandle, CopyLivesOnWhenTheFirstHandleDies) {
  auto first = std::make_unique<TSXMLTree>();
  ASSERT_TRUE(first->AddModelTree(test::SimpleModel(), Refs()));
  TSXMLTree copy(*first);
  first.reset();
  EXPECT_EQ(copy.GetModelCount(), 1U);
  EXPECT_TRUE(copy.AddModelTree(test::SimpleModel(), Refs()));
  EXPECT_EQ(copy.GetModelCount(), 2U);
}

TEST(TreeHandle, CopiesShareOneCollection) {
  TSXMLTree tree;
  TSXMLTree copy(tree);
  ASSERT_TRUE(copy.AddModelTree(test::SimpleModel(), Refs()));
  EXPECT_EQ(tree.GetModelCount(), 1U);
}

struct CountingImp : TSXMLTreeImp {
  explicit CountingImp(int& count) : deaths(count) {}
  ~CountingImp() override { ++deaths; }
  CountingImp(const CountingImp&) = delete;
  CountingImp& operator=(const CountingImp&) = delete;
  int& deaths;
};

TEST(TreeHandle, ObjectDiesWithItsLastHandle) {
  int deaths = 0;
  {
    TSXMLTree first(new CountingImp(deaths));
    { const TSXMLTree second(first); }
    EXPECT_EQ(deaths, 0);
  }
  EXPECT_EQ(deaths, 1);
}

TEST(TreeHandle, AssignmentReleasesTheOldObject) {
  int deaths = 0;
  TSXMLTree handle(new CountingImp(deaths));
  handle = TSXMLTree();
  EXPECT_EQ(deaths, 1);
}

TEST(TreeHandle, AssigningItselfOrAHandleOfTheSameObjectChangesNoCount) {
  int deaths = 0;
  auto* imp = new CountingImp(deaths);
  TSXMLTree handle(imp);
  TSXMLTree copy(handle);
  EXPECT_EQ(imp->referenceCount(), 2);
  const TSXMLTree& itself = handle;
  handle = itself;
  EXPECT_EQ(imp->referenceCount(), 2);
  handle = copy;
  EXPECT_EQ(imp->referenceCount(), 2);
  EXPECT_EQ(deaths, 0);
}

TEST(TreeHandle, FreshTreeHasNoModelsAndWritesNothing) {
  TSXMLTree tree;
  std::ostringstream out;
  EXPECT_EQ(tree.GetModelCount(), 0U);
  EXPECT_FALSE(tree.WriteToStream(out));
  EXPECT_EQ(out.str(), "");
}

TEST(TreeHandle, EmptyHandleAnswersWithNothing) {
  TSXMLTree empty(nullptr);
  std::ostringstream out;
  empty.SetApplication("app", "1");
  empty.SetPMMLOutput(true);
  EXPECT_EQ(empty.AddDateSpec(test::Yearly(), ""), 0);
  EXPECT_FALSE(empty.AddModelTree(test::SimpleModel(), Refs()));
  EXPECT_FALSE(empty.AddModelTree(TSFCrModel(), Refs()));
  EXPECT_EQ(empty.GetModelCount(), 0U);
  EXPECT_FALSE(empty.WriteToStream(out));
  EXPECT_EQ(out.str(), "");
}

TEST(TreeHandle, EmptyHandleMayBeCopiedAndAssigned) {
  const TSXMLTree empty(nullptr);
  TSXMLTree tree(empty);
  EXPECT_EQ(tree.AddDateSpec(test::Yearly(), ""), 0);
  tree = TSXMLTree();
  EXPECT_EQ(tree.AddDateSpec(test::Yearly(), ""), 1);
  tree = empty;
  EXPECT_EQ(tree.AddDateSpec(test::Yearly(), ""), 0);
}

}  // namespace
