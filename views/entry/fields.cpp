#include "views/entry/fields.h"

#include <algorithm>

#include "views/entry/field_lists.h"

namespace algo::views::entry {

namespace {

using field_rows::Fields;
using field_rows::Groups;

constexpr bool InOrder() {
  for (std::size_t i = 0; i < FieldCount; ++i) {
    if (IndexOf(Fields[i].field) != i) return false;
  }
  for (std::size_t i = 0; i < GroupCount; ++i) {
    if (IndexOf(Groups[i].group) != i) return false;
  }
  return FieldCount == IndexOf(TField::btnSell) + 1;
}

constexpr bool NamesAreUnique() {
  for (std::size_t i = 0; i < FieldCount; ++i) {
    for (std::size_t j = i + 1; j < FieldCount; ++j) {
      if (Fields[i].name == Fields[j].name || Fields[i].item == Fields[j].item) return false;
    }
  }
  return true;
}

// A group is made after the one that it stands in.
constexpr bool ParentsComeFirst() {
  return std::all_of(Groups.begin(), Groups.end(), [](const TGroupRow& row) {
    return row.parent == TGroup::None || row.parent < row.group;
  });
}

constexpr bool EachParameterHasOneField() {
  return std::all_of(model::ParamRows().begin(), model::ParamRows().end(), [](const model::TParamRow& row) {
    return std::count_if(Fields.begin(), Fields.end(),
                         [&row](const TFieldRow& field) { return field.param == row.param; }) == 1;
  });
}

constexpr bool ParametersAreSaved() {
  return std::none_of(Fields.begin(), Fields.end(),
                      [](const TFieldRow& row) { return row.param && row.saved.place == 0; });
}

// What an algorithm shows and hides is there to be shown and hidden.
constexpr bool AlgosNameWhatTheFormHas() {
  return std::all_of(model::AlgoTable.begin(), model::AlgoTable.end(), [](const model::TAlgoRow& algo) {
    return std::all_of(algo.groups.begin(), algo.groups.end(),
                       [](std::string_view name) { return field_lists::FindGroup(name).has_value(); }) &&
           std::all_of(algo.hiddenItems.begin(), algo.hiddenItems.end(), [](std::string_view name) {
             return field_lists::FindGroup(name).has_value() || field_lists::FindItem(name).has_value();
           });
  });
}

static_assert(InOrder(), "the rows stand in another order than their enumeration, or one is missing");
static_assert(NamesAreUnique(), "two fields share a name or an item");
static_assert(ParentsComeFirst(), "a group stands before the one that holds it");
static_assert(EachParameterHasOneField(), "a parameter has no field, or two");
static_assert(ParametersAreSaved(), "the field of a parameter is not saved in the layout text");
static_assert(AlgosNameWhatTheFormHas(), "an algorithm shows or hides what the form does not have");

constexpr auto FieldsByParam = [] {
  std::array<TField, model::ParamCount> fields{};
  for (const TFieldRow& row : Fields) {
    if (row.param) fields[model::IndexOf(*row.param)] = row.field;
  }
  return fields;
}();

}  // namespace

std::span<const TGroupRow> GroupRows() { return Groups; }

std::span<const TFieldRow> FieldRows() { return Fields; }

TField FieldOf(model::TParam param) { return FieldsByParam[model::IndexOf(param)]; }

}  // namespace algo::views::entry
