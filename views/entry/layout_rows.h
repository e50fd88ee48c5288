#pragma once

// The items of the layout text, one row each in the order in which they are written, as the rows of the
// fields give them.

#include <algorithm>
#include <array>
#include <string_view>

#include "views/entry/field_table.h"

namespace algo::views::entry {

struct TLayoutRow {
  std::string_view key;
  TSaved::TKind kind;
  TField field;     ///< the control that decides whether the item is written, and into which it is read
  TField textFrom;  ///< the control whose text is written
};

namespace layout_rows {

consteval std::size_t Count() {
  std::size_t count = 0;
  for (const TFieldRow& row : field_rows::Fields) {
    count += (row.saved.place > 0 ? 1U : 0U) + (row.saved.placeAgain > 0 ? 1U : 0U);
  }
  return count;
}

// A place that is free or taken twice does not compile.
consteval auto Rows() {
  std::array<TLayoutRow, Count()> rows{};
  std::array<bool, Count()> taken{};
  const auto put = [&](std::size_t place, const TFieldRow& row) {
    if (place == 0) return;
    if (taken.at(place - 1)) throw "two items of the layout text claim one place";
    taken[place - 1] = true;
    rows[place - 1] = {row.saved.key, row.saved.kind, row.field, row.saved.textFrom.value_or(row.field)};
  };
  for (const TFieldRow& row : field_rows::Fields) {
    put(row.saved.place, row);
    put(row.saved.placeAgain, row);
  }
  return rows;
}

consteval auto ReadOrder() {
  const auto written = Rows();
  std::array<std::size_t, Count()> order{};
  for (std::size_t i = 0; i < order.size(); ++i) order[i] = i;
  const auto place = [&written](std::size_t index) -> std::size_t {
    const std::size_t first = field_rows::Fields[IndexOf(written[index].field)].saved.placeRead;
    return first > 0 ? first : 1000 + index;
  };
  std::sort(order.begin(), order.end(),
            [&](std::size_t left, std::size_t right) { return place(left) < place(right); });
  for (std::size_t i = 1; i < order.size(); ++i) {
    if (place(order[i - 1]) == place(order[i])) throw "two items of the layout text are read in one place";
  }
  return order;
}

}  // namespace layout_rows

inline constexpr auto LayoutRows = layout_rows::Rows();

/// The rows by index in the order in which they are read: first those whose choice decides what the others
/// find.
inline constexpr auto LayoutReadOrder = layout_rows::ReadOrder();

}  // namespace algo::views::entry
