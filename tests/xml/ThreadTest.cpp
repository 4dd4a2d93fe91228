#include <gtest/gtest.h>
#include <thread>
#include <vector>

#include "xml/ElementPtr.h"
#include "xml/NumberList.h"
#include "xml/Text.h"

namespace {

using TIMESERIESXML::XMLElement;

test::ElementOwner BuildTree(int seed) {
  auto root = test::NewElement("r");
  for (int i = 0; i < 50; ++i) {
    XMLElement& child = test::AddChild(*root, "child");
    child.AddAttribute("n", i * seed);
    child.AddAttribute(TIMESERIESXML::XMLAttribute::Create("third", i / 3.0));
    const double values[] = {0.1 * i, -1.0 * seed, 1e20};
    tsx::FillNumberList(child, values, 3, -1e300);
    test::AddText(test::AddChild(child, "text"), "a & b");
  }
  return root;
}

void OnTwoThreads(void (*work)(int seed)) {
  std::thread first(work, 1);
  std::thread second(work, 2);
  first.join();
  second.join();
}

TEST(Threads, TwoTreesAreBuiltAndWrittenAtOnce) {
  OnTwoThreads([](int seed) {
    const std::string expected = test::StringOf(*BuildTree(seed));
    EXPECT_NE(expected, test::StringOf(*BuildTree(3 - seed)));
    for (int i = 0; i < 50; ++i) {
      const auto root = BuildTree(seed);
      EXPECT_EQ(test::StreamedTextOf(*root), expected);
      EXPECT_EQ(test::StreamedTextOf(*root, true, true), expected);
    }
  });
}

TEST(Threads, TreesMayDieOnAnotherThread) {
  OnTwoThreads([](int seed) {
    for (int i = 0; i < 50; ++i) {
      test::ElementOwner root = BuildTree(seed);
      std::thread([tree = std::move(root)]() mutable { tree.reset(); }).join();
    }
  });
}

TEST(Threads, PartsOfATreeMayComeFromOtherThreads) {
  const auto root = test::NewElement("r");
  std::vector<test::ElementOwner> parts(4);
  std::vector<std::thread> threads;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    threads.emplace_back([&part = parts[i], i] { part = BuildTree(static_cast<int>(i)); });
  }
  for (std::thread& thread : threads) thread.join();
  std::string expected = "<r>";
  for (test::ElementOwner& part : parts) {
    expected += test::StreamedTextOf(*part, false);
    tsx::Append(*root, std::move(part));
  }
  EXPECT_EQ(test::StreamedTextOf(*root, false), expected + "</r>");
}

}  // namespace
