#pragma once

// The contract as something that runs: a layer around the services of any host that passes every call on and
// stops the module at the first one that the contract forbids, and one around the module's provider that does
// the same to the host. It also keeps a register of what the module has registered and not taken back.

#include <cstddef>
#include <functional>
#include <memory>
#include <string>

#include "forms/export.h"
#include "plugin/host_contract/base_view.h"

namespace algo::host::checks {

/// What a module has in the hands of its host at one moment.
struct TLeftBehind {
  std::size_t channels = 0;         ///< handlers on channels
  std::size_t configListeners = 0;  ///< listeners for settings
  std::size_t marketListeners = 0;  ///< listeners for spread tables
  std::size_t subscriptions = 0;    ///< market-data items with a listener
  std::size_t editors = 0;          ///< controls registered as editors
  std::size_t skinListeners = 0;    ///< listeners for skins
  std::size_t orders = 0;           ///< orders made and not given back
  std::size_t forms = 0;            ///< dialog forms that still exist

  bool operator==(const TLeftBehind&) const = default;
};

/// Wraps the services that are installed when it is made and puts them back when it goes. Services that were
/// not installed stay so. Calls of the host itself belong to the wrapped services and pass no check.
class ALGO_SHARED TStrictHost {
 public:
  /// Is given what is wrong, in one line. It does not return: it throws, or the program ends.
  using TViolationHandler = std::function<void(const std::string& what)>;

  TStrictHost();
  ~TStrictHost();
  TStrictHost(const TStrictHost&) = delete;
  TStrictHost& operator=(const TStrictHost&) = delete;

  /// Puts `handler` in place of the one that writes the line to standard error and aborts. A call that is a
  /// violation does not reach the wrapped service and leaves the register as it was.
  void OnViolation(TViolationHandler handler);

  /// Puts a layer around `provider`, through which the host calls it from now on; nullptr stays nullptr. The
  /// strict host outlives it.
  std::unique_ptr<TIBaseView> Watch(std::unique_ptr<TIBaseView> provider) const;

  /// What is registered now.
  TLeftBehind LeftBehind() const;

 private:
  struct TServices;
  std::unique_ptr<TServices> FServices;
};

}  // namespace algo::host::checks
