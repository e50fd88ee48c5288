#pragma once

// What the layers of the strict host share: the place where violations are reported, and the ledger of who
// listens to what.

#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <utility>

#include "plugin/host_contract/checks/strict_host.h"
#include "plugin/host_contract/service.h"

namespace algo::host {

class TViolations {
 public:
  void SetHandler(TStrictHost::TViolationHandler handler) { FHandler = std::move(handler); }

  /// Reports what is wrong. A handler that returns in spite of its contract ends the program.
  [[noreturn]] void Report(const std::string& what) const;

  /// Reports `what` unless it holds.
  void Require(bool holds, const char* what) const {
    if (!holds) Report(what);
  }

 private:
  TStrictHost::TViolationHandler FHandler;
};

/// The owners that listen to one source, each with one listener.
class TListenerRegistry {
 public:
  /// `source` is what reports call it: "the settings". `violations` outlives the ledger.
  TListenerRegistry(const TViolations& violations, std::string source)
      : FViolations(violations), FSource(std::move(source)) {}

  std::size_t Count() const { return FOwners.size(); }

  /// Checks that the owner may listen, calls `add`, then enters the owner.
  template <class TListener, class TAdd>
  void Enter(const TListener& listener, TOwner owner, TAdd&& add) {
    if (owner == nullptr) FViolations.Report("a listener to " + FSource + " has no owner");
    if (!listener) FViolations.Report("a listener to " + FSource + " is empty");
    if (FOwners.contains(owner)) FViolations.Report("an owner listens to " + FSource + " twice");
    add();
    FOwners.insert(owner);
  }

  /// Checks that the owner listens, calls `remove`, then strikes the owner out, who stays entered when that
  /// fails.
  template <class TRemove>
  void Strike(TOwner owner, TRemove&& remove) {
    if (!FOwners.contains(owner)) {
      FViolations.Report("an owner stops listening to " + FSource + " without having listened");
    }
    remove();
    FOwners.erase(owner);
  }

 private:
  const TViolations& FViolations;
  std::string FSource;
  std::set<TOwner> FOwners;
};

}  // namespace algo::host
