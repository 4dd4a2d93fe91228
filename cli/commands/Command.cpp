#include "cli/commands/Command.h"

#include <algorithm>
#include <exception>
#include <memory>
#include <new>

#include <tsffit/Version.h>
#include <tsxport/Version.h>

#include "cli/Errors.h"
#include "cli/commands/Subcommand.h"
#include "cli/options/HelpPages.h"
#include "cli/options/Parser.h"
#include "text/Quoting.h"

namespace tsx::cli {
namespace {

constexpr char kMainIntroduction[] =
    "tsxport fits exponential smoothing and ARIMA models, and Croston's method for\n"
    "intermittent demand, to time series and writes them as XML documents, with all\n"
    "the numbers that forecasting needs to go on from.";

constexpr char kMainFooter[] =
    R"(A first try:
  tsxport fit airpassengers.csv                       what is in it, for people
  tsxport fit airpassengers.csv -o model.xml          the model as a document
  tsxport fit --help                                  all there is to choose

Exit status: 0 all done, 1 an output could not be written, 2 the command line or
the input is wrong and nothing was written, 3 some series could not be fitted.
)";

constexpr CommandText kMainText = {"tsxport", kMainIntroduction, kMainFooter};

constexpr OptionRow kMainRows[] = {{.shape = OptionShape::kHelp,
                                    .name = "--help",
                                    .letter = 'h',
                                    .group = kMainGroup,
                                    .help = "Show this page"},
                                   {.shape = OptionShape::kVersion,
                                    .name = "--version",
                                    .group = kMainGroup,
                                    .help = "Show the versions of library and core"}};

CommandSyntax MainSyntax() {
  CommandSyntax syntax{kMainText.name, {}};
  for (const OptionRow& row : kMainRows) syntax.options.push_back({&row});
  return syntax;
}

std::string MainPage() {
  std::vector<CommandText> subcommands;
  for (const Subcommand& one : Subcommands()) subcommands.push_back(one.text);
  return MainHelpPage(kMainText, MainSyntax().options, subcommands);
}

std::string VersionText() {
  return "tsxport " TSXPORT_VERSION " (library libtsxport " TSXPORT_VERSION
         ", forecasting core libtsfcore " +
         std::string(tsffit::CoreVersion()) + ")\n";
}

int Print(const Streams& io, const std::string& page) {
  io.out << page;
  if (!io.out.flush()) throw OutputError("standard output: cannot be written");
  return kExitOk;
}

// What stands first is an option or a subcommand that there is.
void CheckFirst(const std::vector<std::string>& arguments) {
  if (arguments.empty()) throw UsageError("give a command; see tsxport --help");
  const std::string& first = arguments.front();
  const bool known =
      std::any_of(Subcommands().begin(), Subcommands().end(),
                  [&first](const Subcommand& one) { return first == one.text.name; });
  if (known || first.starts_with('-')) return;
  throw UsageError("there is no command " + text::Quoted(first) + "; see tsxport --help");
}

int Run(const std::vector<std::string>& arguments, const Streams& io) {
  CheckFirst(arguments);
  std::vector<std::unique_ptr<Invocation>> invocations;
  std::vector<CommandSyntax> syntaxes;
  for (const Subcommand& one : Subcommands()) {
    invocations.push_back(one.begin());
    syntaxes.push_back({one.text.name, invocations.back()->Options()});
  }

  const ParsedLine line = Parse(MainSyntax(), syntaxes, arguments);
  using Asked = ParsedLine::Asked;
  if (line.asked == Asked::kVersion) return Print(io, VersionText());
  if (line.asked == Asked::kRun) return invocations[*line.subcommand]->Run(io);
  if (!line.subcommand) return Print(io, MainPage());
  return Print(io,
               HelpPage(Subcommands()[*line.subcommand].text, syntaxes[*line.subcommand].options));
}

int Fail(const Streams& io, const char* message, int status) {
  io.err << "tsxport: " << message << std::endl;
  return status;
}

}  // namespace

int RunCommand(const std::vector<std::string>& arguments, const Streams& io) {
  try {
    return Run(arguments, io);
  } catch (const UsageError& error) {
    return Fail(io, error.what(), kExitInput);
  } catch (const InputError& error) {
    return Fail(io, error.what(), kExitInput);
  } catch (const std::bad_alloc&) {
    return Fail(io, "memory ran out", kExitOutput);
  } catch (const std::exception& error) {
    return Fail(io, error.what(), kExitOutput);
  }
}

}  // namespace tsx::cli
