#pragma once

// How a module reaches the host's services. Each service is one process-wide object that the host installs
// before it makes a view provider and keeps until the provider is gone. All services are called on the
// user-interface thread. A service operation may throw; the module reports it to the trader once and stops
// what it was doing.
//
// How to read the headers of this folder: each operation has a tag, [caller → callee, when], that says which
// side calls it and when it may be called; docs/writing-a-host.md explains the words. A tag stands below what
// the operation promises, and holds down to the next blank line or tag.

#include <string>

#include "forms/export.h"
#include "text/errors.h"

namespace algo::host {

/// A service that the host did not install.
class EServiceMissing : public EError {
 public:
  explicit EServiceMissing(const std::string& name) : EError("The host offers no " + name) {}
};

/// Gives a service class its GetInstance. The instances live in the contract's shared library, so that host
/// and module mean the same object.
template <class TService>
class ALGO_SHARED THostService {
 public:
  /// The installed service. Throws EServiceMissing when the host installed none.
  /// [module → host, while a provider lives]
  static TService& GetInstance();

  /// Installs `service`, which stays the host's own; nullptr takes it away. Returns the one before.
  /// [host, while no provider lives]
  static TService* Install(TService* service);

 protected:
  THostService() = default;
  ~THostService() = default;

 public:
  THostService(const THostService&) = delete;
  THostService& operator=(const THostService&) = delete;
};

/// Who registered a handler: the address of the object that asked, used only to compare.
using TOwner = const void*;

}  // namespace algo::host
