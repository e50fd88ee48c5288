#pragma once

// An order in words: its algorithm, its type, its status.

#include <cstdint>
#include <string_view>

#include "plugin/host_contract/orders.h"

namespace algo::terminal::desk::orders {

/// The code of the algorithm in the order's parameter text; empty for an order without one.
std::string AlgorithmOf(const host::TCustomOrder& order);

/// The resource id of the order type that the order's flags show; a plain limit order shows none.
std::string_view OrderTypeId(const host::TCustomOrder& order);

/// The text key of the status; "Unknown" for a code that this terminal does not use.
std::string_view StatusKey(std::int32_t status);

/// How much of the order is filled, from 0 to 1; 0 for an order without a quantity.
double FilledPart(const host::TCustomOrder& order);

}  // namespace algo::terminal::desk::orders
