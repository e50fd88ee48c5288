#pragma once

// The audit trail: what was done to orders, one row per event, in chronological order. Rows are only ever
// added.

#include <string>
#include <string_view>
#include <vector>

#include "terminal/host/order_storage.h"
#include "terminal/storage/statement.h"
#include "terminal/storage/stored_event.h"

namespace algo::terminal::storage {

class TEventRows {
 public:
  /// The connection outlives the object, and its database has the tables of the schema.
  explicit TEventRows(TConnection& connection);

  /// Adds the event with the current figures of the order. Throws EStorageError.
  void Add(const std::string& time, const TOrderEvent& event, const host::TCustomClientOrder& order);

  /// All events, oldest first. Throws EStorageError.
  std::vector<TStoredEvent> All();

  /// The events of the order with that key, oldest first. Throws EStorageError.
  std::vector<TStoredEvent> Of(std::string_view orderKey);

 private:
  TStatement FAdd;
  TStatement FAll;
  TStatement FOf;
};

}  // namespace algo::terminal::storage
