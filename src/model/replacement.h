#pragma once

#include "model/descriptor.h"
#include "model/file_mark.h"
#include "model/files.h"

#include <filesystem>
#include <string>
#include <string_view>

namespace orb::model {

/// The new contents of a file, written next to it and flushed to disk, that take its place at
/// Commit. Where they are dropped before, the old file stays and nothing lies next to it, not even
/// when the program is killed while it writes. All but the renaming is done by then, so that what
/// must come between can still stop it.
class Replacement {
 public:
  /// Throws FileError with the system's reason. A link is followed; anything but an ordinary file
  /// is refused.
  Replacement(const std::filesystem::path& path, std::string_view bytes);
  Replacement(const Replacement&) = delete;
  Replacement& operator=(const Replacement&) = delete;
  ~Replacement() = default;

  /// Takes the old file's place and flushes the directory. Throws FileError, also where there is an
  /// old file and it is to be kept. To be called once.
  void Commit(Existing existing = Existing::Replaced);

  /// The mark of the new file under the path as it was given.
  const FileMark& Mark() const { return mark_; }

 private:
  /// The name of a file that is removed again on every way out; empty while there is none.
  struct TemporaryName {
    std::string Path;
    ~TemporaryName();
  };

  std::string UnfinishedName() const;

  /// Gives the new file its final name; also where an old file has it, or only where that is free.
  void TakeName();
  void TakeFreeName();

  std::filesystem::path path_;    ///< as given, for error texts
  std::filesystem::path target_;  ///< links followed
  std::string directory_;         ///< of the target, with its "/"
  Descriptor file_;               ///< the new contents; without a name where that can be
  TemporaryName name_;
  FileMark mark_;
};

}  // namespace orb::model
