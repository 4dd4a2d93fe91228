#ifndef TSXPORT_TESTS_CLI_COMMANDS_COMMANDLINE_H_
#define TSXPORT_TESTS_CLI_COMMANDS_COMMANDLINE_H_

#include <filesystem>
#include <string>
#include <vector>

namespace test {

// What a run of the command left behind.
struct Outcome {
  int status = -1;
  std::string out;
  std::string err;
};

// A folder of its own in which the command runs, and which goes with the object.
class Sandbox {
 public:
  Sandbox();
  ~Sandbox();
  Sandbox(const Sandbox&) = delete;
  Sandbox& operator=(const Sandbox&) = delete;

  // Runs "tsxport ARGUMENTS" in the folder; `arguments` are words of a shell, so that they may
  // redirect. `before` stands in front of the command, e.g. "ulimit -f 1;".
  Outcome Run(const std::string& arguments, const std::string& before = "") const;

  void Put(const std::string& name, const std::string& text) const;
  // Copies a series of tests/data here.
  void PutData(const std::string& name) const;
  std::string Content(const std::string& name) const;
  bool Has(const std::string& name) const;
  // Names of all files there are, sorted.
  std::vector<std::string> Files() const;

 private:
  std::filesystem::path folder_;
};

}  // namespace test

#endif  // TSXPORT_TESTS_CLI_COMMANDS_COMMANDLINE_H_
