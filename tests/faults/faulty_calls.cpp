// A library that is loaded before a program (LD_PRELOAD) and makes one of its calls that open,
// write, flush, close, link or rename fail, or kills it there.
//
//   ORB_FAULT            which call, counted from 1, and what befalls it: "7 28" fails with that
//                        errno; "7 kill" ends the program before the call (a write is half done),
//                        "7 killed" behind it
//   ORB_FAULT_LOG        a file that is made when the call was reached
//   ORB_FAULT_DIRECTORY  only calls for files below it count; all if it is not set
//   ORB_FAULT_NAMED      if set, there are no files without a name (O_TMPFILE)

#include <array>
#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <dlfcn.h>
#include <fcntl.h>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

enum class Fate { None, Fails, Killed, KilledBehind };

struct Plan {
  long Nth = 0;
  int Error = 0;
  Fate Kind = Fate::None;
  std::string Directory;
  bool OnlyNamed = false;
};

std::string Variable(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? "" : value;
}

Plan ReadPlan() {
  Plan plan{0, 0, Fate::None, Variable("ORB_FAULT_DIRECTORY"),
            !Variable("ORB_FAULT_NAMED").empty()};
  const std::string fault = Variable("ORB_FAULT");
  char* end = nullptr;
  plan.Nth = std::strtol(fault.c_str(), &end, 10);
  const std::string_view kind = *end == ' ' ? end + 1 : end;
  plan.Kind = kind == "kill" ? Fate::Killed : kind == "killed" ? Fate::KilledBehind : Fate::Fails;
  plan.Error = std::atoi(std::string(kind).c_str());
  return plan;
}

const Plan& ThePlan() {
  static const Plan plan = ReadPlan();
  return plan;
}

void Log() {
  const std::string log = Variable("ORB_FAULT_LOG");
  const long made = ::syscall(SYS_openat, AT_FDCWD, log.c_str(), O_WRONLY | O_CREAT, 0600);
  ::syscall(SYS_close, made);
}

/// What befalls the next call for this file.
Fate NextFate(std::string_view path) {
  static long count = 0;
  const Plan& plan = ThePlan();
  if (!path.starts_with(plan.Directory) || ++count != plan.Nth) return Fate::None;
  Log();
  return plan.Kind;
}

[[noreturn]] void Die() {
  ::kill(::getpid(), SIGKILL);
  std::abort();
}

std::string PathOf(int descriptor) {
  std::array<char, 4096> path{};
  const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
  const ssize_t size = ::readlink(link.c_str(), path.data(), path.size());
  return {path.data(), static_cast<std::size_t>(size < 0 ? 0 : size)};
}

template <class Function>
Function* Real(Function* /*here*/, const char* name) {
  return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

/// A call that befalls its fate. `half` does what is done of it before a kill or a failure.
template <class Result, class Call, class Half>
Result Befall(std::string_view path, Call call, Half half) {
  const Fate fate = NextFate(path);
  if (fate == Fate::Killed || fate == Fate::Fails) half();
  if (fate == Fate::Killed) Die();
  if (fate == Fate::Fails) {
    errno = ThePlan().Error;
    return -1;
  }
  const Result result = call();
  if (fate == Fate::KilledBehind) Die();
  return result;
}

template <class Result, class Call>
Result Befall(std::string_view path, Call call) {
  return Befall<Result>(path, call, [] {});
}

int Open(int directory, const char* path, int flags, mode_t mode) {
  if (ThePlan().OnlyNamed && (flags & O_TMPFILE) == O_TMPFILE) {
    errno = EOPNOTSUPP;
    return -1;
  }
  return Befall<int>(
      path, [&] { return static_cast<int>(::syscall(SYS_openat, directory, path, flags, mode)); });
}

mode_t ModeOf(int flags, va_list arguments) {
  const bool hasMode = (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE;
  return hasMode ? va_arg(arguments, mode_t) : 0;
}

}  // namespace

// What the C library declares, in the forms in which programs call it.
extern "C" {

#define ORB_OPEN(name)                            \
  int name(const char* path, int flags, ...) {    \
    va_list arguments;                            \
    va_start(arguments, flags);                   \
    const mode_t mode = ModeOf(flags, arguments); \
    va_end(arguments);                            \
    return Open(AT_FDCWD, path, flags, mode);     \
  }
ORB_OPEN(open)
ORB_OPEN(open64)

#define ORB_OPENAT(name)                                      \
  int name(int directory, const char* path, int flags, ...) { \
    va_list arguments;                                        \
    va_start(arguments, flags);                               \
    const mode_t mode = ModeOf(flags, arguments);             \
    va_end(arguments);                                        \
    return Open(directory, path, flags, mode);                \
  }
ORB_OPENAT(openat)
ORB_OPENAT(openat64)

int mkostemp(char* pattern, int flags) {
  return Befall<int>(pattern, [&] { return Real(mkostemp, "mkostemp")(pattern, flags); });
}

ssize_t write(int file, const void* bytes, size_t size) {
  const auto writeSome = [&](size_t some) { return ::syscall(SYS_write, file, bytes, some); };
  // What is told of a fault must arrive.
  if (file == STDERR_FILENO) return writeSome(size);
  return Befall<ssize_t>(
      PathOf(file), [&] { return writeSome(size); }, [&] { writeSome(size / 2); });
}

int fsync(int file) {
  return Befall<int>(PathOf(file), [&] { return Real(fsync, "fsync")(file); });
}

int close(int file) {
  const auto reallyClose = [&] { return static_cast<int>(::syscall(SYS_close, file)); };
  // A file whose closing fails is closed all the same.
  return Befall<int>(PathOf(file), reallyClose, reallyClose);
}

int rename(const char* from, const char* to) noexcept {
  return Befall<int>(to, [&] { return Real(rename, "rename")(from, to); });
}

int linkat(int fromDirectory, const char* from, int toDirectory, const char* to,
           int flags) noexcept {
  return Befall<int>(
      to, [&] { return Real(linkat, "linkat")(fromDirectory, from, toDirectory, to, flags); });
}
}
