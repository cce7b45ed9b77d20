#include "model/appending.h"

#include "model/descriptor.h"
#include "model/errors.h"
#include "text/encoding.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace orb::model {

void AppendToFile(const std::filesystem::path& path, std::string_view bytes) {
  // Without waiting: opening a pipe would hold up the program until somebody reads from it.
  const Descriptor file(
      ::open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC | O_NONBLOCK, 0666));
  struct stat before {};
  if (!file.IsOpen() || ::fstat(file.Number(), &before) != 0) FailWith("write", path, errno);
  if (!S_ISREG(before.st_mode)) {
    throw FileError("Cannot write " + text::NameInText(path.string()) +
                    ": it is no ordinary file.");
  }
  if (WriteAll(file.Number(), bytes) && ::fsync(file.Number()) == 0) return;
  const int error = errno;
  // Half an entry would be taken for a whole one. Where this fails too, nothing is left to do.
  if (::ftruncate(file.Number(), before.st_size) != 0) FailWith("write", path, errno);
  FailWith("write", path, error);
}

}  // namespace orb::model
