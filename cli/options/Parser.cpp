#include "cli/options/Parser.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "cli/Errors.h"
#include "text/Quoting.h"

namespace tsx::cli {
namespace {

// "-o,--output", as the parser library wants it.
std::string NamesOf(const OptionRow& row) {
  return row.letter == '\0' ? row.name : std::string{'-', row.letter, ','} + row.name;
}

// Adds one option to an app, by where its texts go.
class OptionAdder {
 public:
  OptionAdder(CLI::App& app, const OptionRow& row) : app_(app), row_(row) {}

  CLI::Option* operator()(std::monostate) const {
    return row_.shape == OptionShape::kHelp ? app_.set_help_flag(NamesOf(row_))
                                            : app_.set_version_flag(NamesOf(row_));
  }

  CLI::Option* operator()(bool* flag) const { return app_.add_flag(NamesOf(row_), *flag); }

  CLI::Option* operator()(std::string* text) const {
    CLI::Option* const option = app_.add_option(NamesOf(row_), *text);
    return row_.shape == OptionShape::kArgument ? option->required()
                                                : option->type_name(row_.value_name);
  }

  // One value at a time, lest the option swallow what follows it.
  CLI::Option* operator()(std::vector<std::string>* texts) const {
    return app_.add_option(NamesOf(row_), *texts)
        ->type_name(row_.value_name)
        ->expected(1)
        ->take_all();
  }

 private:
  CLI::App& app_;
  const OptionRow& row_;
};

// The parser library's view of one command.
struct App {
  CLI::App* app;
  const CommandSyntax* syntax;
  std::vector<const CLI::Option*> options;  // in the order of the syntax
};

App AddOptions(CLI::App& app, const CommandSyntax& syntax) {
  App added{&app, &syntax, {}};
  for (const BoundOption& option : syntax.options) {
    added.options.push_back(std::visit(OptionAdder(app, *option.row), option.destination));
  }
  return added;
}

// An empty value is most often a variable of a script that was never set. Text may be empty.
void CheckValues(const App& parsed) {
  for (std::size_t i = 0; i < parsed.options.size(); ++i) {
    const OptionRow& row = *parsed.syntax->options[i].row;
    for (const std::string& value : parsed.options[i]->results()) {
      if (!value.empty() || row.may_be_empty) continue;
      throw UsageError(std::string(row.name) + ": the value is empty");
    }
  }
}

std::optional<std::size_t> ParsedAmong(const std::vector<App>& subcommands) {
  const auto found = std::find_if(subcommands.begin(), subcommands.end(),
                                  [](const App& one) { return one.app->parsed(); });
  if (found == subcommands.end()) return std::nullopt;
  return static_cast<std::size_t>(found - subcommands.begin());
}

}  // namespace

ParsedLine Parse(const CommandSyntax& command, const std::vector<CommandSyntax>& subcommands,
                 const std::vector<std::string>& arguments) {
  CLI::App app{"", command.name};
  app.require_subcommand(1);
  AddOptions(app, command);
  std::vector<App> parsers;
  parsers.reserve(subcommands.size());
  for (const CommandSyntax& one : subcommands) {
    parsers.push_back(AddOptions(*app.add_subcommand(one.name, ""), one));
  }

  using Asked = ParsedLine::Asked;
  try {
    app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));  // back to front
  } catch (const CLI::CallForHelp&) {
    return {Asked::kHelp, ParsedAmong(parsers)};
  } catch (const CLI::CallForVersion&) {
    return {Asked::kVersion, ParsedAmong(parsers)};
  } catch (const CLI::ParseError& error) {
    const std::optional<std::size_t> parsed = ParsedAmong(parsers);
    const std::string name = parsed ? std::string(subcommands[*parsed].name) + " " : "";
    throw UsageError(text::Printable(error.what()) + "; see " + command.name + " " + name +
                     "--help");
  }
  const std::optional<std::size_t> parsed = ParsedAmong(parsers);
  CheckValues(parsers[*parsed]);
  return {Asked::kRun, parsed};
}

}  // namespace tsx::cli
