// The form made from its tables, and what its fields do by themselves.

#include "views/entry/entry_form.h"

#include <algorithm>

namespace algo::views::entry {

namespace {

constexpr std::int32_t SideButtonGroup = 1;

forms::TControl& MakeControl(forms::TFrame& frame, const TFieldRow& row) {
  const std::string name(row.name);
  switch (row.kind) {
    case TFieldKind::Edit:
      return frame.Add<forms::TTextEdit>(name);
    case TFieldKind::Combo:
      return frame.Add<forms::TComboBox>(name);
    case TFieldKind::Date: {
      auto& date = frame.Add<forms::TDateEdit>(name);
      date.SetPickKeepsTime(row.pickKeepsTime);
      return date;
    }
    case TFieldKind::Check:
      return frame.Add<forms::TCheckBox>(name);
    case TFieldKind::Button:
      return frame.Add<forms::TButton>(name);
    case TFieldKind::SpeedButton:
      return frame.Add<forms::TSpeedButton>(name, SideButtonGroup);
    case TFieldKind::Spin:
      break;
  }
  auto& spin = frame.Add<forms::TSpinEdit>(name);
  spin.SetFormat(row.format);
  spin.SetMin(row.bounds.min);
  spin.SetMax(row.bounds.max);
  spin.SetStep(row.step);
  // What an exit rule looks at has to be what was typed, and what it leaves is for the rules to refuse.
  spin.SetBendsTyped(row.exitRule == TExitRule::None);
  return spin;
}

}  // namespace

TEntryForm::TEntryForm(forms::TFrame& frame) : FFrame(frame) {
  const forms::TLayoutUpdate update(Layout());
  for (const TGroupRow& row : GroupRows()) {
    forms::TLayoutGroup* parent = row.parent == TGroup::None ? nullptr : &Group(row.parent);
    FGroups[IndexOf(row.group)] = &Layout().AddGroup(std::string(row.name), parent, row.direction);
  }
  for (const TFieldRow& row : FieldRows()) {
    forms::TControl& control = MakeControl(frame, row);
    FControls[IndexOf(row.field)] = &control;
    Layout().AddItem(std::string(row.item), Group(row.group), control);
    // A lock box needs no boundary: what it does stays inside the form.
    if (row.locks) {
      control.OnChange = [this, lock = row.field, locked = *row.locks] {
        Control(locked).SetEnabled(!Check(lock).Checked());
      };
    }
    if (row.clickSelectsAll) {
      control.OnClick = [&editor = static_cast<forms::TEditor&>(control)] { editor.SelectAll(); };
    }
  }
  // A group inside a group of fields stands behind them.
  for (const TGroupRow& row : GroupRows()) {
    const bool besideFields =
        std::any_of(FieldRows().begin(), FieldRows().end(),
                    [&row](const TFieldRow& field) { return field.group == row.parent; });
    if (besideFields) Layout().Move(Group(row.group), Group(row.parent));
  }
  Group(TGroup::lgVWAP).SetVisible(false);
  FKeyCaptions = &Layout().AddStyle("lslfBold");
}

model::TParamValues TEntryForm::Values() const {
  model::TParamValues values;
  for (const model::TParamRow& row : model::ParamRows()) {
    const TField field = FieldOf(row.param);
    switch (row.kind) {
      case model::TValueKind::Number:
      case model::TValueKind::Whole:
        values.SetNumber(row.param, Spin(field).Value());
        break;
      case model::TValueKind::Choice:
        values.SetChoice(row.param, Combo(field).Index());
        break;
      case model::TValueKind::Time:
        values.SetTime(row.param, Date(field).Value());
        break;
    }
  }
  return values;
}

void TEntryForm::ApplyExitRule(TField field) {
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

void TEntryForm::FocusNext(std::span<const TField> candidates) {
  for (const TField field : candidates) {
    if (Control(field).CanFocus()) return FFrame.SetFocus(&Control(field));
  }
}

}  // namespace algo::views::entry
