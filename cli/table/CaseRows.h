#ifndef TSXPORT_CLI_TABLE_CASEROWS_H_
#define TSXPORT_CLI_TABLE_CASEROWS_H_

#include <cstddef>
#include <vector>

namespace tsx::cli {

inline constexpr std::size_t kNoRow = static_cast<std::size_t>(-1);

// The cases of a series, and the table's row of each; kNoRow for skipped ones.
struct CaseRows {
  std::vector<std::size_t> cases;
  std::vector<std::size_t> rows;
};

// The cases that `rows` fill, rowCases[i] being that of rows[i], and between them the skipped ones
// unless these are left out as gaps.
CaseRows FindCaseRows(const std::vector<std::size_t>& rows,
                      const std::vector<std::size_t>& rowCases, bool skippedAsGaps);

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_TABLE_CASEROWS_H_
