#ifndef TSXPORT_CLI_OPTIONS_OPTIONROW_H_
#define TSXPORT_CLI_OPTIONS_OPTIONROW_H_

#include <string>
#include <vector>

// An option of the command as a row of data.
//
// All there is to say of an option stands in its row. Parsing, help pages and messages are walks
// over rows; so is whatever else tells people or programs what the command takes.
namespace tsx::cli {

enum class OptionShape {
  kArgument,  // stands on the command line without a name, and must be there
  kValue,     // takes a value, and is given once
  kRepeated,  // takes a value each time it is given
  kFlag,      // takes no value
  kHelp,      // a flag that asks for the help page
  kVersion,   // a flag that asks for the versions
};

// A value that an option takes, among others.
struct OptionChoice {
  std::string text;
  bool is_pattern = false;  // its letters in parentheses stand for numbers: "arima(p,d,q)"
};

// Where the choices of a row come from, a function; empty where there are none. That there is one
// is kept beside it, since under UBSan g++ 12 takes no function's address for a constant that is
// not null, and rows are checked while they are compiled.
class OptionChoices {
 public:
  constexpr OptionChoices() = default;
  template <typename List>
  // NOLINTNEXTLINE(google-explicit-constructor): rows read `.choices = List`
  constexpr OptionChoices(List list) : list_(list), is_there_(true) {}

  constexpr explicit operator bool() const { return is_there_; }
  std::vector<OptionChoice> operator()() const { return list_(); }

 private:
  std::vector<OptionChoice> (*list_)() = nullptr;
  bool is_there_ = false;
};

struct OptionRow {
  OptionShape shape = OptionShape::kFlag;
  const char* name = "";        // "--output"; of an argument what stands for it: "SERIES.csv"
  char letter = '\0';           // 'o' where "-o" does as well
  const char* value_name = "";  // of the value that it takes: "MODEL.xml"
  const char* group = "";       // the heading under which help pages tell it
  const char* help = "";        // sentences; wrapped where they are shown

  // How the value is checked; by none of these where a text of its own is read from it.
  OptionChoices choices{};  // it is one of them
  unsigned most = 0;        // it is a whole number from 1 to this one
  bool clean = false;       // it is UTF-8 without control characters

  bool may_be_empty = false;
};

inline constexpr char kReadingGroup[] = "What to read";
inline constexpr char kModelGroup[] = "Which model";
inline constexpr char kArimaGroup[] = "ARIMA";
inline constexpr char kWritingGroup[] = "What to write";
inline constexpr char kRunningGroup[] = "Running";
inline constexpr char kMainGroup[] = "Options";

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_OPTIONS_OPTIONROW_H_
