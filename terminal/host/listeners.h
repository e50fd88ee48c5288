#pragma once

// The listeners of one source of news. While they are told, any of them may take itself or another one off
// the list, add one, or set off the next round; a listener that was taken off is not called any more.

#include <algorithm>
#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "plugin/host_contract/service.h"

namespace algo::terminal {

template <class... TNews>
class TListeners {
 public:
  using THandler = std::function<void(TNews...)>;

  void Add(THandler handler, host::TOwner owner) {
    FEntries.push_back(std::make_shared<const TEntry>(TEntry{std::move(handler), owner}));
  }

  /// Takes the listeners of the owner off the list; with no effect when there is none.
  void Remove(host::TOwner owner) {
    for (auto& entry : FEntries) {
      if (entry && entry->owner == owner) entry.reset();
    }
    if (FRounds == 0) std::erase(FEntries, nullptr);
  }

  bool Empty() const {
    return std::all_of(FEntries.begin(), FEntries.end(), [](const auto& entry) { return !entry; });
  }

  /// Calls the listeners in the order in which they came; those that are added meanwhile wait for the next
  /// round. What a listener throws ends the round and runs up to the caller.
  void Tell(TNews... news) {
    const TRound round(*this);
    const std::size_t count = FEntries.size();
    for (std::size_t i = 0; i < count; ++i) {
      // Held here, because the listener may take itself off the list.
      if (const auto entry = FEntries[i]) entry->handler(news...);
    }
  }

 private:
  struct TEntry {
    THandler handler;
    host::TOwner owner;
  };

  // A round that runs goes by places in the list, so that the places of those that leave are kept until the
  // outermost round is over.
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
