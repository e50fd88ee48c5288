#pragma once

// The line in which an editor's text is typed: refuses what the editor does not accept, and keeps text and
// selection as the editor has them.

#include <QLineEdit>

#include "forms/editor.h"
#include "terminal/render/frame_input.h"

namespace algo::terminal {

/// Lets the line take what the editor accepts, and sends each change made by key to the frame. Both outlive
/// the line.
void BindLine(QLineEdit& line, forms::TEditor& editor, const TFrameInput& input);

/// Shows text, selection, placeholder and whether it may be changed.
void ShowInLine(QLineEdit& line, const forms::TEditor& editor);

}  // namespace algo::terminal
