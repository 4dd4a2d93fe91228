#include <gtest/gtest.h>

#include "ToyOptions.h"
#include "cli/options/OptionTable.h"

namespace tsx::cli {
namespace {

using test::kToyOptions;
using test::ToyArguments;

TEST(OptionTable, RowsAreFoundByWhereTheyGo) {
  EXPECT_STREQ(RowOf<ToyArguments>(kToyOptions, &ToyArguments::colour).name, "--colour");
  EXPECT_STREQ(RowOf<ToyArguments>(kToyOptions, &ToyArguments::loud).name, "--loud");
}

TEST(OptionTable, BoundOptionsGoToTheMembers) {
  ToyArguments arguments;
  const std::vector<BoundOption> options = test::ToyOptions(arguments);
  ASSERT_EQ(options.size(), 5U);
  EXPECT_EQ(std::get<std::string*>(options[1].destination), &arguments.colour);
  EXPECT_EQ(std::get<std::vector<std::string>*>(options[2].destination), &arguments.tags);
  EXPECT_EQ(std::get<bool*>(options[3].destination), &arguments.loud);
  EXPECT_EQ(options[4].destination.index(), 0U);
}

TEST(OptionTable, DefaultsAreNotGiven) {
  EXPECT_EQ(FirstGiven<ToyArguments>(kToyOptions, {}), nullptr);
  EXPECT_EQ(FirstGiven<ToyArguments>(kToyOptions, {.colour = "red"}), nullptr);
}

TEST(OptionTable, FirstOfTheOptionsGivenIsThatOfTheFirstRow) {
  EXPECT_STREQ(FirstGiven<ToyArguments>(kToyOptions, {.tags = {"a"}, .loud = true})->name,
               "--tag-with-a-long-name");
  EXPECT_STREQ(FirstGiven<ToyArguments>(kToyOptions, {.loud = true})->name, "--loud");
}

using Entry = OptionEntry<ToyArguments>;

constexpr Entry Value(OptionRow row) {
  row.shape = OptionShape::kValue;
  return {row, &ToyArguments::colour};
}

TEST(OptionTable, RowThatLacksSomethingIsNotSound) {
  constexpr OptionRow kWhole = {.name = "--x", .value_name = "N", .group = "g", .help = "h"};
  EXPECT_TRUE(IsSound(Value(kWhole)));
  EXPECT_FALSE(IsSound(Value({.name = "x", .value_name = "N", .group = "g", .help = "h"})));
  EXPECT_FALSE(IsSound(Value({.name = "--x", .group = "g", .help = "h"})));
  EXPECT_FALSE(IsSound(Value({.name = "--x", .value_name = "N", .help = "h"})));
  EXPECT_FALSE(IsSound(Value({.name = "--x", .value_name = "N", .group = "g"})));
}

TEST(OptionTable, RowIsNotSoundWhereItsMemberCannotTakeIt) {
  constexpr OptionRow kFlag = {.name = "--x", .group = "g", .help = "h"};
  EXPECT_TRUE(IsSound(Entry{kFlag, &ToyArguments::loud}));
  EXPECT_FALSE(IsSound(Entry{kFlag, &ToyArguments::colour}));
  EXPECT_FALSE(IsSound(Entry{kFlag}));
}

TEST(OptionTable, ValueIsCheckedInOneWay) {
  EXPECT_FALSE(IsSound(Value(
      {.name = "--x", .value_name = "N", .group = "g", .help = "h", .most = 3, .clean = true})));
}

}  // namespace
}  // namespace tsx::cli
