#pragma once

// The listeners of one source of notifications. While they are being notified, any of them may remove itself
// or another listener, add one, or start another round; a listener that was removed is not called any more.

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "plugin/host_contract/service.h"

namespace algo::terminal {

template <class... TArguments>
class TListeners {
 public:
  using THandler = std::function<void(TArguments...)>;

  void Add(THandler handler, host::TOwner owner) {
    FEntries.push_back(std::make_shared<const TEntry>(TEntry{std::move(handler), owner}));
  }

  /// Removes the owner's listeners; without effect if there are none.
  void Remove(host::TOwner owner) {
    for (auto& entry : FEntries) {
      if (entry && entry->owner == owner) entry.reset();
    }
    if (FRounds == 0) std::erase(FEntries, nullptr);
  }

  bool Empty() const {
    return std::all_of(FEntries.begin(), FEntries.end(), [](const auto& entry) { return !entry; });
  }

  /// Calls the listeners in the order in which they were added; those that are added meanwhile wait for the
  /// next round. What a listener throws ends the round and reaches the caller.
  void Notify(TArguments... arguments) {
    const TRound round(*this);
    const std::size_t count = FEntries.size();
    for (std::size_t i = 0; i < count; ++i) {
      // Held here, because the listener may remove itself.
      if (const auto entry = FEntries[i]) entry->handler(arguments...);
    }
  }

 private:
  struct TEntry {
    THandler handler;
    host::TOwner owner;
  };

  // A round iterates by index, so the entries of removed listeners stay until the outermost round is over.
  class TRound {
   public:
    explicit TRound(TListeners& listeners) : FListeners(listeners) { ++FListeners.FRounds; }
    ~TRound() {
      if (--FListeners.FRounds == 0) std::erase(FListeners.FEntries, nullptr);
    }
    TRound(const TRound&) = delete;
    TRound& operator=(const TRound&) = delete;

   private:
    TListeners& FListeners;
  };

  std::vector<std::shared_ptr<const TEntry>> FEntries;
  std::size_t FRounds = 0;
};

}  // namespace algo::terminal
