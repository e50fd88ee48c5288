#pragma once

// Where a host puts what must outlive it. The services work on what is in memory, and give to the keeper
// first what they are about to change there: what the keeper cannot take does not happen.

#include <string>
#include <string_view>

#include "plugin/host_contract/orders.h"

namespace algo::terminal {

/// Who did what to an order, and how it was answered: one line of the audit trail. When, is the keeper's to
/// say.
struct TOrderEvent {
  std::string who;     ///< the user's identity, or the part of the terminal that acted
  std::string what;    ///< "new", "change", "work", "cancel", "fill", …
  std::string answer;  ///< "accepted", "refused", or what was done
};

/// Keeps nothing; a host that stores derives from it. Every operation throws EError when it fails, and has
/// then kept nothing.
class TOrderStorage {
 public:
  virtual ~TOrderStorage();

  /// The order is about to stand in the store as given, under its key; kept together with the event or not at
  /// all.
  virtual void KeepOrder(const TOrderEvent& event, const host::TCustomClientOrder& order);

  /// Nothing changes, but the event is to be on record. The order may lack a key.
  virtual void KeepEvent(const TOrderEvent& event, const host::TCustomClientOrder& order);

  virtual void KeepSetting(std::string_view section, std::string_view key, std::string_view value);
};

}  // namespace algo::terminal
