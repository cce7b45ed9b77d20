#include "cli/draw_map.h"

#include "model/errors.h"
#include "model/files.h"
#include "model/modules.h"
#include "text/encoding.h"

#include <system_error>

namespace orb::cli {

namespace {

void* ModuleFunction(const char* name) {
  const std::filesystem::path file = model::ProgramDirectory() / DrawModule;
  std::error_code ignored;
  if (!std::filesystem::exists(file, ignored)) {
    throw model::FatalError("Maps are drawn by " + text::NameInText(file.string()) +
                            ", which is missing.");
  }
  return model::ModuleFunction(file, name, "Maps cannot be drawn");
}

/// Calls a function of the module's forms.
template <class Function, class Task>
std::string Call(const char* name, const Task& task) {
  std::string result;
  auto* const function = reinterpret_cast<Function*>(ModuleFunction(name));
  if (!function(task, result)) throw model::FatalError(result);
  return result;
}

}  // namespace

std::string DrawMap(const MapRequest& request) {
  return Call<DrawFunction>(DrawFunctionName, request);
}

std::string WithSvgMaterial(const SvgWork& work) {
  return Call<SvgFunction>(SvgFunctionName, work);
}

}  // namespace orb::cli
