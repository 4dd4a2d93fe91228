// A host that knows its cases by their times: it makes a calendar of the working days that a table
// holds, and tells the times of that calendar, as those of a document are told.

#include <cstdint>
#include <iostream>
#include <string>
#include <vector>

#include <tsxport/tsxport.h>
#include <tsxtimes/tsxtimes.h>

namespace {

// Empty, and a message, where a text is no time.
std::vector<std::int64_t> TicksOf(const std::vector<std::string>& texts) {
  std::vector<std::int64_t> ticks;
  for (const std::string& text : texts) {
    const tsxtimes::ParsedTime time = tsxtimes::ParseTime(text);
    if (!time.value) {
      const std::string cause = time.impossible.empty() ? "no time" : time.impossible;
      std::cerr << text << ", at " << time.place << ": " << cause << '\n';
      return {};
    }
    ticks.push_back(time.value->tick);
  }
  return ticks;
}

}  // namespace

int main() {
  const std::vector<std::string> column = {"2021-01-04", "2021-01-05", "2021-01-06", "2021-01-07",
                                           "2021-01-08", "2021-01-11", "2021-01-13"};
  const std::vector<std::int64_t> ticks = TicksOf(column);
  if (ticks.empty()) return 1;

  const tsxtimes::DateAxis axis = tsxtimes::MakeDateAxis({tsxtimes::TimeUnit::kDay}, ticks);
  if (!axis.Fault().empty()) {
    std::cerr << axis.Fault() << '\n';
    return 1;
  }
  std::cout << axis.name << ", a season of " << axis.SeasonLength() << '\n';

  // The day that the table skips is a gap: the cases are the rows of the table, and those that
  // follow.
  const TSXDateSpec spec = tsxtimes::MakeDateSpec(axis, {.skipped_as_gaps = true});
  const auto calendar = tsxtimes::CalendarTimes::Of(spec);
  if (!calendar) return 1;
  for (std::size_t i = 0; i < column.size() + 3; ++i) {
    std::cout << i << ' ' << calendar->CaseText(static_cast<std::int64_t>(i)) << '\n';
  }
  return 0;
}
