#include "cli/draw_map.h"

#include "model/errors.h"
#include "model/files.h"
#include "model/modules.h"
#include "text/encoding.h"

#include <system_error>

namespace orb::cli {

std::string DrawMap(const MapRequest& request) {
  const std::filesystem::path file = model::ProgramDirectory() / DrawModule;
  std::error_code ignored;
  if (!std::filesystem::exists(file, ignored)) {
    throw model::FatalError("Maps are drawn by " + text::NameInText(file.string()) +
                            ", which is missing.");
  }
  void* const function = model::ModuleFunction(file, DrawFunctionName, "Maps cannot be drawn");
  std::string result;
  if (!reinterpret_cast<DrawFunction*>(function)(request, result)) throw model::FatalError(result);
  return result;
}

}  // namespace orb::cli
