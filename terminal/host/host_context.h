#pragma once

// What every service of the host works on: the host's data, and whom it tells what it sees.

#include <string_view>

#include "terminal/host/host_data.h"
#include "terminal/host/host_events.h"
#include "terminal/host/order_storage.h"

namespace algo::terminal {

struct THostContext {
  THostData& data;
  THostEvents& events;
  TOrderStorage& keeper;

  /// See TFaults::Check. Every operation that can be told to fail asks this before it does anything.
  void Check(std::string_view operation) const { data.faults.Check(operation); }
};

}  // namespace algo::terminal
