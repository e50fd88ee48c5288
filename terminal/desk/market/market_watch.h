#pragma once

// The market watch: all instruments with their prices. A double click copies a price to the entry views of
// its link group; a row can be dragged onto one of them.

#include <QTableView>
#include <string>

#include "terminal/desk/market/market_model.h"
#include "terminal/desk/panels/panel.h"
#include "terminal/desk/session/desk.h"

namespace algo::terminal::desk::market {

class TMarketWatch final : public panels::TPanel {
  Q_OBJECT
 public:
  /// The desk outlives the watch.
  explicit TMarketWatch(TDesk& desk);

  void Retranslate();

 signals:
  /// The trader picked the price, as the market knows it; 0 for the symbol alone.
  void PricePicked(const std::string& symbol, double price);

 private:
  void Pick(const QModelIndex& index);

  const appearance::TTexts& FTexts;
  TMarketModel FModel;
  QTableView& FTable;
};

}  // namespace algo::terminal::desk::market
