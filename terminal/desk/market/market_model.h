#pragma once

// The market watch as a table for views: one row an instrument. Prices change more often than anybody can
// read, so changes are collected and shown some times a second.

#include <QAbstractTableModel>
#include <QTimer>
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "plugin/host_contract/market_data.h"
#include "terminal/desk/appearance/texts.h"
#include "terminal/desk/market/market_columns.h"
#include "terminal/desk/panels/price_drag.h"
#include "terminal/paper/market_tables.h"

namespace algo::terminal::desk::market {

class TMarketModel final : public QAbstractTableModel {
  Q_OBJECT
 public:
  /// Subscribes to the instruments of the tables at the host's service. Both outlive the model.
  TMarketModel(const paper::TMarketTables& tables, const appearance::TTexts& texts);
  ~TMarketModel() override;

  /// What a trader who picks the cell gets: the price in it, or the last price where it holds none. Nothing
  /// for an index of no cell.
  std::optional<panels::TDraggedPrice> PriceAt(const QModelIndex& index) const;

  /// Shows all texts anew after a change of language.
  void Retranslate();

  int rowCount(const QModelIndex& parent) const override;
  int columnCount(const QModelIndex& parent) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  QMimeData* mimeData(const QModelIndexList& indexes) const override;
  QStringList mimeTypes() const override;

 private:
  struct TRow {
    const paper::TPaperInstrument* instrument = nullptr;
    host::TMarketDataItem* item = nullptr;
    std::array<double, MarketColumns.size()> shown{};  ///< the numbers that the views show
    bool changed = true;
  };

  void MarkChanged(TRow& row);
  void ShowChanged();
  double NumberOf(const TRow& row, const TMarketColumn& column) const;
  QVariant TextOf(const TRow& row, std::size_t column) const;

  const appearance::TTexts& FTexts;
  std::vector<TRow> FRows;
  QTimer FShowTimer;
};

}  // namespace algo::terminal::desk::market
