#pragma once

#include <filesystem>
#include <string_view>
#include <unistd.h>
#include <utility>

// Standard C++ can neither flush a file to disk nor tell one from a pipe: what needs the operating
// system for that shares these.

namespace orb::model {

/// An open file that is closed on every way out.
class Descriptor {
 public:
  explicit Descriptor(int number = -1) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor() {
    if (number_ >= 0) ::close(number_);
  }

  bool IsOpen() const { return number_ >= 0; }
  int Number() const { return number_; }

 private:
  int number_;
};

/// Throws FileError: "Cannot ACTION PATH: " and the system's reason.
[[noreturn]] void FailWith(std::string_view action, const std::filesystem::path& path, int error);

/// Writes all of the bytes; false, with the reason in errno.
bool WriteAll(int descriptor, std::string_view bytes);

}  // namespace orb::model
