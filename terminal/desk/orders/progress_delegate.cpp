#include "terminal/desk/orders/progress_delegate.h"

#include <QApplication>
#include <QPainter>

#include "terminal/desk/orders/order_model.h"

namespace algo::terminal::desk::orders {

namespace {

constexpr int Margin = 2;

}  // namespace

QSize TProgressDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  return QStyledItemDelegate::sizeHint(option, index) + QSize(2 * Margin, 2 * Margin + 4);
}

void TProgressDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                              const QModelIndex& index) const {
  QStyleOptionViewItem item(option);
  initStyleOption(&item, index);
  const QString text = item.text;
  item.text.clear();
  QApplication::style()->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

  const QRect frame = item.rect.adjusted(Margin, Margin, -Margin - 1, -Margin - 1);
  QRect bar = frame;
  bar.setWidth(static_cast<int>(frame.width() * index.data(TOrderModel::ValueRole).toDouble()));
  const bool selected = item.state.testFlag(QStyle::State_Selected);
  const QPalette& palette = item.palette;
  // On a selected row the two colours are swapped, so that the bar stands out there too.
  const QColor filled = palette.color(selected ? QPalette::Base : QPalette::Highlight);
  const QColor onFilled = palette.color(selected ? QPalette::Text : QPalette::HighlightedText);
  const QColor onEmpty = palette.color(selected ? QPalette::HighlightedText : QPalette::Text);

  painter->save();
  painter->setPen(palette.color(QPalette::Mid));
  painter->drawRect(frame);
  painter->fillRect(bar, filled);
  // Drawn twice, so that the text is readable on either side of the bar's end.
  const auto write = [&](const QRegion& clip, const QColor& color) {
    painter->setClipRegion(clip);
    painter->setPen(color);
    painter->drawText(frame, Qt::AlignCenter, text);
  };
  write(QRegion(frame).subtracted(bar), onEmpty);
  write(bar, onFilled);
  painter->restore();
}

}  // namespace algo::terminal::desk::orders
