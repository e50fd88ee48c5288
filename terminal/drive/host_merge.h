#pragma once

// Putting what a script says of the host into the host's data.

#include "terminal/drive/arguments.h"
#include "terminal/host/host_data.h"

namespace algo::terminal::drive {

/// Merges `changes`, a table by the names that scripts have for the data, into the data: tables key by key at
/// every level, where null takes a key out; everything else is replaced, and null brings back what a new host
/// has. Throws ECommandError, with no effect on the data, for a name that a host does not have and for a
/// value of the wrong type.
void MergeHostData(const TCommandJson& changes, THostData& data);

}  // namespace algo::terminal::drive
