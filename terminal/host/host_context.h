#pragma once

// What every service of the host works with: the host's data, the receiver of its events, and the storage.

#include <string_view>

#include "terminal/host/host_data.h"
#include "terminal/host/host_events.h"
#include "terminal/host/order_storage.h"

namespace algo::terminal {

struct THostContext {
  THostData& data;
  THostEvents& events;
  TOrderStorage& storage;

  /// See TFaults::Check. Every operation that can be made to fail calls this before it does anything.
  void Check(std::string_view operation) const { data.faults.Check(operation); }
};

}  // namespace algo::terminal
