#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "cli/system/SafeFile.h"
#include "cli/system/Signals.h"
#include "support/Tables.h"

namespace tsx::cli {
namespace {

namespace fs = std::filesystem;
using test::ErrorOf;

// A folder of its own for each test.
class SafeFileTest : public testing::Test {
 protected:
  SafeFileTest() {
    std::string pattern = (fs::temp_directory_path() / "safefile.XXXXXX").string();
    folder_ = mkdtemp(pattern.data());
  }
  ~SafeFileTest() override { fs::remove_all(folder_); }

  std::string Path(const std::string& name) const { return (folder_ / name).string(); }

  static std::string Content(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(in), {}};
  }
  static void Put(const std::string& path, const std::string& text) { std::ofstream(path) << text; }

  std::size_t FileCount() const {
    return static_cast<std::size_t>(
        std::distance(fs::directory_iterator(folder_), fs::directory_iterator()));
  }

  fs::path folder_;
};

// A limit on file sizes stands for the disk: writing past it fails like a full one. Leaves with
// status 7 when that is what the error says.
[[noreturn]] void WriteOnAFullDisk(const std::string& path) {
  signal(SIGXFSZ, SIG_IGN);
  const struct rlimit limit = {1000, 1000};
  setrlimit(RLIMIT_FSIZE, &limit);
  const std::string error = ErrorOf([&path] { const SafeFile file(path, std::string(5000, 'x')); });
  std::exit(error == path + ": cannot be written: File too large" ? 7 : 1);
}

// Leaves by the signal, with a file that is not in place yet.
[[noreturn]] void WriteUntil(int signal, const std::string& path) {
  const struct rlimit noCore = {0, 0};
  setrlimit(RLIMIT_CORE, &noCore);
  HandleSignals();
  const SafeFile file(path, "new");
  raise(signal);
  std::exit(1);
}

TEST_F(SafeFileTest, CommitPutsTheBytesInPlace) {
  SafeFile file(Path("a"), "new");
  file.Commit();
  EXPECT_EQ(Content(Path("a")), "new");
  EXPECT_EQ(FileCount(), 1U);
}

TEST_F(SafeFileTest, UntilThenTheOldFileStands) {
  Put(Path("a"), "old");
  SafeFile file(Path("a"), "new");
  EXPECT_EQ(Content(Path("a")), "old");
  file.Commit();
  EXPECT_EQ(Content(Path("a")), "new");
}

TEST_F(SafeFileTest, WithoutCommitNothingIsLeftBehind) {
  Put(Path("a"), "old");
  { const SafeFile file(Path("a"), "new"); }
  EXPECT_EQ(Content(Path("a")), "old");
  EXPECT_EQ(FileCount(), 1U);
}

TEST_F(SafeFileTest, ModeOfAnExistingFileIsKept) {
  Put(Path("a"), "old");
  ASSERT_EQ(chmod(Path("a").c_str(), 0640), 0);
  SafeFile(Path("a"), "new").Commit();
  EXPECT_EQ(fs::status(Path("a")).permissions(), fs::perms(0640));
}

TEST_F(SafeFileTest, NewFileFollowsTheUmask) {
  const mode_t before = umask(027);
  SafeFile(Path("a"), "new").Commit();
  umask(before);
  EXPECT_EQ(fs::status(Path("a")).permissions(), fs::perms(0640));
}

TEST_F(SafeFileTest, LinkIsFollowedAndStays) {
  Put(Path("target"), "old");
  fs::create_symlink("target", Path("link"));
  SafeFile(Path("link"), "new").Commit();
  EXPECT_TRUE(fs::is_symlink(Path("link")));
  EXPECT_EQ(Content(Path("target")), "new");
}

TEST_F(SafeFileTest, LinkToAFileThatIsNotThereIsFollowedAndStays) {
  fs::create_directory(Path("folder"));
  fs::create_symlink("folder/second", Path("first"));
  fs::create_symlink("../target", Path("folder/second"));
  SafeFile(Path("first"), "new").Commit();
  EXPECT_TRUE(fs::is_symlink(Path("first")));
  EXPECT_TRUE(fs::is_symlink(Path("folder/second")));
  EXPECT_EQ(Content(Path("target")), "new");
}

TEST_F(SafeFileTest, LinkToItself) {
  fs::create_symlink("link", Path("link"));
  EXPECT_EQ(ErrorOf([this] { const SafeFile file(Path("link"), ""); }),
            Path("link") + ": cannot be written: Too many levels of symbolic links");
}

TEST_F(SafeFileTest, DeviceIsWrittenDirectly) {
  SafeFile("/dev/null", "new").Commit();
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(SafeFileTest, FullDeviceIsToldOnCommit) {
  SafeFile file("/dev/full", "new");
  EXPECT_EQ(ErrorOf([&file] { file.Commit(); }),
            "/dev/full: cannot be written: No space left on device");
}

TEST_F(SafeFileTest, FullDiskLeavesTheOldFileAndNoTemporary) {
  Put(Path("a"), "old");
  EXPECT_EXIT(WriteOnAFullDisk(Path("a")), testing::ExitedWithCode(7), "");
  EXPECT_EQ(Content(Path("a")), "old");
  EXPECT_EQ(FileCount(), 1U);
}

TEST_F(SafeFileTest, SignalThatEndsTheCommandLeavesTheOldFileAndNoTemporary) {
  Put(Path("a"), "old");
  for (const int signal : {SIGHUP, SIGINT, SIGPIPE, SIGQUIT, SIGTERM}) {
    EXPECT_EXIT(WriteUntil(signal, Path("a")), testing::KilledBySignal(signal), "");
    EXPECT_EQ(Content(Path("a")), "old");
    EXPECT_EQ(FileCount(), 1U);
  }
}

TEST_F(SafeFileTest, SignalLeavesAFileThatIsInPlace) {
  const auto writeAndEnd = [this] {
    HandleSignals();
    SafeFile file(Path("a"), "new");
    file.Commit();
    raise(SIGTERM);
  };
  EXPECT_EXIT(writeAndEnd(), testing::KilledBySignal(SIGTERM), "");
  EXPECT_EQ(Content(Path("a")), "new");
  EXPECT_EQ(FileCount(), 1U);
}

TEST_F(SafeFileTest, SignalThatIsIgnoredStaysSo) {
  const auto writeOn = [this] {
    signal(SIGHUP, SIG_IGN);
    HandleSignals();
    SafeFile file(Path("a"), "new");
    raise(SIGHUP);
    file.Commit();
    std::exit(7);
  };
  EXPECT_EXIT(writeOn(), testing::ExitedWithCode(7), "");
  EXPECT_EQ(Content(Path("a")), "new");
}

TEST_F(SafeFileTest, FolderThatIsNotThere) {
  EXPECT_EQ(ErrorOf([this] { const SafeFile file(Path("no/a"), ""); }),
            Path("no/a") + ": cannot be written: No such file or directory");
}

TEST_F(SafeFileTest, FolderInThePlaceOfTheFile) {
  EXPECT_EQ(ErrorOf([this] { const SafeFile file(folder_.string(), ""); }),
            folder_.string() + ": cannot be written: Is a directory");
}

}  // namespace
}  // namespace tsx::cli
