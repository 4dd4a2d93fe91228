#ifndef TSXPORT_CLI_OPTIONS_HELPPAGES_H_
#define TSXPORT_CLI_OPTIONS_HELPPAGES_H_

#include <CLI/CLI.hpp>
#include <string>

namespace tsx::cli {

inline constexpr char kReadingGroup[] = "What to read";
inline constexpr char kModelGroup[] = "Which model";
inline constexpr char kArimaGroup[] = "ARIMA";
inline constexpr char kWritingGroup[] = "What to write";
inline constexpr char kRunningGroup[] = "Running";

extern const char kMainIntroduction[];
extern const char kMainFooter[];
extern const char kFitIntroduction[];
extern const char kFitFooter[];

// Sets help pages in 80 columns: introduction, usage, commands, options group by group with their
// texts wrapped on the right, footer.
class HelpFormatter : public CLI::FormatterBase {
 public:
  std::string make_help(const CLI::App* app, std::string name,
                        CLI::AppFormatMode mode) const override;
};

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_OPTIONS_HELPPAGES_H_
