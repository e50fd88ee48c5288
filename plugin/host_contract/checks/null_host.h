#pragma once

// A host that offers every service and does nothing. It is enough to make a module's objects in a first test,
// and it shows what the least is that each service has to answer.

#include <memory>

#include "forms/export.h"

namespace algo::host::checks {

/// Installs a service of each kind for its life and puts those that were installed before back afterwards.
/// Settings are empty, resource texts are their ids, no right is held, no account, instrument or list known,
/// no action accepted, no listener is ever called; orders can be made and given back; a modal form is
/// cancelled at once. A form that shows beside the others goes with the host at the latest.
class ALGO_SHARED TNullHost {
 public:
  TNullHost();
  ~TNullHost();
  TNullHost(const TNullHost&) = delete;
  TNullHost& operator=(const TNullHost&) = delete;

 private:
  struct TServices;
  std::unique_ptr<TServices> FServices;
};

}  // namespace algo::host::checks
