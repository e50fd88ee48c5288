#pragma once

// Whether a view shows what its frame holds.

#include <QStringList>

#include "terminal/render/frame_view.h"

namespace algo::terminal::ui_driver {

/// One line for each widget that shows something else than its control holds, or is to be seen or takes input
/// where the control says otherwise; empty when the view is right, or its frame has gone.
QStringList DifferencesOf(const render::TFrameView& view);

}  // namespace algo::terminal::ui_driver
