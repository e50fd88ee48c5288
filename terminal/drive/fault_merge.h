#pragma once

// The failures of services as scripts set them.

#include "terminal/drive/arguments.h"
#include "terminal/host/faults.h"

namespace algo::terminal::drive {

/// Sets the failures that the value lists: each the name of an operation, or a table. Throws ECommandError,
/// with no effect, for a value of another shape, an operation that there is not, and a way of failing that
/// the operation does not have.
void MergeFaults(std::string_view name, const TCommandJson& value, TFaults& into);

}  // namespace algo::terminal::drive
