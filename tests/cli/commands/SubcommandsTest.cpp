#include <algorithm>
#include <cctype>
#include <gtest/gtest.h>
#include <set>

#include "CommandRun.h"
#include "cli/commands/Subcommand.h"

namespace tsx::cli {
namespace {

using Rows = std::vector<const OptionRow*>;

Rows RowsOf(const Subcommand& subcommand) {
  Rows rows;
  for (const BoundOption& option : subcommand.begin()->Options()) rows.push_back(option.row);
  return rows;
}

// The names by which an option is given: "--output" and "-o".
std::vector<std::string> NamesOf(const OptionRow& row) {
  std::vector<std::string> names = {row.name};
  if (row.letter != '\0') names.push_back({'-', row.letter});
  return names;
}

std::string PageOf(const Subcommand& subcommand) {
  return test::PageOf({subcommand.text.name, "--help"});
}

TEST(Subcommands, EachHasAnEntryOnTheMainPage) {
  for (const Subcommand& one : Subcommands()) {
    EXPECT_NE(test::PageOf({"--help"}).find("\n  " + std::string(one.text.name) + " "),
              std::string::npos);
  }
}

TEST(Subcommands, NamesAreTakenOnce) {
  std::set<std::string> names;
  for (const Subcommand& one : Subcommands()) EXPECT_TRUE(names.insert(one.text.name).second);
}

TEST(Subcommands, EachSaysHowToAskForItsPage) {
  for (const Subcommand& one : Subcommands()) {
    const Rows rows = RowsOf(one);
    EXPECT_TRUE(std::any_of(rows.begin(), rows.end(), [](const OptionRow* row) {
      return row->shape == OptionShape::kHelp;
    })) << one.text.name;
  }
}

TEST(SubcommandOptions, NoNameStandsInTwoRows) {
  for (const Subcommand& one : Subcommands()) {
    std::set<std::string> seen;
    for (const OptionRow* row : RowsOf(one)) {
      for (const std::string& name : NamesOf(*row)) EXPECT_TRUE(seen.insert(name).second) << name;
    }
  }
}

TEST(SubcommandOptions, NoTwoGoToTheSamePlace) {
  for (const Subcommand& one : Subcommands()) {
    const auto invocation = one.begin();
    const std::vector<BoundOption> options = invocation->Options();
    for (std::size_t i = 0; i < options.size(); ++i) {
      if (options[i].destination.index() == 0) continue;  // asks for a page
      for (std::size_t j = 0; j < i; ++j) {
        EXPECT_NE(options[i].destination, options[j].destination) << options[i].row->name;
      }
    }
  }
}

// How the entry of a row begins: "  -o, --output MODEL.xml".
std::string EntryOf(const OptionRow& row) {
  const std::string letter = row.letter == '\0' ? "" : std::string{'-', row.letter, ',', ' '};
  const std::string value = row.value_name[0] == '\0' ? "" : std::string(" ") + row.value_name;
  return "  " + letter + row.name + value;
}

TEST(SubcommandOptions, EveryRowIsOnTheHelpPageOnce) {
  for (const Subcommand& one : Subcommands()) {
    const std::string page = PageOf(one);
    for (const OptionRow* row : RowsOf(one)) {
      const std::string line = "\n" + EntryOf(*row);
      const std::size_t at = page.find(line);
      ASSERT_NE(at, std::string::npos) << line;
      const char behind = page[at + line.size()];
      EXPECT_TRUE(behind == ' ' || behind == '\n') << line;
      EXPECT_EQ(page.find(line + behind, at + 1), std::string::npos) << line;
    }
  }
}

TEST(SubcommandOptions, EveryGroupIsOnTheHelpPageOnce) {
  for (const Subcommand& one : Subcommands()) {
    const std::string page = PageOf(one);
    for (const OptionRow* row : RowsOf(one)) {
      if (row->shape == OptionShape::kArgument) continue;
      const std::string heading = "\n" + std::string(row->group) + ":\n  -";
      const std::size_t at = page.find(heading);
      ASSERT_NE(at, std::string::npos) << row->group;
      EXPECT_EQ(page.find(heading, at + 1), std::string::npos) << row->group;
    }
  }
}

TEST(SubcommandOptions, EveryChoiceIsToldOnTheHelpPage) {
  for (const Subcommand& one : Subcommands()) {
    for (const OptionRow* row : RowsOf(one)) {
      if (!row->choices) continue;
      for (const OptionChoice& choice : row->choices()) {
        EXPECT_NE(std::string(row->help).find(choice.text), std::string::npos) << choice.text;
      }
    }
  }
}

// A choice as it is typed: with numbers in the place of a pattern's letters.
std::string Typed(const OptionChoice& choice) {
  std::string text = choice.text;
  if (!choice.is_pattern) return text;
  for (std::size_t i = text.find('('); i < text.size(); ++i) {
    if (std::isalpha(static_cast<unsigned char>(text[i])) != 0) text[i] = '1';
  }
  return text;
}

// Why "tsxport SUBCOMMAND FILE OPTION VALUE" is refused. The file does not exist, which is told
// only when nothing is wrong with the options.
std::string RefusalOf(const Subcommand& subcommand, const OptionRow& row,
                      const std::string& value) {
  std::vector<std::string> arguments = {subcommand.text.name, "/nonexistent/x.csv", row.name,
                                        value};
  if (row.group == std::string(kArimaGroup)) {
    arguments.insert(arguments.end(), {"--model", "auto-arima"});
  }
  return test::UsageErrorOf(arguments);
}

constexpr char kNoFile[] = "/nonexistent/x.csv: cannot be read: No such file or directory";

TEST(SubcommandOptions, EveryChoiceIsTaken) {
  for (const Subcommand& one : Subcommands()) {
    for (const OptionRow* row : RowsOf(one)) {
      if (!row->choices) continue;
      for (const OptionChoice& choice : row->choices()) {
        EXPECT_EQ(RefusalOf(one, *row, Typed(choice)), kNoFile);
      }
    }
  }
}

TEST(SubcommandOptions, OtherValuesThanTheChoicesAreRefusedWithThem) {
  for (const Subcommand& one : Subcommands()) {
    for (const OptionRow* row : RowsOf(one)) {
      if (!row->choices) continue;
      const std::string refusal = RefusalOf(one, *row, "no-such");
      EXPECT_TRUE(refusal.starts_with(std::string(row->name) + ": 'no-such' is none of "))
          << refusal;
      for (const OptionChoice& choice : row->choices()) {
        EXPECT_NE(refusal.find(choice.text), std::string::npos) << choice.text;
      }
    }
  }
}

TEST(SubcommandOptions, CountsGoUpToTheBoundOfTheRow) {
  for (const Subcommand& one : Subcommands()) {
    for (const OptionRow* row : RowsOf(one)) {
      if (row->most == 0) continue;
      EXPECT_EQ(RefusalOf(one, *row, std::to_string(row->most)), kNoFile);
      EXPECT_EQ(RefusalOf(one, *row, std::to_string(row->most + 1)),
                std::string(row->name) + ": '" + std::to_string(row->most + 1) +
                    "' is not a whole number from 1 to " + std::to_string(row->most));
    }
  }
}

TEST(SubcommandOptions, TextsThatMustBeCleanAre) {
  for (const Subcommand& one : Subcommands()) {
    for (const OptionRow* row : RowsOf(one)) {
      if (!row->clean) continue;
      EXPECT_EQ(RefusalOf(one, *row, "caf\xC3\xA9"), kNoFile);
      EXPECT_EQ(RefusalOf(one, *row, "a\tb"),
                std::string(row->name) + ": 'a?b' holds control characters or is not UTF-8");
    }
  }
}

TEST(SubcommandOptions, EmptyValuesAreForTheRowToAllow) {
  for (const Subcommand& one : Subcommands()) {
    for (const OptionRow* row : RowsOf(one)) {
      if (row->value_name[0] == '\0') continue;
      EXPECT_EQ(RefusalOf(one, *row, ""), row->may_be_empty
                                              ? std::string(kNoFile)
                                              : std::string(row->name) + ": the value is empty");
    }
  }
}

}  // namespace
}  // namespace tsx::cli
