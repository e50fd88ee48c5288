#pragma once

// Places in a menu bar that goes by numbers: the terminal's own menus and those that views of modules
// describe stand side by side, ordered by their indexes.

#include <QAction>
#include <QMenuBar>
#include <cstdint>

#include "plugin/host_contract/base_view.h"

namespace algo::terminal {

/// A place in the menus: an entry is known by its id and stands by its index.
struct TMenuPlace {
  std::int32_t id = 0;
  std::int32_t index = 0;
};

/// The menu with that id in the bar, which is made with the caption when it is not there yet.
QMenu& MenuIn(QMenuBar& bar, const TMenuPlace& place, const QString& caption);

/// Makes the entry that the view describes, with the menus on the way to it. nullptr when the user is not
/// offered the view.
QAction* PlaceView(QMenuBar& bar, host::TIBaseView& view);

}  // namespace algo::terminal
