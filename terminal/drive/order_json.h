#pragma once

// Orders as JSON, in commands, answers and events.

#include "plugin/host_contract/orders.h"
#include "terminal/drive/arguments.h"

namespace algo::terminal::drive {

/// Every field of the order.
TAnswerJson OrderJson(const host::TCustomOrder& order);

/// The same, or null for no order.
TAnswerJson OrderJson(const host::TCustomOrder* order);

/// Writes the fields that the arguments name into the order. Throws ECommandError, with no effect on the
/// order, for a field of the wrong type; arguments that are not fields are ignored.
void ApplyOrderFields(const TArguments& arguments, host::TCustomClientOrder& order);

}  // namespace algo::terminal::drive
