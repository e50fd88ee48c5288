#pragma once

// Menus ordered by numbers, so that the terminal's own menus and those that views of modules describe stand
// in one menu bar.

#include <QAction>
#include <QMenuBar>
#include <cstdint>

#include "plugin/host_contract/base_view.h"

namespace algo::terminal::desk::window {

/// A place in the menus: the id identifies the entry, the index orders it.
struct TMenuPlace {
  std::int32_t id = 0;
  std::int32_t index = 0;
};

/// The menu with that id in the bar; made with the caption when there is none yet.
QMenu& MenuIn(QMenuBar& bar, const TMenuPlace& place, const QString& caption);

/// Adds the entry that the view describes, with the menus that lead to it. nullptr when the user is not
/// offered the view.
QAction* AddViewEntry(QMenuBar& bar, host::TIBaseView& view);

}  // namespace algo::terminal::desk::window
