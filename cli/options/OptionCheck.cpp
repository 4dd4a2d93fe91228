#include "cli/options/OptionCheck.h"

#include <charconv>
#include <system_error>
#include <vector>

#include "cli/Errors.h"
#include "text/Quoting.h"
#include "text/Utf8.h"
#include "text/Words.h"

namespace tsx::cli {
namespace {

[[noreturn]] void Refuse(const OptionRow& row, const std::string& text, const std::string& cause) {
  throw UsageError(std::string(row.name) + ": " + text::Quoted(text) + " " + cause);
}

}  // namespace

void RefuseChoice(const OptionRow& row, const std::string& text) {
  std::vector<std::string> known;
  for (const OptionChoice& choice : row.choices()) known.push_back(choice.text);
  Refuse(row, text, "is none of " + text::Joined(known, ", "));
}

unsigned CheckedCount(const OptionRow& row, const std::string& text) {
  unsigned value = 0;
  const char* const end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, value);
  const bool good = error == std::errc() && stop == end && 1 <= value && value <= row.most;
  if (!good) Refuse(row, text, "is not a whole number from 1 to " + std::to_string(row.most));
  return value;
}

void CheckClean(const OptionRow& row, const std::string& text) {
  if (!text::IsCleanName(text)) Refuse(row, text, "holds control characters or is not UTF-8");
}

}  // namespace tsx::cli
