#include "terminal/desk/orders/order_blotter.h"

#include <QContextMenuEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMenu>
#include <QVBoxLayout>
#include <array>

#include "terminal/desk/orders/order_columns.h"
#include "terminal/desk/orders/progress_delegate.h"
#include "terminal/host/order_status.h"

namespace algo::terminal::desk::orders {

namespace {

// In the order of TOrdersShown.
constexpr std::array ShownKeys{"All", "Open", "Done"};

struct TCommandRow {
  TOrderCommand command;
  const char* name;
  const char* textKey;
};
constexpr std::array CommandRows{TCommandRow{TOrderCommand::Change, "changeOrder", "Change…"},
                                 TCommandRow{TOrderCommand::Work, "workOrder", "Work…"},
                                 TCommandRow{TOrderCommand::Copy, "copyOrder", "Copy to entry"},
                                 TCommandRow{TOrderCommand::Cancel, "cancelOrder", "Cancel order"}};

}  // namespace

TOrderBlotter::TOrderBlotter(TMemoryHost& host, const appearance::TTexts& texts)
    : panels::TPanel("orders", true),
      FTexts(texts),
      FOrders(host, texts),
      FFilter(FOrders),
      FTree(*new QTreeView),
      FShownChoice(*new QComboBox),
      FFilterText(*new QLineEdit) {
  FTree.setObjectName("orderTree");
  FTree.setModel(&FFilter);
  FTree.setItemDelegateForColumn(ProgressColumn(), new TProgressDelegate(&FTree));
  FTree.setUniformRowHeights(true);
  FTree.setAlternatingRowColors(true);
  FTree.setAllColumnsShowFocus(true);
  FTree.setSortingEnabled(true);
  FTree.sortByColumn(0, Qt::DescendingOrder);
  FTree.installEventFilter(this);
  FTree.viewport()->installEventFilter(this);
  FTree.header()->setStretchLastSection(true);
  FNote = new panels::TEmptyNote(FTree);
  FitColumns();

  auto* content = new QWidget;
  auto* column = new QVBoxLayout(content);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(2);
  column->addWidget(&MakeFilterRow());
  column->addWidget(&FTree);
  setWidget(content);

  connect(&FTree, &QTreeView::doubleClicked, this,
          [this](const QModelIndex& row) { Choose(TOrderCommand::Copy, row); });
  // A new child is not left hidden below a collapsed parent.
  connect(&FFilter, &QAbstractItemModel::rowsInserted, this,
          [this](const QModelIndex& parent) { FTree.expand(parent); });
  FTree.expandAll();
  Retranslate();
}

void TOrderBlotter::Retranslate() {
  SetCaption(FTexts.Desk("Orders"));
  Title().Retranslate(FTexts);
  FTree.setAccessibleName(FTexts.Desk("Orders"));
  FNote->setText(FTexts.Desk("No orders yet"));
  FFilterText.setPlaceholderText(FTexts.Desk("Filter"));
  FFilterText.setAccessibleName(FTexts.Desk("Filter"));
  FShownChoice.setAccessibleName(FTexts.Desk("Orders shown"));
  for (int i = 0; i < FShownChoice.count(); ++i)
    FShownChoice.setItemText(i, FTexts.Desk(ShownKeys[static_cast<std::size_t>(i)]));
  FOrders.Retranslate();
}

bool TOrderBlotter::IsOffered(TOrderCommand command, const host::TCustomClientOrder& order) {
  switch (command) {
    case TOrderCommand::Change:
    case TOrderCommand::Cancel:
      return !IsDone(order.status);
    case TOrderCommand::Work:
      return !IsDone(order.status) && (order.flags & host::WorkParentMark) != 0;
    case TOrderCommand::Copy:
      break;
  }
  return true;
}

QWidget& TOrderBlotter::MakeFilterRow() {
  auto& bar = *new QWidget;
  auto* row = new QHBoxLayout(&bar);
  row->setContentsMargins(4, 2, 4, 0);
  FShownChoice.setObjectName("ordersShown");
  for (const char* key : ShownKeys) FShownChoice.addItem(key);
  row->addWidget(&FShownChoice);
  FFilterText.setObjectName("orderFilter");
  FFilterText.setClearButtonEnabled(true);
  row->addWidget(&FFilterText, 1);
  connect(&FShownChoice, &QComboBox::currentIndexChanged, &FFilter,
          [this](int place) { FFilter.Show(static_cast<TOrdersShown>(place)); });
  connect(&FFilterText, &QLineEdit::textChanged, &FFilter, &TOrderFilter::ShowText);
  return bar;
}

void TOrderBlotter::FitColumns() {
  const int character = FTree.fontMetrics().averageCharWidth();
  int place = 0;
  for (const TOrderColumn& column : OrderColumns())
    FTree.setColumnWidth(place++, (column.width + 2) * character);
}

bool TOrderBlotter::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::ContextMenu) return panels::TPanel::eventFilter(watched, event);
  const auto& request = *static_cast<QContextMenuEvent*>(event);
  // By key the menu is for the current row; by mouse for the row below the mouse, or for none.
  const bool byKey = request.reason() == QContextMenuEvent::Keyboard;
  const QModelIndex row = byKey ? FTree.currentIndex() : FTree.indexAt(request.pos());
  if (row.isValid()) OpenMenu(row, byKey ? FTree.visualRect(row).center() : request.pos());
  return true;
}

void TOrderBlotter::OpenMenu(const QModelIndex& row, const QPoint& position) {
  const host::TCustomClientOrder* order = FFilter.OrderAt(row);
  auto* menu = new QMenu(this);
  menu->setObjectName("orderMenu");
  menu->setAttribute(Qt::WA_DeleteOnClose);
  for (const TCommandRow& entry : CommandRows) {
    const bool offered = IsOffered(entry.command, *order);
    if (entry.command == TOrderCommand::Work && !offered) continue;
    QAction* action = menu->addAction(FTexts.Desk(entry.textKey));
    action->setObjectName(entry.name);
    action->setEnabled(offered);
    connect(
        action, &QAction::triggered, this,
        [this, command = entry.command, chosen = QPersistentModelIndex(row)] { Choose(command, chosen); });
  }
  menu->popup(FTree.viewport()->mapToGlobal(position));
}

void TOrderBlotter::Choose(TOrderCommand command, const QModelIndex& row) {
  const host::TCustomClientOrder* order = FFilter.OrderAt(row);
  // While the menu was open the order may have been filled, or have left what is shown.
  if (order != nullptr && IsOffered(command, *order)) emit CommandChosen(command, *order);
}

}  // namespace algo::terminal::desk::orders
