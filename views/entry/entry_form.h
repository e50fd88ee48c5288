#pragma once

// The entry form made from its tables: its controls and groups by name, what an algorithm shows of it, what a
// reset gives it, and the entries of the algo fields as values. It knows neither host nor order.

#include <array>
#include <span>
#include <vector>

#include "forms/frame.h"
#include "model/algos.h"
#include "model/values.h"
#include "views/entry/field_table.h"

namespace algo::views::entry {

class TEntryForm {
 public:
  /// Makes groups, controls and items in the frame, which outlives the form.
  explicit TEntryForm(forms::TFrame& frame);

  // Controls and layout by name on the form.

  forms::TTextEdit& Edit(TField field) const { return static_cast<forms::TTextEdit&>(Control(field)); }
  forms::TSpinEdit& Spin(TField field) const { return static_cast<forms::TSpinEdit&>(Control(field)); }
  forms::TComboBox& Combo(TField field) const { return static_cast<forms::TComboBox&>(Control(field)); }
  forms::TDateEdit& Date(TField field) const { return static_cast<forms::TDateEdit&>(Control(field)); }
  forms::TCheckBox& Check(TField field) const { return static_cast<forms::TCheckBox&>(Control(field)); }
  forms::TSpeedButton& SideButton(TField field) const {
    return static_cast<forms::TSpeedButton&>(Control(field));
  }
  forms::TControl& Control(TField field) const { return *FControls[IndexOf(field)]; }
  forms::TLayoutItem& Item(TField field) const { return *Control(field).Item(); }
  forms::TLayoutGroup& Group(TGroup group) const { return *FGroups[IndexOf(group)]; }
  forms::TLayoutControl& Layout() const { return FFrame.Layout(); }

  /// The style of the captions that stand out.
  forms::TCaptionStyle& KeyCaptions() { return *FKeyCaptions; }

  // What an algorithm shows.

  /// Hides every group that an algorithm shows, and shows again what one hid inside of them.
  void HideAlgo();

  /// Shows the algorithm's groups, hides the items that it has no use for, and gives its editors the bounds
  /// and first choices of its own.
  void ShowAlgo(const model::TAlgoRow& algo);

  /// Empties every algo field and puts the choices to where a new form has them.
  void EmptyAlgoFields();

  /// The entries of the algo fields.
  model::TParamValues Values() const;

  /// Puts the parameters of `pieces` ("key=value" each) into their editors, in the order of the parameters.
  /// Throws EConversionError at a time that cannot be read, keeping what was loaded before it.
  void LoadParameters(const std::vector<std::string_view>& pieces);

  // What fields do by themselves.

  /// Applies the exit rule of the field's row: a value that stands for "not given" is emptied.
  void ApplyExitRule(TField field);

  /// Moves the focus to the first of the fields that can take it; it stays where none can.
  void FocusNext(std::span<const TField> candidates);

 private:
  void LoadParameter(model::TParam param, const std::vector<std::string_view>& pieces);

  forms::TFrame& FFrame;
  std::array<forms::TControl*, FieldCount> FControls{};
  std::array<forms::TLayoutGroup*, GroupCount> FGroups{};
  forms::TCaptionStyle* FKeyCaptions = nullptr;
};

}  // namespace algo::views::entry
