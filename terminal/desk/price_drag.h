#pragma once

// A line of the market watch on its way to another view.

#include <QMimeData>
#include <optional>
#include <string>

namespace algo::terminal {

struct TDraggedPrice {
  std::string symbol;
  double price = 0;  ///< as the market knows it; 0 for none
};

/// The kind of data under which it travels.
inline constexpr const char* PriceMimeType = "application/x-algo-price";

/// The data that carries it; the caller owns it.
QMimeData* MimeOf(const TDraggedPrice& dragged);

/// What the data carries; nothing for data of another kind.
std::optional<TDraggedPrice> DraggedPrice(const QMimeData& data);

}  // namespace algo::terminal
