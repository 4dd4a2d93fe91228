#include <gtest/gtest.h>

#include "ToyOptions.h"
#include "cli/options/HelpPages.h"

namespace tsx::cli {
namespace {

TEST(HelpPage, TellsArgumentsThenGroupsInOrderOfTheirFirstOption) {
  test::ToyArguments arguments;
  EXPECT_EQ(
      HelpPage({"paint", "Paints a thing.", "Dries in an hour.\n"}, test::ToyOptions(arguments)),
      R"(Paints a thing.

Usage:
  tsxport paint FILE [OPTIONS]

  FILE                  What to paint

Paint:
  -c, --colour NAME     Its colour
  --loud                Sing

Labels:
  --tag-with-a-long-name TEXT
                        Hang this tag on it, which may be said several times,
                        and then all of them hang there side by side
  -h, --help            Show this page

Dries in an hour.
)");
}

TEST(HelpPage, MainPageTellsTheSubcommands) {
  constexpr OptionRow kRow = {
      .shape = OptionShape::kHelp, .name = "--help", .group = "Options", .help = "Show this page"};
  constexpr CommandText kSubcommands[] = {{"paint", "Paints a thing.", ""},
                                          {"draw", "Draws one.", ""}};
  EXPECT_EQ(MainHelpPage({"toy", "Makes things.", "The end.\n"}, {{&kRow}}, kSubcommands),
            R"(Makes things.

Usage:
  toy COMMAND [OPTIONS]

Commands:
  paint                 Paints a thing.
  draw                  Draws one.

Options:
  --help                Show this page

The end.
)");
}

}  // namespace
}  // namespace tsx::cli
