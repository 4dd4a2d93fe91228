// What a write takes beyond the tree it writes.

#include <gtest/gtest.h>
#include <memory>
#include <ostream>
#include <streambuf>

#include <tsxport/TSXMLTree.h>

#include "support/Calendars.h"
#include "support/FailingAllocation.h"
#include "support/Models.h"

namespace {

// Counts bytes and keeps none.
class CountingStreambuf : public std::streambuf {
 public:
  std::size_t count() const { return count_; }

 protected:
  int_type overflow(int_type c) override {
    ++count_;
    return traits_type::not_eof(c);
  }
  std::streamsize xsputn(const char* /*bytes*/, std::streamsize count) override {
    count_ += static_cast<std::size_t>(count);
    return count;
  }

 private:
  std::size_t count_ = 0;
};

struct Cost {
  long allocations = 0;
  std::size_t bytes = 0;
  std::size_t written = 0;
};

Cost CostOfWriting(std::size_t values) {
  std::valarray<double> history(values);
  for (std::size_t i = 0; i < values; ++i) history[i] = 0.1 * static_cast<double>(i);
  TSXMLTree tree;
  tree.SetPMMLOutput(true);
  const TSFModel model(
      new TSFModelImp({.state = std::make_unique<ESForecastState>(test::SimpleState()),
                       .info = test::SmallInfo(),
                       .history = history}));
  EXPECT_TRUE(tree.AddModelTree(model, TSXDictionaryRefs("m", "", "y")));
  CountingStreambuf buffer;
  std::ostream out(&buffer);
  test::FailAllocationsFrom(0);
  const bool done = tree.WriteToStream(out);
  const Cost cost{test::AllocationCount(), test::AllocatedBytes(), buffer.count()};
  EXPECT_TRUE(done);
  return cost;
}

TEST(PmmlWrite, TakesMemoryThatDoesNotGrowWithTheHistory) {
  if (!TSXPORT_ALLOCATIONS_FAIL) GTEST_SKIP() << "allocations are not counted here";
  CostOfWriting(1);  // static buffers come into being
  const Cost small = CostOfWriting(1'000);
  const Cost large = CostOfWriting(100'000);
  EXPECT_GT(large.written, 90 * small.written);
  EXPECT_GT(small.allocations, 0);
  EXPECT_EQ(large.allocations, small.allocations);
  EXPECT_EQ(large.bytes, small.bytes);
}

// Allocations for one more model in a tree with so many calendars.
long CostOfAModelAmong(unsigned calendars) {
  TSXMLTree tree;
  tree.SetPMMLOutput(true);
  for (unsigned i = 0; i < calendars; ++i) tree.AddDateSpec(test::Monthly(1900 + i, 0), "months");
  const TSFModel model = test::SimpleModel();
  const TSXDictionaryRefs refs("m", "", "y");
  tree.AddModelTree(model, refs);
  test::FailAllocationsFrom(0);
  const bool added = tree.AddModelTree(model, refs);
  const long cost = test::AllocationCount();
  EXPECT_TRUE(added);
  return cost;
}

TEST(PmmlAdmission, CostsTheSameWhateverTheNumberOfCalendars) {
  if (!TSXPORT_ALLOCATIONS_FAIL) GTEST_SKIP() << "allocations are not counted here";
  const long few = CostOfAModelAmong(1);
  EXPECT_GT(few, 0);
  EXPECT_EQ(CostOfAModelAmong(500), few);
}

}  // namespace
