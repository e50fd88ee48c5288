#pragma once

// An event of the audit trail as it is stored.

#include <cstdint>
#include <string>

#include "terminal/host/order_storage.h"

namespace algo::terminal::storage {

struct TStoredEvent {
  std::int64_t sequence = 0;  ///< increases with every event, and is never reused
  std::string time;           ///< UTC, "YYYY-MM-DD HH:MM:SS.mmm"
  TOrderEvent event;
  std::string orderKey;  ///< empty for an order that had no key
  double quantity = 0;   ///< this and what follows: of the order, right after the event
  double filled = 0;
  double price = 0;
  std::int32_t status = 0;
};

}  // namespace algo::terminal::storage
