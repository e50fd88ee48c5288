#pragma once

// A line of the market watch while it is dragged to another view.

#include <QMimeData>
#include <optional>
#include <string>

namespace algo::terminal::desk::panels {

struct TDraggedPrice {
  std::string symbol;
  double price = 0;  ///< as the market knows it; 0 for none
};

/// The kind of the data.
inline constexpr const char* PriceMimeType = "application/x-algo-price";

/// The dragged price as data; the caller owns it.
QMimeData* MakePriceData(const TDraggedPrice& dragged);

/// The dragged price in the data; nothing for data of another kind.
std::optional<TDraggedPrice> ReadPriceData(const QMimeData& data);

}  // namespace algo::terminal::desk::panels
