#pragma once

// What a script can see of a frame: the state of its controls, groups and items, and of the form around it.

#include <string_view>

#include "forms/frame.h"
#include "terminal/drive/json.h"

namespace algo::terminal::drive {

/// The state of the control, group or item of that name. Throws ECommandError if the frame has none.
TAnswerJson StateOf(const forms::TFrame& frame, std::string_view name);

/// The state of every control, group and item, by name.
TAnswerJson StatesOf(const forms::TFrame& frame);

/// The state of a form.
TAnswerJson FormState(const forms::TDialogForm& form);

}  // namespace algo::terminal::drive
