#include "cli/table/CaseRows.h"

namespace tsx::cli {

CaseRows FindCaseRows(const std::vector<std::size_t>& rows,
                      const std::vector<std::size_t>& rowCases, bool skippedAsGaps) {
  CaseRows found;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const std::size_t at = rowCases[i];
    const std::size_t next = found.cases.empty() ? 0 : found.cases.back() + 1;
    for (std::size_t skipped = next; skipped < at && !skippedAsGaps; ++skipped) {
      found.cases.push_back(skipped);
      found.rows.push_back(kNoRow);
    }
    found.cases.push_back(at);
    found.rows.push_back(rows[i]);
  }
  return found;
}

}  // namespace tsx::cli
