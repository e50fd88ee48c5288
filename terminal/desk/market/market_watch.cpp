#include "terminal/desk/market/market_watch.h"

#include <QHeaderView>
#include <QShortcut>

#include "terminal/desk/panels/row_table.h"

namespace algo::terminal::desk::market {

TMarketWatch::TMarketWatch(TDesk& desk)
    : panels::TPanel("marketWatch", true),
      FTexts(desk.Texts()),
      FModel(desk.Tables(), desk.Texts()),
      FTable(*new QTableView) {
  FTable.setObjectName("marketTable");
  FTable.setModel(&FModel);
  panels::ShowRows(FTable);
  FTable.setSelectionMode(QAbstractItemView::SingleSelection);
  FTable.setDragEnabled(true);
  FTable.setDragDropMode(QAbstractItemView::DragOnly);
  FTable.horizontalHeader()->setHighlightSections(false);
  const int character = FTable.fontMetrics().averageCharWidth();
  for (std::size_t i = 0; i < MarketColumns.size(); ++i) {
    FTable.setColumnWidth(static_cast<int>(i), (MarketColumns[i].width + 2) * character);
  }
  setWidget(&FTable);
  connect(&FTable, &QTableView::doubleClicked, this, &TMarketWatch::Pick);
  const auto* enter =
      new QShortcut(QKeySequence(Qt::Key_Return), &FTable, nullptr, nullptr, Qt::WidgetShortcut);
  connect(enter, &QShortcut::activated, this, [this] { Pick(FTable.currentIndex()); });
  Retranslate();
}

void TMarketWatch::Retranslate() {
  SetCaption(FTexts.Desk("Market watch"));
  Title().Retranslate(FTexts);
  FTable.setAccessibleName(FTexts.Desk("Market watch"));
  FModel.Retranslate();
}

void TMarketWatch::Pick(const QModelIndex& index) {
  if (const auto picked = FModel.PriceAt(index)) emit PricePicked(picked->symbol, picked->price);
}

}  // namespace algo::terminal::desk::market
