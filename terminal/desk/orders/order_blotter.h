#pragma once

// The order blotter: all orders, children below their parents, with filters and what can be done to an order.

#include <QComboBox>
#include <QLineEdit>
#include <QTreeView>
#include <functional>
#include <string>

#include "terminal/desk/appearance/texts.h"
#include "terminal/desk/orders/order_filter.h"
#include "terminal/desk/orders/order_model.h"
#include "terminal/desk/panels/empty_note.h"
#include "terminal/desk/panels/panel.h"
#include "terminal/host/memory_host.h"

namespace algo::terminal::desk::orders {

/// What can be done to an order in the blotter.
enum class TOrderCommand : std::uint8_t { Change, Work, Copy, Cancel };

class TOrderBlotter final : public panels::TPanel {
  Q_OBJECT
 public:
  /// All of them outlive the blotter.
  TOrderBlotter(TMemoryHost& host, const appearance::TTexts& texts);

  void Retranslate();

  /// Whether the command can be carried out on the order now.
  static bool IsOffered(TOrderCommand command, const host::TCustomClientOrder& order);

 signals:
  /// The trader chose the command for an order for which it is offered.
  void CommandChosen(TOrderCommand command, const host::TCustomClientOrder& order);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget& MakeFilterRow();
  void FitColumns();
  void OpenMenu(const QModelIndex& row, const QPoint& position);
  void Choose(TOrderCommand command, const QModelIndex& row);

  const appearance::TTexts& FTexts;
  TOrderModel FOrders;
  TOrderFilter FFilter;
  QTreeView& FTree;
  QComboBox& FShownChoice;
  QLineEdit& FFilterText;
  panels::TEmptyNote* FNote = nullptr;
};

}  // namespace algo::terminal::desk::orders
