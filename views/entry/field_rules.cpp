// What the fields do by themselves: on leaving, on Enter, and when they are locked.

#include <string>

#include "text/text.h"
#include "views/entry/enter_key_path.h"
#include "views/entry/entry_frame.h"

namespace algo::views {

void TAlgoOrderEntryFrame::ApplyExitRule(TField field) {
  auto& spin = Spin(field);
  const TExitRule rule = Row(field).exitRule;
  const auto emptyAt = [&spin](std::optional<double> notGiven) {
    if (notGiven && spin.Value() == notGiven) spin.SetValue(std::nullopt);
  };
  if (rule == TExitRule::Bounds) {
    emptyAt(spin.Min());
    emptyAt(spin.Max());
    return;
  }
  emptyAt(0.0);
  if (rule == TExitRule::ZeroOrMax) emptyAt(spin.Max());
}

void TAlgoOrderEntryFrame::FocusAfter(TField field) {
  const TEnterRow* row = FindEnterRow(field);
  if (row != nullptr) FocusNext(row->first, row->then);
}

void TAlgoOrderEntryFrame::FocusNext(std::span<const TField> candidates, std::span<const TField> then) {
  for (const auto& run : {candidates, then}) {
    for (const TField field : run) {
      if (Control(field).CanFocus()) return SetFocus(&Control(field));
    }
  }
}

void TAlgoOrderEntryFrame::edtAccountExit() {
  FCurrentAccount = std::string(text::Trim(Edit(TField::edtAccount).Text()));
}

void TAlgoOrderEntryFrame::edtSymbolExit() {
  const std::string hint = Edit(TField::edtSymbol).Hint();
  SetSymbol(text::Trim(hint));
}

}  // namespace algo::views
