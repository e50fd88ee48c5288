#pragma once

// The audit trail: what was done to orders, one row an event, in the order in which it happened. Rows are
// only ever added.

#include <string>
#include <string_view>
#include <vector>

#include "terminal/host/order_storage.h"
#include "terminal/storage/statement.h"
#include "terminal/storage/stored_event.h"

namespace algo::terminal::storage {

class TEventRows {
 public:
  /// The connection outlives it, and has the tables of the schema.
  explicit TEventRows(TConnection& connection);

  /// Adds the event with what the order is now. Throws EStorageError.
  void Keep(const std::string& time, const TOrderEvent& event, const host::TCustomClientOrder& order);

  /// All events, oldest first. Throws EStorageError.
  std::vector<TStoredEvent> All();

  /// The events of the order with that key, oldest first. Throws EStorageError.
  std::vector<TStoredEvent> Of(std::string_view orderKey);

 private:
  TStatement FKeep;
  TStatement FAll;
  TStatement FOf;
};

}  // namespace algo::terminal::storage
