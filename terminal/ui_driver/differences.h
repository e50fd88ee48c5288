#pragma once

// Whether a view shows what its frame holds.

#include <QStringList>

#include "terminal/render/frame_view.h"

namespace algo::terminal::ui_driver {

/// One line for each widget that shows something other than its control holds, or that is visible or takes
/// input although the control says otherwise; empty if the view is right, or its frame is gone.
QStringList DifferencesOf(const render::TFrameView& view);

}  // namespace algo::terminal::ui_driver
