#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace orb::model {

/// What a program that read or wrote a file remembers of it, so that it can tell whether somebody
/// else has changed the file since.
struct FileMark {
  std::string Path;  ///< as the file was named
  std::uint64_t Device = 0;
  std::uint64_t Inode = 0;
  std::uint64_t Size = 0;
  std::int64_t Modified = 0;  ///< in nanoseconds since 1970; 0: too lately to tell anything
  std::size_t Hash = 0;       ///< of the bytes
};

/// The mark of the file that is open under the descriptor and has or had these contents.
FileMark MarkOf(std::string path, int descriptor, std::string_view bytes);

/// What became of a file since it was marked. Written anew with the same bytes it is unchanged.
enum class FileChange : std::uint8_t { None, Changed, Gone };

FileChange ChangeSince(const FileMark& mark);

}  // namespace orb::model
