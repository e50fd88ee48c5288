#pragma once

// Merges a script's changes into the host's data.

#include "terminal/drive/arguments.h"
#include "terminal/host/host_data.h"

namespace algo::terminal::drive {

/// Merges `changes`, a table by the names that scripts use for the data, into the data: tables key by key at
/// every level, where null removes a key; everything else is replaced, and null restores the value of a new
/// host. Throws ECommandError, with no effect on the data, for an unknown name or a value of the wrong type.
void MergeHostData(const TCommandJson& changes, THostData& data);

}  // namespace algo::terminal::drive
