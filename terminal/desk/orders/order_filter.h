#pragma once

// Which orders the blotter shows, and in which order. A parent shows as long as one of its children does.

#include <QSortFilterProxyModel>
#include <cstdint>

#include "terminal/desk/orders/order_model.h"

namespace algo::terminal::desk::orders {

enum class TOrdersShown : std::uint8_t { All, Open, Done };

class TOrderFilter final : public QSortFilterProxyModel {
  Q_OBJECT
 public:
  explicit TOrderFilter(TOrderModel& orders);

  void Show(TOrdersShown shown);
  /// Shows the orders that have the text in one of their columns, in upper or lower case; all for an empty
  /// text.
  void ShowText(const QString& text);

  /// The order of the row; nullptr for an index of no row.
  const host::TCustomClientOrder* OrderAt(const QModelIndex& index) const;

 protected:
  bool filterAcceptsRow(int row, const QModelIndex& parent) const override;

 private:
  TOrderModel& FOrders;
  TOrdersShown FShown = TOrdersShown::All;
  QString FText;
};

}  // namespace algo::terminal::desk::orders
