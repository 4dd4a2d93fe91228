#include <gtest/gtest.h>

#include "ToyOptions.h"
#include "cli/options/Parser.h"
#include "support/Tables.h"

namespace tsx::cli {
namespace {

using test::ErrorOf;
using test::ToyArguments;
using Strings = std::vector<std::string>;
using Asked = ParsedLine::Asked;

constexpr OptionRow kVersionRow = {.shape = OptionShape::kVersion, .name = "--version"};

// Parses the arguments of a command with two subcommands of the same options.
struct Parsed {
  explicit Parsed(const Strings& arguments) {
    line = Parse({"toy", {{&kVersionRow}}},
                 {{"paint", test::ToyOptions(paint)}, {"draw", test::ToyOptions(draw)}}, arguments);
  }

  ToyArguments paint;
  ToyArguments draw;
  ParsedLine line;
};

std::string ErrorIn(const Strings& arguments) {
  return ErrorOf([&] { Parsed{arguments}; });
}

TEST(Parser, TextsGoToWhereTheyAreBound) {
  const Parsed parsed({"paint", "door", "--colour", "blue", "--tag-with-a-long-name=a", "--loud"});
  EXPECT_EQ(parsed.paint.file, "door");
  EXPECT_EQ(parsed.paint.colour, "blue");
  EXPECT_EQ(parsed.paint.tags, Strings{"a"});
  EXPECT_TRUE(parsed.paint.loud);
}

TEST(Parser, WhatIsNotTypedStaysAsItIs) {
  const Parsed parsed({"paint", "door"});
  EXPECT_EQ(parsed.paint.colour, "red");
  EXPECT_FALSE(parsed.paint.loud);
}

TEST(Parser, LetterDoesAsWell) {
  EXPECT_EQ(Parsed({"paint", "door", "-c", "x"}).paint.colour, "x");
}

TEST(Parser, RepeatedOptionTakesOneValueAtATime) {
  const Parsed parsed(
      {"paint", "--tag-with-a-long-name", "a", "--tag-with-a-long-name", "b", "door"});
  EXPECT_EQ(parsed.paint.tags, (Strings{"a", "b"}));
  EXPECT_EQ(parsed.paint.file, "door");
}

TEST(Parser, TellsWhichSubcommandIsMeant) {
  const Parsed parsed({"draw", "cat"});
  EXPECT_EQ(parsed.line.asked, Asked::kRun);
  EXPECT_EQ(parsed.line.subcommand, 1U);
  EXPECT_EQ(parsed.draw.file, "cat");
  EXPECT_EQ(parsed.paint.file, "");
}

TEST(Parser, HelpIsAskedForWhateverElseThereIs) {
  EXPECT_EQ(Parsed({"paint", "door", "--bad", "-h"}).line.asked, Asked::kHelp);
  EXPECT_EQ(Parsed({"draw", "--help"}).line.subcommand, 1U);
  EXPECT_EQ(Parsed({"--help"}).line.subcommand, std::nullopt);
}

TEST(Parser, VersionNeedsNoSubcommand) {
  EXPECT_EQ(Parsed({"--version"}).line.asked, Asked::kVersion);
}

TEST(ParserError, EndsWithWhereToReadOn) {
  EXPECT_EQ(ErrorIn({"paint"}), "FILE is required; see toy paint --help");
  EXPECT_EQ(ErrorIn({"draw", "a", "--colour"}),
            "--colour: 1 required NAME missing; see toy draw --help");
  EXPECT_EQ(ErrorIn({}), "A subcommand is required; see toy --help");
}

TEST(ParserError, EmptyValueWhereTheRowDoesNotAllowIt) {
  EXPECT_EQ(ErrorIn({"paint", "a", "--tag-with-a-long-name", ""}),
            "--tag-with-a-long-name: the value is empty");
  EXPECT_EQ(ErrorIn({"paint", ""}), "FILE: the value is empty");
  EXPECT_EQ(Parsed({"paint", "a", "--colour", ""}).paint.colour, "");
}

TEST(ParserError, ControlCharactersAreNotPrinted) {
  EXPECT_EQ(ErrorIn({"paint", "a", "b\nc"}),
            "The following argument was not expected: b?c; see toy paint --help");
}

}  // namespace
}  // namespace tsx::cli
