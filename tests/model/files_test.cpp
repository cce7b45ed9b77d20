#include "model/files.h"

#include "model/errors.h"
#include "support/directories.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <filesystem>
#include <functional>
#include <random>
#include <string>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace orb::tests {
namespace {

namespace fs = std::filesystem;

using model::FileError;
using model::ReadFile;
using model::ReplaceFile;
using testing::HasSubstr;

/// The status that a child process running this function ends with; -1 when it did not exit.
int InChild(const std::function<int()>& run) {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(run());
  int status = 0;
  ::waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

/// 0 when the file cannot be replaced and FileError says so.
int Refused(const fs::path& file) {
  try {
    ReplaceFile(file, std::string(100000, 'n'));
  } catch (const FileError& error) {
    return std::string(error.what()).find(file.string()) == std::string::npos ? 2 : 0;
  }
  return 1;
}

/// As Refused, for a user without the rights of root.
int RefusedToNobody(const fs::path& file) {
  return InChild([&] {
    constexpr uid_t nobody = 65534;
    if (::geteuid() == 0 && ::setuid(nobody) != 0) return 3;
    return Refused(file);
  });
}

TEST(ReplaceFile, WritesTheBytesAndLeavesNothingBeside) {
  const TemporaryDirectory directory;
  const fs::path file = directory.Path() / "a.orb";
  for (const std::string& bytes :
       {std::string("new\0\xff", 5), std::string(), std::string(300000, 'x')}) {
    ReplaceFile(file, bytes);
    EXPECT_EQ(ReadFile(file), bytes);
  }
  EXPECT_EQ(directory.EntryCount(), 1);
}

TEST(ReplaceFile, KeepsPermissionsAndGivesTheUsualOnes) {
  const TemporaryDirectory directory;
  const fs::path old = directory.Write("old.orb", "old");
  fs::permissions(old, fs::perms(0640));
  ReplaceFile(old, "new");
  EXPECT_EQ(fs::status(old).permissions(), fs::perms(0640));
  const mode_t mask = ::umask(027);
  ReplaceFile(directory.Path() / "new.orb", "new");
  ::umask(mask);
  EXPECT_EQ(fs::status(directory.Path() / "new.orb").permissions(), fs::perms(0640));
}

TEST(ReplaceFile, FollowsALink) {
  const TemporaryDirectory directory;
  fs::create_directory(directory.Path() / "far");
  directory.Write("far/real.orb", "old");
  fs::create_symlink("far/real.orb", directory.Path() / "link.orb");
  ReplaceFile(directory.Path() / "link.orb", "new");
  EXPECT_TRUE(fs::is_symlink(directory.Path() / "link.orb"));
  EXPECT_EQ(ReadFile(directory.Path() / "far/real.orb"), "new");
  fs::create_symlink("far/later.orb", directory.Path() / "dangling.orb");
  ReplaceFile(directory.Path() / "dangling.orb", "new");
  EXPECT_TRUE(fs::is_symlink(directory.Path() / "dangling.orb"));
  EXPECT_EQ(ReadFile(directory.Path() / "far/later.orb"), "new");
}

TEST(ReplaceFile, TakesTheLongestNameThereIs) {
  const TemporaryDirectory directory;
  const fs::path file = directory.Path() / (std::string(251, 'a') + ".orb");
  ReplaceFile(file, "new");
  EXPECT_EQ(ReadFile(file), "new");
  EXPECT_EQ(directory.EntryCount(), 1);
}

TEST(ReplaceFile, RefusesWhatIsNoFile) {
  const TemporaryDirectory directory;
  fs::create_directory(directory.Path() / "sub");
  ASSERT_EQ(::mkfifo((directory.Path() / "pipe").c_str(), 0600), 0);
  for (const fs::path& target :
       {directory.Path() / "sub", directory.Path() / "pipe", fs::path("/dev/full"),
        directory.Path() / "missing" / "a.orb", fs::path("/proc/a.orb")}) {
    EXPECT_EQ(Refused(target), 0) << target;
  }
  EXPECT_THROW(ReplaceFile("", "new"), FileError);
  EXPECT_EQ(directory.EntryCount(), 2);
}

TEST(ReplaceFile, LeavesAWriteProtectedFile) {
  const TemporaryDirectory directory;
  const fs::path file = directory.Write("a.orb", "old");
  fs::permissions(file, fs::perms(0444));
  fs::permissions(directory.Path(), fs::perms(0777));
  EXPECT_EQ(RefusedToNobody(file), 0);
  EXPECT_EQ(ReadFile(file), "old");
}

TEST(ReplaceFile, LeavesTheOldFileWhenTheDirectoryCannotBeWritten) {
  const TemporaryDirectory directory;
  const fs::path file = directory.Write("a.orb", "old");
  fs::permissions(directory.Path(), fs::perms(0555));
  const int status = RefusedToNobody(file);
  fs::permissions(directory.Path(), fs::perms(0755));
  EXPECT_EQ(status, 0);
  EXPECT_EQ(ReadFile(file), "old");
  EXPECT_EQ(directory.EntryCount(), 1);
}

TEST(ReplaceFile, LeavesTheOldFileWhenTheDiskIsFull) {
  const TemporaryDirectory directory;
  const fs::path file = directory.Write("a.orb", "old");
  EXPECT_EQ(InChild([&] {
              ::signal(SIGXFSZ, SIG_IGN);
              const rlimit limit{5000, 5000};
              return ::setrlimit(RLIMIT_FSIZE, &limit) != 0 ? 3 : Refused(file);
            }),
            0);
  EXPECT_EQ(ReadFile(file), "old");
  EXPECT_EQ(directory.EntryCount(), 1);
}

TEST(ReplaceFile, IsWholeWhenTheProgramIsKilled) {
  const TemporaryDirectory directory;
  const fs::path file = directory.Path() / "a.orb";
  const std::string odd(400000, 'o');
  const std::string even(500000, 'e');
  ReplaceFile(file, odd);
  std::mt19937 random(1);
  for (int i = 0; i < 40; ++i) {
    const pid_t child = ::fork();
    if (child == 0) {
      while (true) {
        ReplaceFile(file, even);
        ReplaceFile(file, odd);
      }
    }
    std::this_thread::sleep_for(std::chrono::microseconds(random() % 8000));
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    const std::string bytes = ReadFile(file);
    ASSERT_TRUE(bytes == odd || bytes == even) << bytes.size() << " bytes";
  }
}

TEST(ReadFile, SaysWhyItCannot) {
  const TemporaryDirectory directory;
  for (const fs::path& path : {directory.Path(), directory.Path() / "missing"}) {
    try {
      ReadFile(path);
      ADD_FAILURE() << path;
    } catch (const FileError& error) {
      EXPECT_THAT(error.what(), HasSubstr(path.string()));
    }
  }
}

TEST(LowerCaseName, ChangesTheFilesOwnNameAlone) {
  const TemporaryDirectory directory;
  const fs::path sub = directory.Path() / "Sub";
  fs::create_directory(sub);
  directory.Write("Sub/Only.ORB", "");
  directory.Write("Sub/Both.orb", "");
  directory.Write("Sub/both.orb", "");
  EXPECT_EQ(model::LowerCaseName(sub / "New.ORB"), sub / "new.orb");
  EXPECT_EQ(model::LowerCaseName(sub / "Only.ORB"), sub / "Only.ORB");
  EXPECT_EQ(model::LowerCaseName(sub / "Both.orb"), sub / "both.orb");
}

}  // namespace
}  // namespace orb::tests
