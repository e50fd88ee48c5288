#pragma once

// Which views open by themselves once the main window shows.

#include <vector>

#include "plugin/host_contract/base_view.h"

namespace algo::terminal::desk::frames {

/// Those of the providers whose views do, and which the user is offered, in the order in which they open.
std::vector<host::TIBaseView*> StartViews(const std::vector<host::TIBaseView*>& providers);

}  // namespace algo::terminal::desk::frames
