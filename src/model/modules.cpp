#include "model/modules.h"

#include "model/errors.h"

#include <dlfcn.h>

namespace orb::model {

void* ModuleFunction(const std::filesystem::path& module, const char* function,
                     const std::string& failure) {
  // Never closed: the toolkits that modules bring along do not survive that.
  void* const handle = ::dlopen(module.c_str(), RTLD_NOW | RTLD_LOCAL);
  void* const symbol = handle == nullptr ? nullptr : ::dlsym(handle, function);
  if (symbol == nullptr) throw FatalError(failure + ": " + std::string(::dlerror()) + ".");
  return symbol;
}

}  // namespace orb::model
