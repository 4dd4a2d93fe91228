#include "cli/system/SafeFile.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <filesystem>
#include <optional>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

#include "cli/Errors.h"
#include "text/Quoting.h"

namespace tsx::cli {
namespace {

[[noreturn]] void Fail(const std::string& path, int error) {
  throw OutputError(text::Printable(path) +
                    ": cannot be written: " + std::generic_category().message(error));
}

// An open file descriptor. Failures are told with the path of the file it stands for.
class Descriptor {
 public:
  Descriptor(std::string path, int number) : path_(std::move(path)), number_(number) {
    if (number_ < 0) Fail(path_, errno);
  }
  ~Descriptor() {
    if (number_ >= 0) close(number_);
  }
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  void Write(std::string_view bytes) const {
    while (!bytes.empty()) {
      const ssize_t count = write(number_, bytes.data(), bytes.size());
      if (count < 0 && errno != EINTR) Fail(path_, errno);
      if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
    }
  }

  void SetMode(mode_t mode) const {
    if (fchmod(number_, mode) != 0) Fail(path_, errno);
  }

  void Sync() const {
    if (fsync(number_) != 0) Fail(path_, errno);
  }

  // Closing may tell of writes that failed late.
  void Close() {
    const int number = number_;
    number_ = -1;
    if (close(number) != 0) Fail(path_, errno);
  }

 private:
  std::string path_;
  int number_;
};

// What is at the path; empty when nothing is.
std::optional<struct stat> StatusOf(const std::string& path) {
  struct stat status {};
  if (stat(path.c_str(), &status) == 0) return status;
  if (errno != ENOENT) Fail(path, errno);
  return std::nullopt;
}

// Makes a new file beside `target`, whose name it returns.
std::string MakeTemporary(const std::string& target, int& descriptor) {
  const std::filesystem::path folder = std::filesystem::path(target).parent_path();
  const std::string front = (folder / ".tsxport.").string() + std::to_string(getpid()) + ".";
  for (int attempt = 0;; ++attempt) {
    std::string name = front + std::to_string(attempt) + ".tmp";
    descriptor = open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    if (descriptor >= 0 || errno != EEXIST) return name;
  }
}

}  // namespace

std::string TargetOf(const std::string& path) {
  namespace fs = std::filesystem;
  constexpr int kMostLinks = 40;  // as many as the system follows
  std::error_code error;
  fs::path target = path;
  for (int i = 0; i < kMostLinks && fs::is_symlink(target, error); ++i) {
    target = target.parent_path() / fs::read_symlink(target, error);
  }
  target = fs::weakly_canonical(fs::absolute(target, error), error);
  return error ? path : target.string();
}

SafeFile::SafeFile(const std::string& path, std::string_view bytes)
    : path_(path), target_(TargetOf(path)) {
  const auto status = StatusOf(path);
  if (status && S_ISDIR(status->st_mode)) Fail(path, EISDIR);
  if (status && access(path.c_str(), W_OK) != 0) Fail(path, errno);
  is_direct_ = status && !S_ISREG(status->st_mode);
  if (is_direct_) {
    direct_ = bytes;
  } else {
    WriteTemporary(bytes);
  }
}

SafeFile::~SafeFile() {
  if (!temporary_.empty()) unlink(temporary_.c_str());
}

void SafeFile::WriteTemporary(std::string_view bytes) {
  int number = -1;
  {
    const SignalsHeld held;  // a file that is there is marked
    temporary_ = MakeTemporary(target_, number);
    if (number >= 0) removal_.emplace(temporary_.c_str());
  }
  Descriptor file(path_, number);
  try {
    if (const auto status = StatusOf(target_)) file.SetMode(status->st_mode & 07777U);
    file.Write(bytes);
    file.Sync();
    file.Close();
  } catch (...) {  // this object is not complete yet, so its destructor will not run
    unlink(temporary_.c_str());
    throw;
  }
}

void SafeFile::Commit() {
  if (is_direct_) {
    Descriptor file(path_, open(target_.c_str(), O_WRONLY | O_CLOEXEC));
    file.Write(direct_);
    file.Close();
    return;
  }
  if (std::rename(temporary_.c_str(), target_.c_str()) != 0) Fail(path_, errno);
  removal_.reset();
  temporary_.clear();
}

}  // namespace tsx::cli
