#pragma once

// What the trader's input operations of a frame are given and answer.

#include <cstdint>

namespace algo::forms {

/// What became of an input of the trader.
enum class TInputResult : std::uint8_t {
  Taken,
  Hidden,      ///< the control, or a layout parent of it, is not shown
  Disabled,    ///< the control, or a layout parent of it, is disabled
  ReadOnly,    ///< the control can be looked at but not changed
  Unsuited,    ///< this kind of control takes no such input
  OutOfRange,  ///< the list has no such item, or the calendar no such day
};

/// How the focus came to a control, other than by a click or by typing into it.
enum class TFocusCause : std::uint8_t {
  Tab,    ///< Tab or Shift+Tab; selects an editor's text, so that what is typed replaces it
  Other,  ///< Enter in another control, a calendar being opened; the caret stays where it was
};

}  // namespace algo::forms
