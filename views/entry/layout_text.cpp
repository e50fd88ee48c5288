#include "views/entry/layout_text.h"

#include <algorithm>
#include <array>

#include "plugin/host_contract/editor_manager.h"
#include "text/comma_text.h"
#include "text/errors.h"
#include "text/number_text.h"
#include "text/text.h"
#include "views/entry/layout_rows.h"

namespace algo::views::entry {

namespace {

using TKind = TSaved::TKind;
using TLayoutValues = std::array<std::string, LayoutRows.size()>;

// The values by row; the first item of a name wins, and items of no known name are passed over.
TLayoutValues ReadValues(std::string_view line) {
  TLayoutValues values;
  std::array<bool, LayoutRows.size()> seen{};
  text::TCommaReader reader(line);
  for (std::string_view item; reader.Next(item);) {
    const std::size_t equals = item.find('=');
    if (equals == std::string_view::npos) continue;
    const std::string_view key = item.substr(0, equals);
    const auto* row = std::find_if(LayoutRows.begin(), LayoutRows.end(),
                                   [key](const TLayoutRow& each) { return each.key == key; });
    const auto index = static_cast<std::size_t>(row - LayoutRows.begin());
    if (row == LayoutRows.end() || seen[index]) continue;
    seen[index] = true;
    values[index] = item.substr(equals + 1);
  }
  return values;
}

bool ParseBoolean(const std::string& value) {
  if (text::EqualNoCase(value, "True")) return true;
  if (text::EqualNoCase(value, "False")) return false;
  if (const auto number = text::ParseWhole(value)) return *number != 0;
  throw EConversionError(value, "a boolean");
}

std::string WithoutSeparators(std::string text) {
  std::erase(text, ',');
  return text;
}

std::optional<std::string> UnlessEmpty(std::string text) {
  return text.empty() ? std::nullopt : std::optional(std::move(text));
}

}  // namespace

std::string TLayoutText::Write(const std::string& account) const {
  std::string line;
  for (const TLayoutRow& row : LayoutRows) {
    if (const auto value = Value(row, account))
      text::AppendCommaItem(line, std::string(row.key) + "=" + *value);
  }
  return line;
}

std::optional<std::string> TLayoutText::Value(const TLayoutRow& row, const std::string& account) const {
  switch (row.kind) {
    case TKind::Account:
      return account;
    case TKind::Symbol:
      return FSymbol.Symbol();
    case TKind::Check:
      return FForm.Check(row.field).Checked() ? "1" : "0";
    case TKind::Choice:
      return UnlessEmpty(std::string(FLists.ChosenEntry(row.field)));
    case TKind::Time:
      return UnlessEmpty(FForm.Date(row.field).ValueText());
    case TKind::Quantity:
    case TKind::Price:
    case TKind::Number:
    case TKind::None:
      break;
  }
  if (!FForm.Spin(row.field).Value()) return std::nullopt;
  return WithoutSeparators(FForm.Spin(row.textFrom).ValueText());
}

void TLayoutText::Read(std::string_view line) {
  const TLayoutValues values = ReadValues(line);
  for (const std::size_t index : LayoutReadOrder) Apply(LayoutRows[index], values[index]);
}

void TLayoutText::Apply(const TLayoutRow& row, const std::string& value) {
  if (row.kind == TKind::Account) {
    return host::TEditorManager::GetInstance().SetAccountLayoutAccount(FForm.Edit(row.field), value);
  }
  if (row.kind == TKind::Symbol) {
    FForm.Edit(row.field).SetText(value);
    return FForm.Edit(row.field).Commit();
  }
  if (value.empty()) return;
  switch (row.kind) {
    case TKind::Check:
      FForm.Check(row.field).SetChecked(ParseBoolean(value));
      break;
    case TKind::Choice:
      FLists.SelectEntry(row.field, value);
      break;
    case TKind::Time:
      FForm.Date(row.field).SetText(value);
      break;
    case TKind::Quantity:
      if (const auto quantity = text::ParseWhole(value).value_or(0); quantity > 0) {
        FForm.Spin(row.field).SetValue(static_cast<double>(quantity));
        FSymbol.SetQuantityFilled(true);
      }
      break;
    case TKind::Price:
      if (const double price = text::NumberOr(value, 0); price != 0 && FForm.Spin(row.field).Enabled()) {
        FForm.Spin(row.field).SetValue(price);
        FSymbol.SetPriceFilled(true);
      }
      break;
    case TKind::Number:
      if (const double number = text::NumberOr(value, 0); number != 0) FForm.Spin(row.field).SetValue(number);
      break;
    case TKind::Account:
    case TKind::Symbol:
    case TKind::None:
      break;
  }
}

}  // namespace algo::views::entry
