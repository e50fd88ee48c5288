#pragma once

// The one symbol that a module exports. Through it a host learns whether the two were built for each other,
// makes the module's classes known, and reaches what the module offers beyond its views.

#include <cstdint>

#include "plugin/host_contract/orders.h"
#include "plugin/host_contract/view_frame.h"

namespace algo::host {

/// The version of this contract. It changes with every change of a header of this folder or of the form model
/// that a module built before cannot live with.
inline constexpr std::uint32_t ContractVersion = 3;

/// What a module gives a host. Lives as long as the module is loaded. None of the functions throws.
struct TModuleEntry {
  /// The contract that the module was built for; a host reads it before anything else and goes on only if it
  /// is its own.
  std::uint32_t contractVersion;

  /// Makes the module's classes known in the class registry. Calls nest.
  /// [host → module, at any time]
  void (*start)();
  /// Takes back one start; the last one takes the classes out again.
  /// [host → module, after start]
  void (*stop)();

  /// Writes the algo parameter text that the entries of an algo entry frame give into the order. False, with
  /// the order as it was and the reason reported to the trader, when there is none; false for a frame of
  /// another module.
  /// [host → module, while the instance is open]
  bool (*setOrderAlgo)(TViewFrame& frame, TCustomClientOrder& order);

  /// What is left of a parent order for new child orders, 0 for no order; never negative. Reads the order
  /// store.
  /// [host → module, while the provider lives]
  double (*workParentAvailableQty)(TCustomOrder* parent);
};

/// The name and the type of the symbol that a module exports.
inline constexpr const char* ModuleEntrySymbol = "AlgoOrderEntryModule";
/// [host → module, at any time]
using TModuleEntryFunction = const TModuleEntry* (*)();

}  // namespace algo::host
