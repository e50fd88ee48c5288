#pragma once

// A module as a shared library that is loaded at run time. What belongs to the platform about that stands in
// module_library.cpp alone.

#include <string>

#include "plugin/host_contract/module_entry.h"

namespace algo::terminal::drive {

class TModuleLibrary {
 public:
  /// Loads the module and makes its classes known. Throws EError, leaving nothing loaded, when the file
  /// cannot be loaded, is no module, or was built for another contract.
  explicit TModuleLibrary(const std::string& file);
  /// Takes the module's classes back and unloads it.
  ~TModuleLibrary();
  TModuleLibrary(const TModuleLibrary&) = delete;
  TModuleLibrary& operator=(const TModuleLibrary&) = delete;

  const host::TModuleEntry& Entry() const { return *FEntry; }

  /// Leaves the code in memory when the object goes, for a module of which the host still holds handlers.
  void KeepLoaded() { FKeepLoaded = true; }

 private:
  void* FHandle;
  const host::TModuleEntry* FEntry = nullptr;
  bool FKeepLoaded = false;
};

/// The module that was built together with this program, in ../lib beside the program's own folder.
std::string ModuleBesideProgram();

}  // namespace algo::terminal::drive
