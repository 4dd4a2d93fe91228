#ifndef TSXPORT_CLI_OPTIONS_VALUEREADER_H_
#define TSXPORT_CLI_OPTIONS_VALUEREADER_H_

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "cli/options/NamedValue.h"
#include "text/Quoting.h"
#include "text/Words.h"

namespace tsx::cli {

// Takes pieces off the front of an option's value that has a grammar of its own. Blanks between
// the pieces do not count. What is not there ends in a UsageError that names option, value and
// cause.
class ValueReader {
 public:
  // Reads `rest`, a part of the value `whole` of the option named `option`; all are borrowed.
  ValueReader(const char* option, std::string_view whole, std::string_view rest);

  [[noreturn]] void Fail(const std::string& cause) const;

  bool AtEnd() const { return rest_.empty(); }
  bool Next(char c) const { return rest_.starts_with(c); }

  bool Take(char c);    // false: something else is next, and stays
  void Expect(char c);  // takes it

  // Takes what stands before the next mark, one of ,=()[], or before the end.
  std::string_view Word();

  // Takes a whole number.
  unsigned Count(unsigned least, unsigned most);

  // What `word` stands for; it must be in the table.
  template <typename Row, std::size_t kCount>
  auto Named(const Row (&table)[kCount], std::string_view word) const {
    const auto value = FindNamed(table, word);
    if (!value) {
      Fail(text::Quoted(word) + " is none of " + text::Joined(NamesIn(table), ", "));
    }
    return *value;
  }

 private:
  [[noreturn]] void FailWithout(const std::string& wanted) const;
  void SkipBlanks();

  const char* option_;
  std::string_view whole_;
  std::string_view rest_;
};

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_OPTIONS_VALUEREADER_H_
