#ifndef TSXPORT_CLI_OPTIONS_OPTIONTABLE_H_
#define TSXPORT_CLI_OPTIONS_OPTIONTABLE_H_

#include <algorithm>
#include <cstddef>
#include <span>
#include <string>
#include <type_traits>
#include <variant>
#include <vector>

#include "cli/options/OptionRow.h"

// Tables of options, and the structs of texts that what is typed goes to.
//
//   struct RunningArguments { std::string jobs; };
//   constexpr OptionEntry<RunningArguments> kRows[] = {
//       {{.shape = OptionShape::kValue, .name = "--jobs", ...}, &RunningArguments::jobs}};
//   static_assert(AreSound<RunningArguments>(kRows));
namespace tsx::cli {

// A row, and the member of `Arguments` that its texts go to; none for kHelp and kVersion.
template <typename Arguments>
struct OptionEntry {
  using Member = std::variant<std::monostate, bool Arguments::*, std::string Arguments::*,
                              std::vector<std::string> Arguments::*>;
  OptionRow row;
  Member member{};
};

template <typename Arguments>
using OptionTable = std::span<const OptionEntry<Arguments>>;

// A row, and the place in memory that its texts go to.
struct BoundOption {
  const OptionRow* row;
  std::variant<std::monostate, bool*, std::string*, std::vector<std::string>*> destination{};
};

// Adds the options of `table` to `all`, to go to `arguments`, which must outlive them.
template <typename Arguments>
void Bind(OptionTable<Arguments> table, Arguments& arguments, std::vector<BoundOption>& all) {
  for (const OptionEntry<Arguments>& entry : table) {
    BoundOption& option = all.emplace_back(BoundOption{&entry.row});
    std::visit(
        [&](auto member) {
          if constexpr (!std::is_same_v<decltype(member), std::monostate>) {
            option.destination = &(arguments.*member);
          }
        },
        entry.member);
  }
}

// The row whose texts go to `member`, which one row of the table has.
template <typename Arguments, typename Value>
const OptionRow& RowOf(OptionTable<Arguments> table, Value Arguments::*member) {
  const typename OptionEntry<Arguments>::Member wanted = member;
  return std::find_if(table.begin(), table.end(),
                      [&wanted](const auto& entry) { return entry.member == wanted; })
      ->row;
}

// The first option of the table whose texts are not what they are when nothing is typed; null when
// there is none.
template <typename Arguments>
const OptionRow* FirstGiven(OptionTable<Arguments> table, const Arguments& given) {
  const Arguments untyped{};
  const auto isGiven = [&](const OptionEntry<Arguments>& entry) {
    return std::visit(
        [&](auto member) {
          if constexpr (std::is_same_v<decltype(member), std::monostate>) {
            return false;
          } else {
            return given.*member != untyped.*member;
          }
        },
        entry.member);
  };
  const auto found = std::find_if(table.begin(), table.end(), isGiven);
  return found == table.end() ? nullptr : &found->row;
}

// Whether a row says what its shape needs, and checks nothing or its value in one way.
constexpr bool IsSound(const OptionRow& row) {
  const auto says = [](const char* text) { return *text != '\0'; };
  const bool isArgument = row.shape == OptionShape::kArgument;
  const bool takesValue = row.shape == OptionShape::kValue || row.shape == OptionShape::kRepeated;
  const bool hasDashes = row.name[0] == '-' && row.name[1] == '-';
  const int checks = int{bool{row.choices}} + int{row.most != 0} + int{row.clean};
  return says(row.name) && says(row.help) && hasDashes != isArgument &&
         says(row.group) != isArgument && says(row.value_name) == takesValue &&
         checks <= int{takesValue};
}

// Whether the row is sound and goes to a member of the type that takes it.
template <typename Arguments>
constexpr bool IsSound(const OptionEntry<Arguments>& entry) {
  constexpr std::size_t kMemberOfShape[] = {2, 2, 3, 1, 0, 0};  // by OptionShape
  return IsSound(entry.row) &&
         entry.member.index() == kMemberOfShape[static_cast<std::size_t>(entry.row.shape)];
}

template <typename Arguments>
constexpr bool AreSound(OptionTable<Arguments> table) {
  return std::all_of(table.begin(), table.end(),
                     [](const OptionEntry<Arguments>& entry) { return IsSound(entry); });
}

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_OPTIONS_OPTIONTABLE_H_
