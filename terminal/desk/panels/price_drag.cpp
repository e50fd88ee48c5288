#include "terminal/desk/panels/price_drag.h"

#include <QByteArrayList>

#include "text/number_text.h"

namespace algo::terminal::desk::panels {

QMimeData* MakePriceData(const TDraggedPrice& dragged) {
  auto* data = new QMimeData;
  // The price goes first, since a symbol may be any text.
  data->setData(PriceMimeType,
                QByteArray::fromStdString(text::PlainNumber(dragged.price) + ' ' + dragged.symbol));
  return data;
}

std::optional<TDraggedPrice> ReadPriceData(const QMimeData& data) {
  const std::string line = data.data(PriceMimeType).toStdString();
  const std::size_t gap = line.find(' ');
  if (gap == std::string::npos) return std::nullopt;
  const auto price = text::ParseNumber(std::string_view(line).substr(0, gap));
  if (!price) return std::nullopt;
  return TDraggedPrice{line.substr(gap + 1), *price};
}

}  // namespace algo::terminal::desk::panels
