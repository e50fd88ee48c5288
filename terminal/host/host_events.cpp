#include "terminal/host/host_events.h"

namespace algo::terminal {

THostEvents::~THostEvents() = default;

}  // namespace algo::terminal
