#pragma once

#include "model/descriptor.h"
#include "model/file_mark.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace orb::model {

/// The new contents of a file, written next to it and flushed to disk, that take its place at
/// Commit. Where they are dropped before, the old file stays and nothing lies next to it. All but
/// the renaming is done by then, so that what must come between can still stop it.
class Replacement {
 public:
  /// Throws FileError with the system's reason. A link is followed; anything but an ordinary file
  /// is refused.
  Replacement(const std::filesystem::path& path, std::string_view bytes);
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;
  ~Replacement();

  /// Takes the old file's place; throws FileError. To be called once.
  void Commit();

  /// The mark of the new file under the path as it was given.
  const FileMark& Mark() const { return mark_; }

 private:
  std::filesystem::path path_;    ///< as given, for error texts
  std::filesystem::path target_;  ///< links followed
  std::string written_;           ///< the file with the new contents; empty once it took its place
  Descriptor file_;
  FileMark mark_;
};

}  // namespace orb::model
