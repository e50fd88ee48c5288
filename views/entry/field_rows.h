#pragma once

// The words in which the rows of the fields are written: what kind of field a row begins with, and then what
// sets it apart.

#include "views/entry/fields.h"

namespace algo::views::entry::field_rows {

// How figures are shown: percentages plain, all else with thousands separators; "7" with seven decimals at
// most.
inline constexpr forms::TNumberFormat Plain{.whole = false, .grouped = false, .decimals = -1};
inline constexpr forms::TNumberFormat Figure{.whole = false, .grouped = true, .decimals = -1};
inline constexpr forms::TNumberFormat Figure7{.whole = false, .grouped = true, .decimals = 7};

using THost = THostEditor::TKind;

/// A row being written; each word gives back the row with one more thing said.
struct TWords : TFieldRow {
  constexpr TWords Text(TFieldText::TPlace place, std::string_view id) const {
    TWords row = *this;
    row.text = {place, id};
    return row;
  }
  constexpr TWords Format(const forms::TNumberFormat& shown) const {
    TWords row = *this;
    row.format = shown;
    // A parameter that is a whole number is typed as one.
    if (row.param) row.format.whole = model::ParamRow(*row.param).kind == model::TValueKind::Whole;
    return row;
  }
  constexpr TWords Step(double by) const {
    TWords row = *this;
    row.step = by;
    return row;
  }
  constexpr TWords Exit(TExitRule rule) const {
    TWords row = *this;
    row.exitRule = rule;
    return row;
  }
  constexpr TWords ClickSelectsAll() const {
    TWords row = *this;
    row.clickSelectsAll = true;
    return row;
  }
  constexpr TWords PickKeepsTime() const {
    TWords row = *this;
    row.pickKeepsTime = true;
    return row;
  }
  constexpr TWords KeyInput() const {
    TWords row = *this;
    row.keyInput = true;
    return row;
  }
  constexpr TWords ShownAgain() const {
    TWords row = *this;
    row.shownAgain = true;
    return row;
  }
  constexpr TWords StaysHidden() const {
    TWords row = *this;
    row.staysHidden = true;
    return row;
  }
  constexpr TWords HostEditor(THost editor, std::uint8_t place, std::uint8_t placeInGroup = 0) const {
    TWords row = *this;
    row.hostEditor = {editor, place, placeInGroup == 0 ? place : placeInGroup};
    return row;
  }
  constexpr TWords InChange(TInChange amended) const {
    TWords row = *this;
    row.inChange = amended;
    return row;
  }
  constexpr TWords Saved(TSaved::TKind as, std::string_view key, std::uint8_t place,
                         std::uint8_t placeRead = 0) const {
    TWords row = *this;
    row.saved = {.kind = as, .key = key, .place = place, .placeRead = placeRead};
    return row;
  }
  /// A parameter is saved under the key of its text.
  constexpr TWords SavedAt(std::uint8_t place, std::uint8_t placeAgain = 0) const {
    TWords row = *this;
    row.saved = {.kind = SavedKind(kind),
                 .key = model::ParamRow(*param).key,
                 .place = place,
                 .placeAgain = placeAgain};
    return row;
  }
  constexpr TWords SavedTextFrom(TField other) const {
    TWords row = *this;
    row.saved.textFrom = other;
    return row;
  }
  constexpr TWords Enter(const TEnterPath& path) const {
    TWords row = *this;
    row.enter = path;
    return row;
  }

 private:
  static constexpr TSaved::TKind SavedKind(TFieldKind kind) {
    if (kind == TFieldKind::Combo) return TSaved::TKind::Choice;
    return kind == TFieldKind::Date ? TSaved::TKind::Time : TSaved::TKind::Number;
  }
};

/// A field of the order itself.
constexpr TWords OfOrder(TFieldKind kind, TField field, std::string_view name, std::string_view item,
                         TGroup group, std::string_view captionId = {}) {
  return {{.field = field, .name = name, .kind = kind, .item = item, .group = group, .captionId = captionId}};
}

/// The lock box of a field; which field it disables is left open where more than the box decides.
constexpr TWords Lock(TField field, std::string_view name, std::string_view item, TGroup group,
                      std::optional<TField> locked) {
  TWords row = OfOrder(TFieldKind::Check, field, name, item, group);
  row.locks = locked;
  return row;
}

/// The field that holds a parameter, whose row says how the control is called, what it holds and within which
/// bounds.
constexpr TWords Param(TField field, model::TParam param, std::string_view item, TGroup group,
                       std::string_view captionId) {
  using enum model::TValueKind;
  const model::TParamRow& held = model::ParamRow(param);
  const bool number = model::IsNumber(held.kind);
  TWords row = OfOrder(number                ? TFieldKind::Spin
                       : held.kind == Choice ? TFieldKind::Combo
                                             : TFieldKind::Date,
                       field, held.control, item, group, captionId);
  row.param = param;
  row.bounds = held.bounds;
  row.clickSelectsAll = held.kind == Time;
  return row;
}

}  // namespace algo::views::entry::field_rows
