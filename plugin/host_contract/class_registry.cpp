#include "plugin/host_contract/class_registry.h"

#include <utility>

namespace algo::host {

TClassRegistry& TClassRegistry::GetInstance() {
  static TClassRegistry registry;
  return registry;
}

bool TClassRegistry::Register(std::string_view className, TFactory factory) {
  if (Find(className) != nullptr) return false;
  FClasses[std::string(className)] = std::move(factory);
  return true;
}

void TClassRegistry::Unregister(std::string_view className) {
  const auto found = FClasses.find(className);
  if (found != FClasses.end()) FClasses.erase(found);
}

const TClassRegistry::TFactory* TClassRegistry::Find(std::string_view className) const {
  const auto found = FClasses.find(className);
  return found == FClasses.end() ? nullptr : &found->second;
}

}  // namespace algo::host
