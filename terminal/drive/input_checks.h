#pragma once

// What the trader's commands have in common: why an input was not taken, and which item of a list is meant.

#include <cstdint>

#include "forms/frame.h"
#include "terminal/drive/arguments.h"

namespace algo::terminal::drive {

/// Throws ECommandError for an input that the control did not take.
void CheckTaken(forms::TInputResult result, const forms::TControl& control);

/// The place of the item that the arguments name, by place or by text. Throws ECommandError when they name
/// none.
std::int32_t ItemOf(const forms::TControl& control, const TArguments& arguments);

}  // namespace algo::terminal::drive
