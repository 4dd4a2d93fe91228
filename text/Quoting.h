#ifndef TSXPORT_TEXT_QUOTING_H_
#define TSXPORT_TEXT_QUOTING_H_

#include <string>
#include <string_view>

// Text of anybody's, made fit for a place of ours.
namespace tsx::text {

// `text` fit for one line of a terminal: control characters and bytes that are not UTF-8 become
// '?'.
std::string Printable(std::string_view text);

// Printable text in single quotes, cut after 40 characters.
std::string Quoted(std::string_view text);

// `text` as one cell of a CSV file, in double quotes where it needs them under either separator.
std::string CsvField(std::string_view text);

}  // namespace tsx::text

#endif  // TSXPORT_TEXT_QUOTING_H_
