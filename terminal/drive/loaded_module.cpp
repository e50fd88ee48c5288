#include "terminal/drive/loaded_module.h"

#include <string_view>

#include "plugin/host_contract/class_registry.h"
#include "terminal/drive/call_module.h"

namespace algo::terminal::drive {

namespace {

constexpr std::string_view ProviderClass = "TIAlgoEntryOrder";

}  // namespace

TLoadedModule::TLoadedModule(const std::string& file, const void* owner) : FLibrary(file) {
  const auto* make = host::TClassRegistry::GetInstance().Find(ProviderClass);
  if (make == nullptr) throw ECommandError("the module offers no class " + std::string(ProviderClass));
  FProvider = CallModule([&] { return (*make)(owner); });
  if (!FProvider) throw ECommandError("the module made no view provider");
}

}  // namespace algo::terminal::drive
