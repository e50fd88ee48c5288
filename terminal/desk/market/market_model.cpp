#include "terminal/desk/market/market_model.h"

#include <algorithm>
#include <chrono>
#include <utility>

#include "terminal/desk/session/instrument_name.h"
#include "terminal/render/qt_text.h"
#include "text/number_text.h"

namespace algo::terminal::desk::market {

namespace {

using namespace std::chrono_literals;

/// Changes are shown this often; a trader reads no faster.
constexpr auto ShowInterval = 50ms;

const TMarketColumn& ColumnAt(const QModelIndex& index) {
  return MarketColumns[static_cast<std::size_t>(index.column())];
}

QVariant AlignmentOf(const TMarketColumn& column) {
  const bool isNumber = column.field != 0;
  return QVariant((isNumber ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
}

/// With all decimals, so that the decimal points of a column line up.
QString FixedNumber(double value, int decimals) { return QString::number(value, 'f', decimals); }

}  // namespace

TMarketModel::TMarketModel(const paper::TMarketTables& tables, const appearance::TTexts& texts)
    : FTexts(texts) {
  for (const paper::TPaperInstrument& instrument : tables.instruments)
    FRows.push_back({&instrument, nullptr, {}, true});
  auto& adapter = host::TCustomSubscribeAdapter::GetInstance();
  for (TRow& row : FRows) {
    row.item = adapter.Subscribe(row.instrument->symbol, host::PriceDataSet, true);
    adapter.AddListener(
        row.item, [this, &row](const void*, const host::TItemDictionary*) { MarkChanged(row); }, this);
  }
  FShowTimer.setSingleShot(true);
  FShowTimer.setInterval(ShowInterval);
  connect(&FShowTimer, &QTimer::timeout, this, &TMarketModel::ShowChanged);
  ShowChanged();
}

TMarketModel::~TMarketModel() {
  for (TRow& row : FRows) host::TCustomSubscribeAdapter::GetInstance().Unsubscribe(row.item, this);
}

std::optional<panels::TDraggedPrice> TMarketModel::PriceAt(const QModelIndex& index) const {
  if (!index.isValid()) return std::nullopt;
  const TRow& row = FRows[static_cast<std::size_t>(index.row())];
  const TMarketColumn& column = ColumnAt(index);
  const std::int32_t field = column.kind == TMarketColumnKind::Price ? column.field : host::PriceField;
  return panels::TDraggedPrice{row.instrument->symbol, row.item->FieldNumber(field)};
}

void TMarketModel::Retranslate() {
  emit headerDataChanged(Qt::Horizontal, 0, columnCount({}) - 1);
  if (!FRows.empty()) emit dataChanged(index(0, 0), index(rowCount({}) - 1, columnCount({}) - 1));
}

int TMarketModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(FRows.size());
}

int TMarketModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(MarketColumns.size());
}

QVariant TMarketModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (role == Qt::TextAlignmentRole) {
    return AlignmentOf(ColumnAt(index));
  }
  if (role != Qt::DisplayRole && role != Qt::ToolTipRole) return {};
  return TextOf(FRows[static_cast<std::size_t>(index.row())], static_cast<std::size_t>(index.column()));
}

QVariant TMarketModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal) return {};
  const TMarketColumn& column = MarketColumns[static_cast<std::size_t>(section)];
  if (role == Qt::TextAlignmentRole) return AlignmentOf(column);
  return role == Qt::DisplayRole ? FTexts.Desk(column.textKey) : QVariant();
}

Qt::ItemFlags TMarketModel::flags(const QModelIndex& index) const {
  return QAbstractTableModel::flags(index) | Qt::ItemIsDragEnabled;
}

QMimeData* TMarketModel::mimeData(const QModelIndexList& indexes) const {
  const auto picked = PriceAt(indexes.value(0));
  return picked ? panels::MakePriceData(*picked) : nullptr;
}

QStringList TMarketModel::mimeTypes() const { return {panels::PriceMimeType}; }

void TMarketModel::MarkChanged(TRow& row) {
  row.changed = true;
  if (!FShowTimer.isActive()) FShowTimer.start();
}

void TMarketModel::ShowChanged() {
  for (std::size_t i = 0; i < FRows.size(); ++i) {
    TRow& row = FRows[i];
    if (!std::exchange(row.changed, false)) continue;
    for (std::size_t column = 0; column < MarketColumns.size(); ++column) {
      const double number = NumberOf(row, MarketColumns[column]);
      if (std::exchange(row.shown[column], number) == number) continue;
      const QModelIndex cell = index(static_cast<int>(i), static_cast<int>(column));
      emit dataChanged(cell, cell);
    }
  }
}

double TMarketModel::NumberOf(const TRow& row, const TMarketColumn& column) const {
  const double number = column.field == 0 ? 0 : row.item->FieldNumber(column.field);
  switch (column.kind) {
    case TMarketColumnKind::Price:
      return number * row.instrument->multiplier;
    case TMarketColumnKind::Change: {
      const double reference = row.item->FieldNumber(host::ReferencePriceField);
      return reference > 0 && number > 0 ? (number / reference - 1) * 100 : 0;
    }
    default:
      return number;
  }
}

QVariant TMarketModel::TextOf(const TRow& row, std::size_t column) const {
  constexpr int PriceDecimals = 3;
  constexpr int ChangeDecimals = 2;
  const double number = row.shown[column];
  switch (MarketColumns[column].kind) {
    case TMarketColumnKind::Symbol:
      return render::ToQt(row.instrument->symbol);
    case TMarketColumnKind::Name:
      return render::ToQt(NameIn(FTexts.Language(), row.instrument->name));
    case TMarketColumnKind::Exchange:
      return render::ToQt(row.instrument->exchange);
    case TMarketColumnKind::Price:
      return number == 0 ? QString() : FixedNumber(number, PriceDecimals);
    case TMarketColumnKind::Change:
      return (number > 0 ? "+" : "") + FixedNumber(number, ChangeDecimals) + "%";
    case TMarketColumnKind::Amount:
      break;
  }
  return render::ToQt(text::GroupedNumber(number, 0));
}

}  // namespace algo::terminal::desk::market
