#pragma once

// The completion list below an account or symbol editor.

#include <QLineEdit>

#include "terminal/render/editor_assist.h"
#include "terminal/render/frame_input.h"

namespace algo::terminal::render {

/// Offers the matches while the trader types into the line; picking one types it. Once the text is the only
/// match, nothing is offered any more. All arguments outlive the line.
void OfferCompletions(QLineEdit& line, forms::TTextEdit& editor, const TFrameInput& input,
                      const TEditorAssist& assist);

/// Returns whether Enter picks a row of the line's list, which is so if the list is open and a row is
/// selected. Closes the list if it is open without a selected row.
bool EnterMeansCompletion(QLineEdit& line);

}  // namespace algo::terminal::render
