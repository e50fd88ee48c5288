#pragma once

// The line edit of an editor: refuses what the editor does not accept, and shows text and selection as the
// editor has them.

#include <QLineEdit>

#include "forms/editor.h"
#include "terminal/render/frame_input.h"

namespace algo::terminal::render {

/// Lets the line take what the editor accepts, and passes each typed change on to the frame. Both outlive the
/// line.
void BindLine(QLineEdit& line, forms::TEditor& editor, const TFrameInput& input);

/// Shows text, selection and placeholder, and whether the text may be changed.
void ShowInLine(QLineEdit& line, const forms::TEditor& editor);

}  // namespace algo::terminal::render
