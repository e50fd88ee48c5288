#pragma once

// The market watch as a table for views: one row an instrument. News of the market come more often than
// anybody can read, so what changed is noted and shown some times a second.

#include <QAbstractTableModel>
#include <QTimer>
#include <array>
#include <optional>
#include <string>
#include <vector>

#include "plugin/host_contract/market_data.h"
#include "terminal/desk/market_columns.h"
#include "terminal/desk/price_drag.h"
#include "terminal/desk/texts.h"
#include "terminal/paper/market_tables.h"

namespace algo::terminal {

class TMarketModel final : public QAbstractTableModel {
  Q_OBJECT
 public:
  /// Subscribes to the instruments of the tables at the host's service. Both outlive the model.
  TMarketModel(const TMarketTables& tables, const TTexts& texts);
  ~TMarketModel() override;

  /// What picking the cell picks: the price in it, or the last price where it holds none. Nothing for an
  /// index of no cell.
  std::optional<TDraggedPrice> PickedAt(const QModelIndex& index) const;

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
    const TPaperInstrument* instrument = nullptr;
    host::TMarketDataItem* item = nullptr;
    std::array<double, MarketColumns.size()> shown{};  ///< the numbers that the views were told of
    bool changed = true;
  };

  void Note(TRow& row);
  void ShowChanged();
  double NumberOf(const TRow& row, const TMarketColumn& column) const;
  QVariant TextOf(const TRow& row, std::size_t column) const;

  const TTexts& FTexts;
  std::vector<TRow> FRows;
  QTimer FPause;
};

}  // namespace algo::terminal
