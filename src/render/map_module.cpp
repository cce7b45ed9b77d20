#include "render/map_module.h"

#include "model/errors.h"
#include "model/modules.h"
#include "text/encoding.h"

#include <system_error>

namespace orb::render {

namespace {

void* ModuleFunction(const std::filesystem::path& directory, const char* name) {
  const std::filesystem::path file = directory / DrawModule;
  if (!CanDraw(directory)) {
    throw model::FatalError("Maps are drawn by " + text::NameInText(file.string()) +
                            ", which is missing.");
  }
  return model::ModuleFunction(file, name, "Maps cannot be drawn");
}

/// Calls a function of the module's forms.
template <class Function, class Task>
std::string Call(const std::filesystem::path& directory, const char* name, const Task& task) {
  std::string result;
  auto* const function = reinterpret_cast<Function*>(ModuleFunction(directory, name));
  if (!function(task, result)) throw model::FatalError(result);
  return result;
}

}  // namespace

bool CanDraw(const std::filesystem::path& moduleDirectory) {
  std::error_code ignored;
  return std::filesystem::exists(moduleDirectory / DrawModule, ignored);
}

std::string DrawMap(const MapRequest& request, const std::filesystem::path& moduleDirectory) {
  return Call<DrawFunction>(moduleDirectory, DrawFunctionName, request);
}

std::string DrawAnimation(const AnimationRequest& request,
                          const std::filesystem::path& moduleDirectory) {
  return Call<AnimationFunction>(moduleDirectory, AnimationFunctionName, request);
}

std::string WithSvgMaterial(const SvgWork& work, const std::filesystem::path& moduleDirectory) {
  return Call<SvgFunction>(moduleDirectory, SvgFunctionName, work);
}

}  // namespace orb::render
