#pragma once

// A service that is installed for as long as it exists, for hosts that are made and go within a program.

#include <utility>

namespace algo::host {

/// Makes a service of class `TService`, installs it, and on destruction puts the one before back. Objects
/// nest: they go in the reverse order of their making.
template <class TService>
class TInstalledService {
 public:
  template <class... TArguments>
  explicit TInstalledService(TArguments&&... arguments)
      : FService(std::forward<TArguments>(arguments)...), FFormer(TService::Install(&FService)) {}
  ~TInstalledService() { TService::Install(FFormer); }
  TInstalledService(const TInstalledService&) = delete;
  TInstalledService& operator=(const TInstalledService&) = delete;

  TService& operator*() { return FService; }
  TService* operator->() { return &FService; }

 private:
  TService FService;
  decltype(TService::Install(nullptr)) FFormer;
};

}  // namespace algo::host
