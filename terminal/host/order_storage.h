#pragma once

// Where a host writes what must outlive it. The services work in memory, and write each change to the storage
// before they make it: a change that cannot be stored does not happen.

#include <string>
#include <string_view>

#include "plugin/host_contract/orders.h"

namespace algo::terminal {

/// Who did what to an order, and the answer: one line of the audit trail. The storage adds the time.
struct TOrderEvent {
  std::string who;     ///< the user's identity, or the part of the terminal that acted
  std::string what;    ///< "new", "change", "work", "cancel", "fill", …
  std::string answer;  ///< "accepted", "refused", or what was done
};

/// Stores nothing; a host with a real storage derives from it. Every operation throws EError when it fails,
/// and has then stored nothing.
class TOrderStorage {
 public:
  virtual ~TOrderStorage();

  /// Stores the order under its key together with the event, or neither of them. The order store follows.
  virtual void StoreOrder(const TOrderEvent& event, const host::TCustomClientOrder& order);

  /// Stores an event that changes no order. The order may lack a key.
  virtual void StoreEvent(const TOrderEvent& event, const host::TCustomClientOrder& order);

  virtual void StoreSetting(std::string_view section, std::string_view key, std::string_view value);
};

}  // namespace algo::terminal
