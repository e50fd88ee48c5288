#pragma once

// The module as the driver uses it: loaded, with the one provider through which its views are opened.

#include <memory>
#include <string>
#include <utility>

#include "plugin/host_contract/base_view.h"
#include "terminal/drive/module_library.h"

namespace algo::terminal::drive {

class TLoadedModule {
 public:
  /// Loads the module and creates its provider. Throws EError, leaving nothing loaded, if that fails. `owner`
  /// is the component that owns the provider.
  TLoadedModule(const std::string& file, const void* owner);

  /// Whether the provider has not been destroyed.
  bool HasProvider() const { return FProvider != nullptr; }
  /// The provider, which has not been destroyed.
  host::TIBaseView& Provider() const { return *FProvider; }
  const host::TModuleEntry& Entry() const { return FLibrary.Entry(); }

  /// Puts the layer that `layer` makes around the provider.
  template <class TLayer>
  void Watch(TLayer&& layer) {
    FProvider = layer(std::move(FProvider));
  }

  /// Destroys the provider, which closes the remaining views.
  void DestroyProvider() { FProvider.reset(); }

  /// See TModuleLibrary.
  void KeepLoaded() { FLibrary.KeepLoaded(); }

 private:
  // In this order: the provider's code is in the library.
  TModuleLibrary FLibrary;
  std::unique_ptr<host::TIBaseView> FProvider;
};

}  // namespace algo::terminal::drive
