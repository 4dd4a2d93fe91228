#ifndef TSXPORT_TESTS_CLI_OPTIONS_TOYOPTIONS_H_
#define TSXPORT_TESTS_CLI_OPTIONS_TOYOPTIONS_H_

#include <string>
#include <vector>

#include "cli/options/OptionTable.h"

// A small command's options, one of each shape.
namespace test {

struct ToyArguments {
  std::string file{};
  std::string colour = "red";
  std::vector<std::string> tags{};
  bool loud = false;
};

inline constexpr tsx::cli::OptionEntry<ToyArguments> kToyOptions[] = {
    {{.shape = tsx::cli::OptionShape::kArgument, .name = "FILE", .help = "What to paint"},
     &ToyArguments::file},
    {{.shape = tsx::cli::OptionShape::kValue,
      .name = "--colour",
      .letter = 'c',
      .value_name = "NAME",
      .group = "Paint",
      .help = "Its colour",
      .may_be_empty = true},
     &ToyArguments::colour},
    {{.shape = tsx::cli::OptionShape::kRepeated,
      .name = "--tag-with-a-long-name",
      .value_name = "TEXT",
      .group = "Labels",
      .help = "Hang this tag on it, which may be said several times, and then all of them hang "
              "there side by side"},
     &ToyArguments::tags},
    {{.shape = tsx::cli::OptionShape::kFlag, .name = "--loud", .group = "Paint", .help = "Sing"},
     &ToyArguments::loud},
    {{.shape = tsx::cli::OptionShape::kHelp,
      .name = "--help",
      .letter = 'h',
      .group = "Labels",
      .help = "Show this page"}}};
static_assert(tsx::cli::AreSound<ToyArguments>(kToyOptions));

inline std::vector<tsx::cli::BoundOption> ToyOptions(ToyArguments& arguments) {
  std::vector<tsx::cli::BoundOption> options;
  tsx::cli::Bind<ToyArguments>(kToyOptions, arguments, options);
  return options;
}

}  // namespace test

#endif  // TSXPORT_TESTS_CLI_OPTIONS_TOYOPTIONS_H_
