#include "terminal/host/host_events.h"

namespace algo::terminal {

THostEvents::~THostEvents() = default;

void THostEvents::FormLooksChanged(forms::TDialogForm& /*form*/) {}

}  // namespace algo::terminal
