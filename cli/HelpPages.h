#ifndef TSXPORT_CLI_HELPPAGES_H_
#define TSXPORT_CLI_HELPPAGES_H_

#include <CLI/CLI.hpp>
#include <string>

namespace tsx::cli {

inline constexpr char kReadingGroup[] = "What to read";
inline constexpr char kModelGroup[] = "Which model";
inline constexpr char kWritingGroup[] = "What to write";
inline constexpr char kRunningGroup[] = "Running";

extern const char kMainIntroduction[];
extern const char kMainFooter[];
extern const char kFitIntroduction[];
extern const char kFitFooter[];

// Sets help pages in 80 columns: option names on the left, texts wrapped on the right.
class HelpFormatter : public CLI::Formatter {
 public:
  std::string make_usage(const CLI::App* app, std::string name) const override;
  std::string make_group(std::string group, bool isPositional,
                         std::vector<const CLI::Option*> options) const override;
  std::string make_option(const CLI::Option* option, bool isPositional) const override;
  std::string make_subcommands(const CLI::App* app, CLI::AppFormatMode mode) const override;
};

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_HELPPAGES_H_
