#ifndef TSXPORT_CLI_SYSTEM_SAFEFILE_H_
#define TSXPORT_CLI_SYSTEM_SAFEFILE_H_

#include <optional>
#include <string>
#include <string_view>

#include "cli/system/Signals.h"

namespace tsx::cli {

// The file that writing to `path` makes or replaces: links are followed, also those to a file that
// is not there yet. `path` itself when that cannot be told.
std::string TargetOf(const std::string& path);

// Writes a file whole or not at all.
//
// The bytes go to a temporary file in the same folder; Commit() puts it in the place of the target
// in one step. Until then, and when anything fails, an existing target is untouched, and the
// temporary file goes with this object, or when a signal ends the command. A link is followed; an
// existing file keeps its mode. What is no regular file (a device, a pipe) is written directly, by
// Commit().
//
// Every failure is an OutputError that names the path and the cause.
class SafeFile {
 public:
  SafeFile(const std::string& path, std::string_view bytes);
  ~SafeFile();
  SafeFile(const SafeFile&) = delete;
  SafeFile& operator=(const SafeFile&) = delete;

  void Commit();

 private:
  void WriteTemporary(std::string_view bytes);

  std::string path_;                        // as given, for messages
  std::string target_;                      // with links resolved
  std::string temporary_;                   // empty: nothing to remove
  std::optional<RemovedOnSignal> removal_;  // of the temporary file
  std::string direct_;                      // bytes for a target that is no regular file
  bool is_direct_ = false;
};

}  // namespace tsx::cli

#endif  // TSXPORT_CLI_SYSTEM_SAFEFILE_H_
