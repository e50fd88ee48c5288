#pragma once

// What the input commands have in common: why an input was not taken, and which item of a list is meant.

#include <cstdint>

#include "forms/frame.h"
#include "terminal/drive/arguments.h"

namespace algo::terminal::drive {

/// Throws ECommandError with the reason if the control did not take an input.
void CheckTaken(forms::TInputResult result, const forms::TControl& control);

/// The index of the item that the arguments give by index or by text. Throws ECommandError if they give
/// neither, both, or a text that the list does not have.
std::int32_t ItemOf(const forms::TControl& control, const TArguments& arguments);

}  // namespace algo::terminal::drive
