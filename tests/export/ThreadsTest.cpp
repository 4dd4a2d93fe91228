#include <gtest/gtest.h>
#include <memory>
#include <sstream>
#include <thread>

#include <tsxport/TSXMLTree.h>

#include "support/Calendars.h"
#include "support/Models.h"

namespace {

std::string BuildAndWrite(const TSFModel& model) {
  TSXMLTree tree;
  tree.SetApplication("app", "1");
  TSXDictionaryRefs refs("m", "d", "y");
  refs.SetDateSpecID(tree.AddDateSpec(test::Monthly(1949, 0), "months"));
  for (int i = 0; i < 50; ++i) tree.AddModelTree(model, refs);
  std::ostringstream out;
  tree.WriteToStream(out);
  return out.str();
}

TEST(Threads, DistinctTreesAreIndependentAndMayShareAModel) {
  const TSFModel model = test::ModelOf(std::make_unique<ESForecastState>(test::WintersState()));
  const std::string expected = BuildAndWrite(model);
  std::string texts[2];
  std::thread first([&] { texts[0] = BuildAndWrite(model); });
  std::thread second([&] { texts[1] = BuildAndWrite(model); });
  first.join();
  second.join();
  EXPECT_EQ(texts[0], expected);
  EXPECT_EQ(texts[1], expected);
}

}  // namespace
