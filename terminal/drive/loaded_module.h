#pragma once

// The module as the driver uses it: loaded, with the one provider that its view is opened through.

#include <memory>
#include <string>
#include <utility>

#include "plugin/host_contract/base_view.h"
#include "terminal/drive/module_library.h"

namespace algo::terminal::drive {

class TLoadedModule {
 public:
  /// Loads the module and makes its provider. Throws EError, leaving nothing loaded, when that fails. `owner`
  /// is the component that keeps the provider.
  TLoadedModule(const std::string& file, const void* owner);

  host::TIBaseView& Provider() const { return *FProvider; }
  const host::TModuleEntry& Entry() const { return FLibrary.Entry(); }

  /// Puts the layer that `layer` makes around the provider.
  template <class TLayer>
  void Watch(TLayer&& layer) {
    FProvider = layer(std::move(FProvider));
  }

  /// Destroys the provider, which closes the views that are left.
  void DropProvider() { FProvider.reset(); }

  /// See TModuleLibrary.
  void KeepLoaded() { FLibrary.KeepLoaded(); }

 private:
  // In this order: the provider's code goes with the library.
  TModuleLibrary FLibrary;
  std::unique_ptr<host::TIBaseView> FProvider;
};

}  // namespace algo::terminal::drive
