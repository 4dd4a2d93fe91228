#ifndef TSXPORT_CLI_ERRORS_H_
#define TSXPORT_CLI_ERRORS_H_

#include <cstddef>
#include <stdexcept>
#include <string>

// What ends a run of the command early. Each kind has an exit status of its own and what() is the
// line for people, without the command's name in front.
namespace tsx::cli {

inline constexpr int kExitOk = 0;
inline constexpr int kExitOutput = 1;   // an output could not be written, or memory ran out
inline constexpr int kExitInput = 2;    // the command line or the input is wrong; nothing written
inline constexpr int kExitPartial = 3;  // some series could not be fitted; the others are written

// A place in a text file: line and column count from 1, columns in characters. Line 0 means no
// place in particular.
struct Place {
  std::size_t line = 0;
  std::size_t column = 0;

  bool operator==(const Place&) const = default;
};

// "FILE:LINE:COLUMN: CAUSE" on one line, without LINE:COLUMN when there is no place.
std::string LocatedMessage(const std::string& file, Place place, const std::string& cause);

// The input file says something impossible.
class InputError : public std::runtime_error {
 public:
  InputError(const std::string& file, Place place, const std::string& cause)
      : std::runtime_error(LocatedMessage(file, place, cause)), place_(place) {}

  Place place() const { return place_; }

 private:
  Place place_;
};

// The command line asks for something impossible.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// An output could not be written.
class OutputError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_ERRORS_H_
