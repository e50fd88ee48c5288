#pragma once

// How much of a parent order is left for new child orders.

#include "plugin/host_contract/orders.h"

namespace algo::views::work {

/// The quantity of `parent` that is free for new children, never negative; 0 for no order. A work parent's
/// children are looked up in the whole order store at each call: a live child holds its whole quantity, one
/// that is done holds what was filled of it. Any other order's own filled and second committed quantity
/// count. Throws EConversionError where the store claims to hold more orders than any does.
double GetWorkParentOrderAvailableQty(const host::TCustomOrder* parent);

}  // namespace algo::views::work
