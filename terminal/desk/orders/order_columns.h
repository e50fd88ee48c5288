#pragma once

// The columns of the order blotter: one row a column.

#include <QVariant>
#include <cstdint>
#include <span>

#include "plugin/host_contract/orders.h"
#include "terminal/desk/appearance/texts.h"

namespace algo::terminal::desk::orders {

struct TOrderColumn {
  const char* textKey;
  std::int32_t width;  ///< in characters
  bool isNumber;
  /// The value of the order in that column: a number or nothing, or else a text.
  QVariant (*value)(const host::TCustomClientOrder& order, const appearance::TTexts& texts);
};

/// From left to right; the first one carries the tree.
std::span<const TOrderColumn> OrderColumns();

/// Where the side stands among them.
int SideColumn();

/// Where the fill progress stands among them. Its value is the filled part, from 0 to 1.
int ProgressColumn();

}  // namespace algo::terminal::desk::orders
