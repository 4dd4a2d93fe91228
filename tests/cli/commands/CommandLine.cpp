#include "CommandLine.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <sys/wait.h>

namespace test {
namespace {

namespace fs = std::filesystem;

std::string ContentOf(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

}  // namespace

Sandbox::Sandbox() {
  std::string pattern = (fs::temp_directory_path() / "tsxport.XXXXXX").string();
  folder_ = mkdtemp(pattern.data());
}

Sandbox::~Sandbox() { fs::remove_all(folder_); }

Outcome Sandbox::Run(const std::string& arguments, const std::string& before) const {
  const fs::path streams = folder_ / ".streams";
  fs::create_directory(streams);
  const std::string line = "cd '" + folder_.string() + "' && { " + before +
                           " '" TSXPORT_COMMAND "' " + arguments +
                           "; } > .streams/out 2> .streams/err < /dev/null";
  const int status = std::system(line.c_str());
  Outcome outcome{WIFEXITED(status) ? WEXITSTATUS(status) : -1, ContentOf(streams / "out"),
                  ContentOf(streams / "err")};
  fs::remove_all(streams);
  return outcome;
}

void Sandbox::Put(const std::string& name, const std::string& text) const {
  std::ofstream(folder_ / name, std::ios::binary) << text;
}

void Sandbox::PutData(const std::string& name) const {
  fs::copy_file(fs::path(TSXPORT_TEST_DATA) / name, folder_ / name);
}

std::string Sandbox::Content(const std::string& name) const { return ContentOf(folder_ / name); }

bool Sandbox::Has(const std::string& name) const { return fs::exists(folder_ / name); }

std::vector<std::string> Sandbox::Files() const {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(folder_)) {
    names.push_back(entry.path().filename().string());
  }
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace test
