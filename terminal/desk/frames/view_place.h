#pragma once

// How new views of a provider stand on the screen, as the provider answers it.

#include <Qt>

#include "plugin/host_contract/base_view.h"

namespace algo::terminal::desk::frames {

struct TViewPlace {
  Qt::DockWidgetArea side = Qt::LeftDockWidgetArea;  ///< where a view docks
  bool sideGiven = false;  ///< by the provider; else the side is the desktop's choice
  bool docks = true;       ///< else it floats for good
  bool floats = false;     ///< at first
  bool sizeable = true;    ///< else it has the size of its frame while it floats
};

/// The place of views that the provider opens now.
TViewPlace PlaceOf(host::TIBaseView& provider);

/// The same for a view that opens as a dialog.
TViewPlace DialogPlaceOf(host::TIBaseView& provider);

}  // namespace algo::terminal::desk::frames
