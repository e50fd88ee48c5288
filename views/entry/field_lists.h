#pragma once

// The lists that follow from the rows of the fields and of the algorithms, made while they are compiled.

#include <algorithm>
#include <array>

#include "model/algo_table.h"
#include "views/entry/field_table.h"

namespace algo::views::entry {

namespace field_lists {

/// The fields to which `Place` gives a place from 1 on, in the order of their places. Two of one place do not
/// compile.
template <auto Place>
consteval auto InPlace() {
  constexpr auto Count = std::count_if(field_rows::Fields.begin(), field_rows::Fields.end(),
                                       [](const TFieldRow& row) { return Place(row) > 0; });
  std::array<const TFieldRow*, Count> rows{};
  std::size_t next = 0;
  for (const TFieldRow& row : field_rows::Fields) {
    if (Place(row) > 0) rows[next++] = &row;
  }
  std::sort(rows.begin(), rows.end(),
            [](const TFieldRow* left, const TFieldRow* right) { return Place(*left) < Place(*right); });
  std::array<TField, Count> fields{};
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if (i > 0 && Place(*rows[i - 1]) == Place(*rows[i])) throw "two fields claim one place";
    fields[i] = rows[i]->field;
  }
  return fields;
}

template <THostEditor::TKind Kind>
constexpr int PlaceOfEditor(const TFieldRow& row) {
  return row.hostEditor.kind == Kind ? row.hostEditor.place : 0;
}

template <THostEditor::TKind Kind>
constexpr int PlaceInGroup(const TFieldRow& row) {
  return row.hostEditor.kind == Kind ? row.hostEditor.placeInGroup : 0;
}

/// The row of the name, which an algorithm gives a group or an item; nothing for any other name.
constexpr std::optional<TGroup> FindGroup(std::string_view name) {
  for (const TGroupRow& row : field_rows::Groups) {
    if (row.name == name) return row.group;
  }
  return {};
}
constexpr std::optional<TField> FindItem(std::string_view name) {
  for (const TFieldRow& row : field_rows::Fields) {
    if (row.item == name) return row.field;
  }
  return {};
}

constexpr bool Shows(const model::TAlgoRow& algo, std::string_view group) {
  return std::find(algo.groups.begin(), algo.groups.end(), group) != algo.groups.end();
}
constexpr bool Hides(const model::TAlgoRow& algo, std::string_view element) {
  return std::find(algo.hiddenItems.begin(), algo.hiddenItems.end(), element) != algo.hiddenItems.end();
}

constexpr bool IsShownBySome(const TGroupRow& row) {
  return std::any_of(model::AlgoTable.begin(), model::AlgoTable.end(),
                     [&row](const model::TAlgoRow& algo) { return Shows(algo, row.name); });
}
constexpr bool IsHiddenBySome(std::string_view element) {
  return std::any_of(model::AlgoTable.begin(), model::AlgoTable.end(),
                     [element](const model::TAlgoRow& algo) { return Hides(algo, element); });
}
constexpr bool IsShownAgain(const TFieldRow& row) {
  return row.shownAgain || (!row.staysHidden && IsHiddenBySome(row.item));
}
constexpr bool IsGroupShownAgain(const TGroupRow& row) { return row.shownAgain || IsHiddenBySome(row.name); }

/// The groups for which `Holds`, in the order of the form.
template <auto Holds>
consteval auto GroupsWhere() {
  constexpr auto Count = std::count_if(field_rows::Groups.begin(), field_rows::Groups.end(), Holds);
  std::array<TGroup, Count> groups{};
  std::size_t next = 0;
  for (const TGroupRow& row : field_rows::Groups) {
    if (Holds(row)) groups[next++] = row.group;
  }
  return groups;
}

/// The fields for which `Holds`, in their order.
template <auto Holds>
consteval auto FieldsWhere() {
  constexpr auto Count = std::count_if(field_rows::Fields.begin(), field_rows::Fields.end(), Holds);
  std::array<TField, Count> fields{};
  std::size_t next = 0;
  for (const TFieldRow& row : field_rows::Fields) {
    if (Holds(row)) fields[next++] = row.field;
  }
  return fields;
}

/// The fields of the list behind the first one, which is `First`.
template <TField First, std::size_t Count>
consteval auto Behind(const std::array<TField, Count>& fields) {
  if (fields.front() != First) throw "another field stands first";
  std::array<TField, Count - 1> rest{};
  std::copy(fields.begin() + 1, fields.end(), rest.begin());
  return rest;
}

constexpr bool IsKeyInput(const TFieldRow& row) { return row.keyInput; }

template <TInChange Amended>
constexpr bool IsInChange(const TFieldRow& row) {
  return row.inChange == Amended;
}

constexpr bool Moves(const TGroupRow& row) { return row.movesInPlace > 0; }

consteval auto GroupsThatMove() {
  auto groups = GroupsWhere<Moves>();
  std::sort(groups.begin(), groups.end(), [](TGroup left, TGroup right) {
    return field_rows::Groups[IndexOf(left)].movesInPlace < field_rows::Groups[IndexOf(right)].movesInPlace;
  });
  return groups;
}

}  // namespace field_lists

/// The price and quantity editors, that of the order itself first, in the order in which the host is given
/// them.
inline constexpr auto PriceEditors =
    field_lists::InPlace<field_lists::PlaceOfEditor<THostEditor::TKind::Price>>();
inline constexpr auto QuantityEditors =
    field_lists::InPlace<field_lists::PlaceOfEditor<THostEditor::TKind::Quantity>>();

/// Those of the algo fields alone.
inline constexpr auto AlgoPriceEditors = field_lists::Behind<TField::edtPrice>(PriceEditors);
inline constexpr auto AlgoQuantityEditors = field_lists::Behind<TField::edtQty>(QuantityEditors);

/// Price and quantity editors in the order in which they are told the symbol once more when the link group
/// changed.
inline constexpr auto PriceEditorsOfGroup =
    field_lists::InPlace<field_lists::PlaceInGroup<THostEditor::TKind::Price>>();
inline constexpr auto QuantityEditorsOfGroup =
    field_lists::InPlace<field_lists::PlaceInGroup<THostEditor::TKind::Quantity>>();

/// The groups that are hidden before an algorithm is applied: all that any of them shows.
inline constexpr auto AllAlgoGroups = field_lists::GroupsWhere<field_lists::IsShownBySome>();

/// What any algorithm hides inside its groups, to be shown again before the next one is applied.
inline constexpr auto ItemsShownAgain = field_lists::FieldsWhere<field_lists::IsShownAgain>();
inline constexpr auto GroupsShownAgain = field_lists::GroupsWhere<field_lists::IsGroupShownAgain>();

/// The groups that stand in the column that the algorithm says, in the order in which they are put behind its
/// own.
inline constexpr auto GroupsThatMove = field_lists::GroupsThatMove();

/// The fields whose captions stand out.
inline constexpr auto KeyInputs = field_lists::FieldsWhere<field_lists::IsKeyInput>();

/// What the change frame opens and closes.
inline constexpr auto OpenInChange = field_lists::FieldsWhere<field_lists::IsInChange<TInChange::Opens>>();
inline constexpr auto ClosedInChange = field_lists::FieldsWhere<field_lists::IsInChange<TInChange::Closes>>();

}  // namespace algo::views::entry
