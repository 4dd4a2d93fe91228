#ifndef TSXPORT_CLI_ERRORS_H_
#define TSXPORT_CLI_ERRORS_H_

#include <stdexcept>
#include <string>

#include "text/Place.h"

// What ends a run of the command early. Each kind has an exit status of its own and what() is the
// line for people, without the command's name in front.
namespace tsx::cli {

inline constexpr int kExitOk = 0;
inline constexpr int kExitOutput = 1;   // an output could not be written, or memory ran out
inline constexpr int kExitInput = 2;    // the command line or the input is wrong; nothing written
inline constexpr int kExitPartial = 3;  // some series could not be fitted; the others are written

// The input file says something impossible.
class InputError : public std::runtime_error {
 public:
  InputError(const std::string& file, text::Place place, const std::string& cause)
      : std::runtime_error(text::LocatedMessage(file, place, cause)), place_(place) {}

  text::Place place() const { return place_; }

 private:
  text::Place place_;
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
