#include "terminal/desk/orders/order_filter.h"

#include "terminal/host/order_status.h"

namespace algo::terminal::desk::orders {

TOrderFilter::TOrderFilter(TOrderModel& orders) : FOrders(orders) {
  setSourceModel(&orders);
  setRecursiveFilteringEnabled(true);
  setSortRole(TOrderModel::ValueRole);
  setDynamicSortFilter(true);
}

void TOrderFilter::Show(TOrdersShown shown) {
  FShown = shown;
  invalidateFilter();
}

void TOrderFilter::ShowText(const QString& text) {
  FText = text.trimmed();
  invalidateFilter();
}

const host::TCustomClientOrder* TOrderFilter::OrderAt(const QModelIndex& index) const {
  return FOrders.OrderAt(mapToSource(index));
}

bool TOrderFilter::filterAcceptsRow(int row, const QModelIndex& parent) const {
  const QModelIndex first = FOrders.index(row, 0, parent);
  const host::TCustomClientOrder& order = *FOrders.OrderAt(first);
  if (FShown != TOrdersShown::All && IsDone(order.status) != (FShown == TOrdersShown::Done)) return false;
  if (FText.isEmpty()) return true;
  for (int column = 0; column < FOrders.columnCount(parent); ++column) {
    if (first.siblingAtColumn(column).data().toString().contains(FText, Qt::CaseInsensitive)) return true;
  }
  return false;
}

}  // namespace algo::terminal::desk::orders
