#pragma once

// What an order action does to the orders of the host, independent of where the orders are stored.

#include <string>

#include "plugin/host_contract/orders.h"

namespace algo::terminal {

/// A copy of the order under a new key, which is also its order number.
host::TCustomClientOrder AsNewOrder(const host::TCustomClientOrder& order, const std::string& key);

/// A child of the parent order under a new key: not yet worked, and marked as a child instead of a parent.
host::TCustomClientOrder AsChildOrder(const host::TCustomClientOrder& parent, const std::string& key);

/// The stored order with the requested content. What the market did to it meanwhile (filled quantity, status,
/// average price) stays: a trader changes an order as he saw it a while ago.
host::TCustomClientOrder AsChangedOrder(const host::TCustomClientOrder& stored,
                                        const host::TCustomClientOrder& wanted);

}  // namespace algo::terminal
