#pragma once

// Who listens to what: the strict host has one registry for each thing that can be listened to.

#include <cstddef>
#include <set>
#include <string>
#include <utility>

#include "plugin/host_contract/checks/violations.h"
#include "plugin/host_contract/service.h"

namespace algo::host::checks {

/// The owners that listen to one source, each with one listener.
class TListenerRegistry {
 public:
  /// `source` is what reports call it: "the settings". `violations` outlives the registry.
  TListenerRegistry(const TViolations& violations, std::string source)
      : FViolations(violations), FSource(std::move(source)) {}

  std::size_t Count() const { return FOwners.size(); }

  /// Checks that the owner may listen, calls `add`, then adds the owner.
  template <class TListener, class TAdd>
  void Add(const TListener& listener, TOwner owner, TAdd&& add) {
    if (owner == nullptr) FViolations.Report("a listener to " + FSource + " has no owner");
    if (!listener) FViolations.Report("a listener to " + FSource + " is empty");
    if (FOwners.contains(owner) && !FKept.contains(owner)) {
      FViolations.Report("an owner listens to " + FSource + " twice");
    }
    add();
    FOwners.insert(owner);
    FKept.erase(owner);
  }

  /// Checks that the owner listens, calls `remove`, then removes the owner. When `remove` fails the owner
  /// stays.
  template <class TRemove>
  void Remove(TOwner owner, TRemove&& remove) {
    if (!FOwners.contains(owner)) {
      FViolations.Report("an owner stops listening to " + FSource + " without having listened");
    }
    // Out of the register first: in the middle of the call the owner may be added anew.
    FOwners.erase(owner);
    try {
      remove();
    } catch (...) {
      FOwners.insert(owner);
      FKept.insert(owner);
      throw;
    }
  }

 private:
  const TViolations& FViolations;
  std::string FSource;
  std::set<TOwner> FOwners;
  /// Those that have asked to be removed and were kept. They may have gone since, and their addresses may be
  /// another owner's.
  std::set<TOwner> FKept;
};

}  // namespace algo::host::checks
