#pragma once

// What an order action does to the orders of the host, apart from where those are kept.

#include <string>

#include "plugin/host_contract/orders.h"

namespace algo::terminal {

/// A copy of the order under a new key, which is its order number too.
host::TCustomClientOrder AsNewOrder(const host::TCustomClientOrder& order, const std::string& key);

/// A child of the parent order under a new key: not worked on yet, and marked as a child instead of a parent.
host::TCustomClientOrder AsChildOrder(const host::TCustomClientOrder& parent, const std::string& key);

/// The stored order with the content that was wanted of it. What the market did to it meanwhile (filled
/// figure, status, average price) stays: a trader who changes an order looked at it a while ago.
host::TCustomClientOrder AsChangedOrder(const host::TCustomClientOrder& stored,
                                        const host::TCustomClientOrder& wanted);

}  // namespace algo::terminal
