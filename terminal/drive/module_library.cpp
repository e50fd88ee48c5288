#include "terminal/drive/module_library.h"

#include <dlfcn.h>

#include <filesystem>
#include <memory>
#include <system_error>

#include "text/errors.h"

namespace algo::terminal::drive {

namespace {

struct TLibraryCloser {
  void operator()(void* handle) const { dlclose(handle); }
};

std::string LoadError() {
  const char* text = dlerror();
  return text == nullptr ? "unknown error" : text;
}

}  // namespace

TModuleLibrary::TModuleLibrary(const std::string& file)
    : FHandle(dlopen(std::filesystem::absolute(file).c_str(), RTLD_NOW | RTLD_LOCAL)) {
  if (FHandle == nullptr) throw EError("the module cannot be loaded: " + LoadError());
  std::unique_ptr<void, TLibraryCloser> loaded(FHandle);
  const auto entryFunction =
      reinterpret_cast<host::TModuleEntryFunction>(dlsym(FHandle, host::ModuleEntrySymbol));
  if (entryFunction == nullptr) throw EError("the file is not a module: " + LoadError());
  FEntry = entryFunction();
  if (FEntry == nullptr || FEntry->contractVersion != host::ContractVersion) {
    throw EError("the module was built for another contract");
  }
  FEntry->start();
  static_cast<void>(loaded.release());
}

TModuleLibrary::~TModuleLibrary() {
  FEntry->stop();
  if (!FKeepLoaded) dlclose(FHandle);
}

std::string ModuleBesideProgram() {
  std::error_code error;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
  const auto folder = error ? std::filesystem::path(".") : program.parent_path();
  return (folder.parent_path() / "lib" / "libalgo_order_entry.so").string();
}

}  // namespace algo::terminal::drive
