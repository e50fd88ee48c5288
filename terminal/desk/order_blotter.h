#pragma once

// The order blotter: all orders, children below their parents, with filters and what can be done to an order.

#include <QComboBox>
#include <QLineEdit>
#include <QTreeView>
#include <functional>
#include <string>

#include "terminal/desk/empty_note.h"
#include "terminal/desk/order_filter.h"
#include "terminal/desk/order_model.h"
#include "terminal/desk/panel.h"
#include "terminal/desk/texts.h"
#include "terminal/host/memory_host.h"

namespace algo::terminal {

/// What can be done to an order in the blotter.
enum class TOrderCommand : std::uint8_t { Change, Work, Copy, Cancel };

class TOrderBlotter final : public TPanel {
  Q_OBJECT
 public:
  /// All of them outlive the blotter.
  TOrderBlotter(TMemoryHost& host, const TTexts& texts);

  void Retranslate();

  /// Whether that can be done to the order now.
  static bool IsOffered(TOrderCommand command, const host::TCustomClientOrder& order);

 signals:
  /// The trader asked for it on an order for which it is offered.
  void Commanded(TOrderCommand command, const host::TCustomClientOrder& order);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget& MakeFilterRow();
  void FitColumns();
  void OpenMenu(const QModelIndex& row, const QPoint& where);
  void Choose(TOrderCommand command, const QModelIndex& row);

  const TTexts& FTexts;
  TOrderModel FOrders;
  TOrderFilter FFilter;
  QTreeView& FTree;
  QComboBox& FShown;
  QLineEdit& FText;
  TEmptyNote* FNote = nullptr;
};

}  // namespace algo::terminal
