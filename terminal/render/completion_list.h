#pragma once

// The list below an account or symbol editor with what may be meant by what was typed so far.

#include <QLineEdit>

#include "terminal/render/editor_aids.h"
#include "terminal/render/frame_input.h"

namespace algo::terminal::render {

/// Offers the matches while the trader types into the line; picking one types it. What is typed already
/// offers nothing any more. All of them outlive the line.
void OfferCompletions(QLineEdit& line, forms::TTextEdit& editor, const TFrameInput& input,
                      const TEditorAids& aids);

/// Closes the list of the line, if one is open, unless a row of it is chosen: then Enter means that row.
/// Returns whether Enter means the row.
bool EnterMeansCompletion(QLineEdit& line);

}  // namespace algo::terminal::render
