#include "cli/draw_map.h"

#include "model/errors.h"
#include "model/files.h"
#include "text/encoding.h"

#include <dlfcn.h>
#include <system_error>

namespace orb::cli {

void DrawMap(const MapRequest& request) {
  const std::filesystem::path file = model::ProgramDirectory() / DrawModule;
  std::error_code ignored;
  if (!std::filesystem::exists(file, ignored)) {
    throw model::FatalError("Maps are drawn by " + text::NameInText(file.string()) +
                            ", which is missing.");
  }
  // Never closed: the toolkit that it brings along does not survive that.
  void* const module = ::dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
  void* const symbol = module == nullptr ? nullptr : ::dlsym(module, DrawFunctionName);
  if (symbol == nullptr) {
    throw model::FatalError("Maps cannot be drawn: " + std::string(::dlerror()) + ".");
  }
  std::string error;
  if (!reinterpret_cast<DrawFunction*>(symbol)(request, error)) throw model::FatalError(error);
}

}  // namespace orb::cli
