#pragma once

// A small form for the tests of the form model: a top group with one item for each control, and helpers that
// note what happens to them.

#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <vector>

#include "forms/dialog_form.h"
#include "forms/frame.h"

namespace algo::forms::tests {

/// What happened, in order.
using TNotes = std::vector<std::string>;

/// More steps than any trader takes at once.
inline constexpr auto MostSteps = std::numeric_limits<std::int32_t>::max();
inline constexpr auto LeastSteps = std::numeric_limits<std::int32_t>::min();

class TSampleFrame : public TFrame {
 public:
  TSampleFrame() : TFrame("TSampleFrame", "layout") {}

  /// Makes a control and puts it into the top group, in an item named after it.
  template <class TKind, class... TArguments>
  TKind& Place(const std::string& name, TArguments&&... arguments) {
    TKind& control = Add<TKind>(name, std::forward<TArguments>(arguments)...);
    Layout().AddItem("li" + name, top, control);
    return control;
  }

  TLayoutGroup& top = Layout().AddGroup("lgTop", nullptr, TDirection::Vertical);
};

/// Notes "<name> left", "<name> changed", "<name> clicked" and "<name> entered" as they happen.
inline void NoteAll(TControl& control, TNotes& notes) {
  const auto note = [&control, &notes](const char* what) {
    return [&control, &notes, what] { notes.push_back(control.Name() + what); };
  };
  control.OnExit = note(" left");
  control.OnChange = note(" changed");
  control.OnClick = note(" clicked");
  control.OnEnterKey = note(" entered");
}

/// Types as the trader does and leaves the frame.
inline void TypeAndLeave(TControl& control, const std::string& text) {
  control.Frame().InputText(control, text);
  control.Frame().InputLeave();
}

}  // namespace algo::forms::tests
