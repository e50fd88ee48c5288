#pragma once

// The market watch: all instruments with their prices. A double click picks a price for the entry views of
// its link group; a row can be dragged onto one of them.

#include <QTableView>
#include <string>

#include "terminal/desk/desk.h"
#include "terminal/desk/market_model.h"
#include "terminal/desk/panel.h"

namespace algo::terminal {

class TMarketWatch final : public TPanel {
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

  const TTexts& FTexts;
  TMarketModel FModel;
  QTableView& FTable;
};

}  // namespace algo::terminal
