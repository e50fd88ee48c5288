// The trader's entries as one line of text for the workspace, and back.

#include <algorithm>
#include <array>

#include "plugin/host_contract/editor_manager.h"
#include "plugin/host_contract/view_functions.h"
#include "text/comma_text.h"
#include "text/errors.h"
#include "text/number_text.h"
#include "text/text.h"
#include "views/entry/entry_frame.h"
#include "views/entry/layout_rows.h"

namespace algo::views {

namespace {

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
    const auto row = std::find_if(LayoutRows.begin(), LayoutRows.end(),
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

}  // namespace

std::string TAlgoOrderEntryFrame::GetLayoutData() {
  return AtBoundary(std::string(), [this] {
    std::string line;
    for (const TLayoutRow& row : LayoutRows) {
      if (const auto value = LayoutValue(row)) {
        text::AppendCommaItem(line, std::string(row.key) + "=" + *value);
      }
    }
    return line;
  });
}

std::optional<std::string> TAlgoOrderEntryFrame::LayoutValue(const TLayoutRow& row) const {
  switch (row.kind) {
    case TLayoutKind::Account:
      return FCurrentAccount;
    case TLayoutKind::Symbol:
      return FCurrentSymbol;
    case TLayoutKind::Check:
      return Check(row.field).Checked() ? "1" : "0";
    case TLayoutKind::Choice: {
      const auto& list = ListOf(row.field);
      const std::int32_t index = Combo(row.field).Index();
      if (index < 0 || index >= std::ssize(list) || list[static_cast<std::size_t>(index)].empty())
        return std::nullopt;
      return list[static_cast<std::size_t>(index)];
    }
    case TLayoutKind::Time: {
      std::string text = Date(row.field).Text();
      return text.empty() ? std::nullopt : std::optional(std::move(text));
    }
    case TLayoutKind::Quantity:
    case TLayoutKind::Price:
    case TLayoutKind::Number:
      break;
  }
  if (!Spin(row.field).Value()) return std::nullopt;
  return WithoutSeparators(Spin(row.textFrom).Text());
}

bool TAlgoOrderEntryFrame::SetLayoutData(std::string_view text) {
  return AtBoundary(false, [&] {
    const TLayoutValues values = ReadValues(text);
    const auto apply = [&](std::size_t index) { ApplyLayoutValue(LayoutRows[index], values[index]); };
    for (const std::string_view key : ReadFirst) {
      const auto row = std::find_if(LayoutRows.begin(), LayoutRows.end(),
                                    [key](const TLayoutRow& each) { return each.key == key; });
      apply(static_cast<std::size_t>(row - LayoutRows.begin()));
    }
    for (std::size_t index = ReadFirst.size(); index < LayoutRows.size(); ++index) apply(index);
    host::SendViewNotify(*this, host::ViewChanged);
    return true;
  });
}

void TAlgoOrderEntryFrame::ApplyLayoutValue(const TLayoutRow& row, const std::string& value) {
  if (row.kind == TLayoutKind::Account) {
    return host::TEditorManager::GetInstance().SetAccountLayoutAccount(Edit(row.field), value);
  }
  if (row.kind == TLayoutKind::Symbol) {
    Edit(row.field).SetText(value);
    return Edit(row.field).Commit();
  }
  if (value.empty()) return;
  switch (row.kind) {
    case TLayoutKind::Check:
      Check(row.field).SetChecked(ParseBoolean(value));
      break;
    case TLayoutKind::Choice: {
      const auto& list = ListOf(row.field);
      const auto index = static_cast<std::int32_t>(std::find(list.begin(), list.end(), value) - list.begin());
      if (index < std::ssize(list) && index < Combo(row.field).Count()) Combo(row.field).SetIndex(index);
      break;
    }
    case TLayoutKind::Time:
      Date(row.field).SetText(value);
      break;
    case TLayoutKind::Quantity:
      if (const auto quantity = text::ParseWhole(value).value_or(0); quantity > 0) {
        Spin(row.field).SetValue(static_cast<double>(quantity));
        FQtySet = true;
      }
      break;
    case TLayoutKind::Price:
      if (const double price = text::NumberOr(value, 0); price != 0 && Spin(row.field).Enabled()) {
        Spin(row.field).SetValue(price);
        FPriceSet = true;
      }
      break;
    case TLayoutKind::Number:
      if (const double number = text::NumberOr(value, 0); number != 0) Spin(row.field).SetValue(number);
      break;
    case TLayoutKind::Account:
    case TLayoutKind::Symbol:
      break;
  }
}

}  // namespace algo::views
