#include "model/files.h"

#include "model/errors.h"
#include "support/directories.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <fcntl.h>
#include <functional>
#include <random>
#include <sys/file.h>
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

/// 0 when a FileError names the file.
int Refused(const fs::path& file, const std::function<void()>& use) {
  try {
    use();
  } catch (const FileError& error) {
    return std::string(error.what()).find(file.string()) == std::string::npos ? 2 : 0;
  }
  return 1;
}

int ReplaceRefused(const fs::path& file) {
  return Refused(file, [&] { ReplaceFile(file, std::string(100000, 'n')); });
}

TEST(ReplaceFile, WritesTheBytesAndLeavesNothingBeside) {
  const TemporaryDirectory directory;
  const fs::path file = directory.Path() / (std::string(251, 'a') + ".orb");
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

TEST(ReplaceFile, LeavesAFileToItsOwnerAndGroup) {
  if (::geteuid() != 0) GTEST_SKIP() << "only root can give files away";
  constexpr uid_t alice = 1234;
  constexpr gid_t players = 4321;
  const TemporaryDirectory directory;
  const fs::path file = directory.Write("a.orb", "old");
  ASSERT_EQ(::chown(file.c_str(), alice, players), 0);
  fs::permissions(file, fs::perms(0660));
  ReplaceFile(file, "new");
  struct stat status {};
  ASSERT_EQ(::stat(file.c_str(), &status), 0);
  EXPECT_EQ(status.st_uid, alice);
  EXPECT_EQ(status.st_gid, players);
  EXPECT_EQ(status.st_mode & 07777, 0660U);
}

TEST(ReplaceFile, RefusesALinkThatLeadsToItself) {
  const TemporaryDirectory directory;
  const fs::path loop = directory.Path() / "loop.orb";
  fs::create_symlink("loop.orb", loop);
  EXPECT_THAT([&] { ReplaceFile(loop, "new"); },
              testing::ThrowsMessage<FileError>(testing::HasSubstr("leads to itself")));
}

TEST(ReplaceFile, FollowsALink) {
  const TemporaryDirectory directory;
  fs::create_directory(directory.Path() / "far");
  directory.Write("far/old.orb", "old");
  for (const char* name : {"old.orb", "dangling.orb"}) {
    fs::create_symlink(fs::path("far") / name, directory.Path() / name);
    ReplaceFile(directory.Path() / name, "new");
    EXPECT_TRUE(fs::is_symlink(directory.Path() / name));
    EXPECT_EQ(ReadFile(directory.Path() / "far" / name), "new");
  }
}

TEST(Files, WhatIsNoFileIsRefused) {
  const TemporaryDirectory directory;
  fs::create_directory(directory.Path() / "sub");
  ASSERT_EQ(::mkfifo((directory.Path() / "pipe").c_str(), 0600), 0);
  for (const fs::path& target :
       {directory.Path() / "sub", directory.Path() / "pipe", fs::path("/dev/full"),
        directory.Path() / "missing" / "a.orb", fs::path("/proc/a.orb"), fs::path()}) {
    EXPECT_EQ(ReplaceRefused(target), 0) << target;
  }
  EXPECT_EQ(directory.EntryCount(), 2);
  // Takes no room on the disk, and all of the memory if it were read.
  fs::resize_file(directory.Write("sparse", ""), 1'000'000'000'000);
  for (const fs::path& path :
       {directory.Path(), directory.Path() / "missing", directory.Path() / "pipe",
        directory.Path() / "sparse", fs::path("/dev/zero"), fs::path("/dev/null")}) {
    EXPECT_EQ(Refused(path, [&] { ReadFile(path); }), 0) << path;
  }
  EXPECT_EQ(ReadFile("/dev/null", model::Streams::Read), "");
  EXPECT_EQ(Refused("/dev/zero", [] { ReadFile("/dev/zero", model::Streams::Read); }), 0);
}

TEST(ReplaceFile, LeavesTheOldFileWhenItCannotBeReplaced) {
  constexpr uid_t nobody = 65534;
  const auto asNobody = [] { return ::geteuid() == 0 ? ::setuid(nobody) : 0; };
  const auto withAFullDisk = [] {
    ::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{5000, 5000};
    return ::setrlimit(RLIMIT_FSIZE, &limit);
  };
  struct Case {
    int File, Directory;
    std::function<int()> Become;
  };
  for (const Case& c : std::vector<Case>{
           {0444, 0777, asNobody}, {0644, 0555, asNobody}, {0644, 0755, withAFullDisk}}) {
    const TemporaryDirectory directory;
    const fs::path file = directory.Write("a.orb", "old");
    fs::permissions(file, fs::perms(c.File));
    fs::permissions(directory.Path(), fs::perms(c.Directory));
    const pid_t child = ::fork();
    if (child == 0) ::_exit(c.Become() != 0 ? 3 : ReplaceRefused(file));
    int status = -1;
    ::waitpid(child, &status, 0);
    fs::permissions(directory.Path(), fs::perms(0755));
    EXPECT_EQ(status, 0);
    EXPECT_EQ(ReadFile(file), "old");
    EXPECT_EQ(directory.EntryCount(), 1);
  }
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
  // Under another name, since a directory is not looked at twice within a second.
  ReplaceFile(directory.Path() / "." / "a.orb", even);
  EXPECT_EQ(directory.EntryCount(), 1);
}

TEST(ReplaceFile, RemovesWhatKilledProgramsLeftAndNothingElse) {
  const TemporaryDirectory directory;
  const fs::path link = directory.Path() / ".orb-saving-link01";
  fs::create_symlink("precious.orb", link);
  fs::create_directory(directory.Path() / ".orb-saving-folder");
  for (const char* name : {".orb-saving-Dead01", ".orb-saving-Alive1", ".orb-saving-Dead012",
                           ".orb-saving-Dead_1", ".orb-backup", "precious.orb"}) {
    directory.Write(name, "bytes");
  }
  const int alive = ::open((directory.Path() / ".orb-saving-Alive1").c_str(), O_RDONLY);
  ASSERT_EQ(::flock(alive, LOCK_EX), 0);
  ReplaceFile(directory.Path() / "a.orb", "new");
  EXPECT_EQ(directory.EntryCount(), 8);
  EXPECT_FALSE(fs::exists(directory.Path() / ".orb-saving-Dead01"));
  ::close(alive);
}

TEST(FileInAnyCase, HasItsOwnNameInSmallLettersWhereItCan) {
  const TemporaryDirectory directory;
  const fs::path sub = directory.Path() / "Sub";
  fs::create_directory(sub);
  for (const char* name : {"Sub/Only.ORB", "Sub/Both.orb", "Sub/both.orb"})
    directory.Write(name, "");
  EXPECT_EQ(model::FileInAnyCase(sub / "New.ORB"), sub / "new.orb");
  EXPECT_EQ(model::FileInAnyCase(sub / "Only.ORB"), sub / "Only.ORB");
  EXPECT_EQ(model::FileInAnyCase(sub / "Both.orb"), sub / "both.orb");
  EXPECT_EQ(model::LowerCaseName(sub / "Only.ORB"), sub / "only.orb");
}

}  // namespace
}  // namespace orb::tests
