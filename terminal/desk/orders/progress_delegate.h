#pragma once

// Draws a filled part, from 0 to 1, as a bar with its percentage.

#include <QStyledItemDelegate>

namespace algo::terminal::desk::orders {

class TProgressDelegate final : public QStyledItemDelegate {
  Q_OBJECT
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  /// With room for the bar around the text.
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace algo::terminal::desk::orders
