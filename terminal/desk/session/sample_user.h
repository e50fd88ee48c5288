#pragma once

// The user of the desktop. A terminal that trades would ask its server who has logged in; this one has a
// sample user with every right and a few accounts.

#include "terminal/host/host_data.h"

namespace algo::terminal::desk {

/// Fills the profile, rights and accounts into the data.
void FillSampleUser(THostData& data);

/// Fills the settings with which a new user begins into the data.
void FillFirstSettings(THostData& data);

}  // namespace algo::terminal::desk
