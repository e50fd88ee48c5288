#pragma once

// The run-time class registry: modules make view provider classes known by name, hosts find them and make
// providers.

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "forms/export.h"
#include "plugin/host_contract/base_view.h"

namespace algo::host {

class ALGO_SHARED TClassRegistry {
 public:
  /// Makes a provider; `owner` is the host component that keeps it. A module that cannot make one
  /// reports why to the trader and gives nullptr.
  /// [host → module, after start]
  using TFactory = std::function<std::unique_ptr<TIBaseView>(const void* owner)>;

  /// The registry of the process.
  /// [either side, at any time]
  static TClassRegistry& GetInstance();

  /// Makes a class known; false, changing nothing, when the name is taken.
  /// [module, in start and stop]
  bool Register(std::string_view className, TFactory factory);
  void Unregister(std::string_view className);
  /// The factory of that class; nullptr when nobody registered it. Valid until the class is unregistered.
  /// [host, after start]
  const TFactory* Find(std::string_view className) const;

 private:
  std::map<std::string, TFactory, std::less<>> FClasses;
};

}  // namespace algo::host
