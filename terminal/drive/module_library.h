#pragma once

// A module as a shared library that is loaded at run time. Only module_library.cpp depends on the platform.

#include <string>

#include "plugin/host_contract/module_entry.h"

namespace algo::terminal::drive {

class TModuleLibrary {
 public:
  /// Loads the module and registers its classes. Throws EError, leaving nothing loaded, if the file cannot be
  /// loaded, is not a module, or was built for another contract.
  explicit TModuleLibrary(const std::string& file);
  /// Unregisters the module's classes and unloads it.
  ~TModuleLibrary();
  TModuleLibrary(const TModuleLibrary&) = delete;
  TModuleLibrary& operator=(const TModuleLibrary&) = delete;

  const host::TModuleEntry& Entry() const { return *FEntry; }

  /// Leaves the code in memory when the object is destroyed, for a module whose handlers the host still
  /// holds.
  void KeepLoaded() { FKeepLoaded = true; }

 private:
  void* FHandle;
  const host::TModuleEntry* FEntry = nullptr;
  bool FKeepLoaded = false;
};

/// The path of the module that was built together with this program, in ../lib of the program's folder.
std::string ModuleBesideProgram();

}  // namespace algo::terminal::drive
