#include "views/entry/enter_key_path.h"

#include <algorithm>

#include "views/entry/field_lists.h"

namespace algo::views::entry {

namespace {

constexpr bool IsEntered(const TFieldRow& row) {
  return row.kind == TFieldKind::Edit || row.kind == TFieldKind::Spin || row.kind == TFieldKind::Combo ||
         row.kind == TFieldKind::Date;
}

constexpr bool StandsInPath(const TFieldRow& row) {
  return (IsEntered(row) && !row.enter.outside) || row.field == TField::btnBuy;
}

// The order in which a form is filled in, up to the side buttons; most fields lead to what is left of it
// behind them.
constexpr auto MainPath = [] {
  auto path = field_lists::FieldsWhere<StandsInPath>();
  for (const TFieldRow& row : field_rows::Fields) {
    if (!row.enter.standsAfter) continue;
    const auto own = std::find(path.begin(), path.end(), row.field);
    const auto other = std::find(path.begin(), path.end(), *row.enter.standsAfter);
    std::rotate(own, own + 1, other + 1);
  }
  return path;
}();
static_assert(MainPath.back() == TField::btnBuy);

// The parameter fields lead to the times at last, and only the end time leads on to the side buttons.
std::span<const TField> PathByRule(TField field) {
  const auto* found = std::find(MainPath.data(), MainPath.data() + MainPath.size(), field);
  if (found == MainPath.data() + MainPath.size()) return {};
  const std::span<const TField> rest(found + 1, MainPath.data() + MainPath.size());
  return Row(field).param ? rest.first(rest.size() - 1) : rest;
}

void Append(std::vector<TField>& path, std::span<const TField> fields) {
  path.insert(path.end(), fields.begin(), fields.end());
}

void AppendPath(std::vector<TField>& path, TField field) {
  const TEnterPath& enter = Row(field).enter;
  if (enter.own.empty()) return Append(path, PathByRule(enter.leadsAs.value_or(field)));
  Append(path, enter.own);
  if (enter.goesOnAs) AppendPath(path, *enter.goesOnAs);
}

}  // namespace

std::vector<TField> EnterPath(TField field) {
  std::vector<TField> path;
  if (IsEntered(Row(field))) AppendPath(path, field);
  return path;
}

}  // namespace algo::views::entry
