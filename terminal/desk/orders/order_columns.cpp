#include "terminal/desk/orders/order_columns.h"

#include <array>
#include <string_view>
#include <type_traits>

#include "terminal/desk/orders/order_text.h"
#include "terminal/host/order_status.h"
#include "terminal/render/qt_text.h"
#include "text/number_text.h"

namespace algo::terminal::desk::orders {

namespace {

using TOrder = host::TCustomClientOrder;

/// The cells that show a property of the order as it is.
template <auto Property>
QVariant Cell(const TOrder& order, const appearance::TTexts& /*texts*/) {
  if constexpr (std::is_same_v<decltype(Property), double host::TCustomOrder::*>) {
    return order.*Property;
  } else {
    return render::ToQt(order.*Property);
  }
}

/// A price as a number; nothing for an order without one.
QVariant PriceValue(double price) { return price == 0 ? QVariant() : QVariant(price); }

constexpr std::string_view SideKey = "Side";
constexpr std::string_view ProgressKey = "Progress";

constexpr std::array Columns{
    TOrderColumn{"Order number", 10, false, Cell<&TOrder::orderNo>},
    TOrderColumn{"Account", 13, false, Cell<&TOrder::account>},
    TOrderColumn{"Symbol", 9, false, Cell<&TOrder::symbol>},
    TOrderColumn{"Exchange", 9, false, Cell<&TOrder::exchange>},
    TOrderColumn{SideKey.data(), 6, false,
                 [](const TOrder& order, const appearance::TTexts& texts) {
                   return QVariant(texts.Desk(order.side == host::SideSell ? "Sell" : "Buy"));
                 }},
    TOrderColumn{"Quantity", 11, true, Cell<&TOrder::quantity>},
    TOrderColumn{"Filled quantity", 11, true, Cell<&TOrder::filled>},
    TOrderColumn{ProgressKey.data(), 12, true,
                 [](const TOrder& order, const appearance::TTexts&) { return QVariant(FilledPart(order)); }},
    TOrderColumn{"Price", 9, true,
                 [](const TOrder& order, const appearance::TTexts&) { return PriceValue(order.price); }},
    TOrderColumn{"Average price", 11, true,
                 [](const TOrder& order, const appearance::TTexts&) {
                   return PriceValue(text::NumberOr(order.NamedText(AveragePriceProperty), 0));
                 }},
    TOrderColumn{"Algorithm", 11, false,
                 [](const TOrder& order, const appearance::TTexts&) {
                   return QVariant(render::ToQt(AlgorithmOf(order)));
                 }},
    TOrderColumn{"Order type", 15, false,
                 [](const TOrder& order, const appearance::TTexts& texts) {
                   return QVariant(render::ToQt(texts.Resource(OrderTypeId(order))));
                 }},
    TOrderColumn{"Status", 12, false,
                 [](const TOrder& order, const appearance::TTexts& texts) {
                   return QVariant(texts.Desk(StatusKey(order.status)));
                 }},
    TOrderColumn{"User", 9, false, Cell<&TOrder::user>},
    TOrderColumn{"Parameters", 40, false,
                 [](const TOrder& order, const appearance::TTexts&) {
                   return QVariant(render::ToQt(order.TextProperty(host::AlgoTextProperty)));
                 }},
};

constexpr int PlaceOf(std::string_view key) {
  for (std::size_t i = 0; i < Columns.size(); ++i) {
    if (Columns[i].textKey == key) return static_cast<int>(i);
  }
  return -1;
}
static_assert(PlaceOf(SideKey) >= 0 && PlaceOf(ProgressKey) >= 0);

}  // namespace

std::span<const TOrderColumn> OrderColumns() { return Columns; }

int SideColumn() { return PlaceOf(SideKey); }

int ProgressColumn() { return PlaceOf(ProgressKey); }

}  // namespace algo::terminal::desk::orders
