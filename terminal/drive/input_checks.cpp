#include "terminal/drive/input_checks.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

#include "forms/choices.h"

namespace algo::terminal::drive {

void CheckTaken(forms::TInputResult result, const forms::TControl& control) {
  constexpr std::array<std::string_view, 6> Reasons{
      "", " is not showing", " is disabled", " is read-only", " takes no such input", " has no such item"};
  const auto reason = Reasons[static_cast<std::size_t>(result)];
  if (!reason.empty()) throw ECommandError(control.Name() + std::string(reason));
}

std::int32_t ItemOf(const forms::TControl& control, const TArguments& arguments) {
  if (arguments.Has("index") == arguments.Has("item")) {
    throw ECommandError("either 'index' or 'item' must be given");
  }
  if (arguments.Has("index")) return arguments.Integer("index");
  const auto& text = arguments.Text("item");
  const auto* combo = dynamic_cast<const forms::TComboBox*>(&control);
  if (combo == nullptr) return 0;
  const auto found = std::ranges::find(combo->Items(), text);
  if (found == combo->Items().end()) throw ECommandError(control.Name() + " has no item '" + text + "'");
  return static_cast<std::int32_t>(found - combo->Items().begin());
}

}  // namespace algo::terminal::drive
