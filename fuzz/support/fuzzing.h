#pragma once

#include "model/errors.h"
#include "model/game_state.h"
#include "model/messages.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

// What the fuzzers have in common. An input is a finding when a property does not hold, when a
// sanitizer speaks up, when any exception but a FatalError leaves the code that is tried, and when
// it takes too long or too much memory.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace orb::fuzz {

/// Ends the run with a finding, unless it holds; `shown` helps to understand it.
void Require(bool holds, std::string_view what, std::string_view shown = {});

/// Whether the work was done; false where it was refused by a FatalError, which must say why.
template <class Work>
bool IsAccepted(const Work& work) {
  try {
    work();
  } catch (const model::FatalError& error) {
    Require(!std::string_view(error.what()).empty(), "refused without a reason");
    return false;
  }
  return true;
}

/// The input, as text.
inline std::string_view Text(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// As many parts of the input, parted by NULs; the last one has the rest, missing ones are empty.
std::vector<std::string_view> Parts(std::string_view input, std::size_t count);

/// The map of the data directory.
const std::shared_ptr<const model::Map>& RealMap();

/// The starting position on it.
const model::GameState& StartingGame();

/// All of a situation that a program can see, for comparing two of them.
std::string Described(const model::GameState& game);

/// Requires all counts within their bounds, and that the game can be written and reads back the
/// same, but for old abbreviations: a reader mends one in a text at a time.
void CheckGame(const model::GameState& game);

/// Says yes to everything, and counts how often it was spoken to.
class YesToAll : public model::Messages {
 public:
  bool Warn(const std::string& text) override;
  model::Answer Ask(const std::string& text) override;
  void Show(const std::string& text, model::Icon icon) override;
  int Count() const { return count_; }
  const std::string& Last() const { return last_; }

 private:
  int count_ = 0;
  std::string last_;
};

/// A file in memory, for readers that take nothing but names of files.
class MemoryFile {
 public:
  MemoryFile();
  MemoryFile(const MemoryFile&) = delete;
  MemoryFile& operator=(const MemoryFile&) = delete;
  ~MemoryFile();

  /// Puts these bytes in place of what it holds.
  void Write(std::string_view bytes) const;
  std::filesystem::path Path() const;

 private:
  int descriptor_;
};

}  // namespace orb::fuzz
