// Following one symbol: its subscription, and what its market data fills in. Prices are shown multiplied and
// written into orders divided by the item's multiplier; one test decides everywhere whether there is one.

#include <array>
#include <cmath>
#include <limits>
#include <utility>

#include "model/order_types.h"
#include "plugin/host_contract/editor_manager.h"
#include "plugin/host_contract/market_data.h"
#include "text/errors.h"
#include "text/number_text.h"
#include "views/entry/entry_frame.h"

namespace algo::views {

namespace {

constexpr std::array QuantityFields{TField::edtQty,     TField::edtMinQty,  TField::edtStopQty,
                                    TField::edtShowQty, TField::edtJoinQty, TField::edtMaxShowQty};
constexpr std::array AlgoPriceFields{TField::edtThrPx1, TField::edtThrPx2, TField::edtStopLossPx,
                                     TField::edtWPx};

host::TCustomSubscribeAdapter& Subscriptions() { return host::TCustomSubscribeAdapter::GetInstance(); }

// The board lot as a whole number, halves to even; nothing when it is no number of 32 bits.
std::optional<std::int32_t> WholeLot(double lot) {
  const double rounded = std::nearbyint(lot);
  const bool fits = std::isfinite(rounded) && rounded >= std::numeric_limits<std::int32_t>::min() &&
                    rounded <= std::numeric_limits<std::int32_t>::max();
  if (!fits) return std::nullopt;
  return static_cast<std::int32_t>(rounded);
}

}  // namespace

std::optional<double> TAlgoOrderEntryFrame::PriceMultiplier(const host::TMarketDataItem* item) {
  if (item == nullptr || item->State() != host::ItemLive || !item->HasField(host::PriceMultiplierField)) {
    return std::nullopt;
  }
  return text::NumberOr(item->FieldText(host::PriceMultiplierField), 1.0);
}

double TAlgoOrderEntryFrame::PriceToShow(double raw, const host::TMarketDataItem* item) {
  return raw * PriceMultiplier(item).value_or(1.0);
}

double TAlgoOrderEntryFrame::PriceForOrder(double shown, const host::TMarketDataItem* item) {
  const double multiplier = PriceMultiplier(item).value_or(1.0);
  const double price = std::abs(multiplier) > model::PriceEpsilon ? shown / multiplier : shown;
  if (!std::isfinite(price)) throw EConversionError(text::PlainNumber(shown), "a price");
  return price;
}

void TAlgoOrderEntryFrame::UnfollowSymbol() {
  // Let go of first: an item that the host refuses to take back must not serve the next symbol.
  FCurrentSymbol.clear();
  host::TMarketDataItem* item = std::exchange(FCurrentItem, nullptr);
  if (item != nullptr) Subscriptions().Unsubscribe(item, this);
}

void TAlgoOrderEntryFrame::SetSymbol(std::string_view symbol) {
  if (symbol != FCurrentSymbol) {
    UnfollowSymbol();
    if (!symbol.empty()) {
      host::TMarketDataItem* item = Subscriptions().Subscribe(symbol, host::PriceDataSet, true);
      if (item != nullptr)
        Subscriptions().AddListener(item, Handler(&TAlgoOrderEntryFrame::SymbolUpdate), this);
      FCurrentItem = item;
    }
    // Last, so that a symbol at which the host failed can be entered again.
    FCurrentSymbol = symbol;
    auto& editor = Edit(TField::edtSymbol);
    if (editor.Hint() != FCurrentSymbol) {
      editor.SetText(FCurrentSymbol);
      editor.Commit();
    }
  }
  // Before the editors are told, where the host may fail: what the former symbol filled in is not this one's.
  FPriceSet = false;
  FQtySet = false;
  auto& editors = host::TEditorManager::GetInstance();
  editors.SetPriceSymbol(Spin(TField::edtPrice), FCurrentSymbol);
  for (const TField field : QuantityFields) editors.SetQuantitySymbol(Spin(field), FCurrentSymbol);
  for (const TField field : AlgoPriceFields) editors.SetPriceSymbol(Spin(field), FCurrentSymbol);
  UpdateSymbolInfo();
}

void TAlgoOrderEntryFrame::SymbolUpdate(const void* /*sender*/, const host::TItemDictionary* data) {
  if (data == nullptr || data->Count() == 0) return;
  host::TMarketDataItem* item = data->Find(FCurrentSymbol);
  if (item == nullptr) return;
  FCurrentItem = item;
  UpdateSymbolInfo();
}

void TAlgoOrderEntryFrame::SpreadUpdate(const void* /*sender*/, const host::TSpreadDictionary* data) {
  if (FCurrentItem == nullptr || data == nullptr) return;
  if (data->Contains(FCurrentItem->FieldText(host::SpreadCodeField))) UpdateSymbolInfo();
}

void TAlgoOrderEntryFrame::UpdateSymbolInfo() {
  if (FCurrentItem == nullptr || FCurrentItem->State() == host::ItemEmpty || FCopying) return;
  if (!FQtySet) PrefillQuantity();
  if (!FPriceSet) PrefillPrice();
}

void TAlgoOrderEntryFrame::PrefillQuantity() {
  // Set first, so that an item without a lot size is not asked again until the symbol is entered anew.
  FQtySet = true;
  if (!FCurrentItem->HasField(host::LotSizeField)) return;
  const auto lot = WholeLot(FCurrentItem->FieldNumber(host::LotSizeField));
  if (!lot) return;
  FLotSize = *lot;
  auto& quantity = Spin(TField::edtQty);
  if (quantity.Enabled()) quantity.SetValue(FLotSize);
  for (const TField field : QuantityFields) Spin(field).MoveCaretToEnd();
}

void TAlgoOrderEntryFrame::PrefillPrice() {
  FPriceSet = true;
  auto& price = Spin(TField::edtPrice);
  if (price.Enabled()) {
    price.SetValue(PriceToShow(FCurrentItem->FieldNumber(host::PriceField), FCurrentItem));
  }
  price.MoveCaretToEnd();
  for (const TField field : AlgoPriceFields) Spin(field).MoveCaretToEnd();
}

void TAlgoOrderEntryFrame::UpdatePrice() {
  if (FCurrentItem == nullptr) return;
  const bool live = FCurrentItem->State() == host::ItemLive;
  const double price = live ? PriceToShow(FCurrentItem->FieldNumber(host::PriceField), FCurrentItem) : 0.0;
  for (const TField field : AlgoPriceFields) Spin(field).SetValue(price);
  Spin(TField::edtPrice).MoveCaretToEnd();
  for (const TField field : AlgoPriceFields) Spin(field).MoveCaretToEnd();
}

void TAlgoOrderEntryFrame::UpdatePriceEditorState() {
  const model::TOrderTypeRow* row = model::FindOrderTypeById(Chosen().orderType);
  if (row == nullptr) return;
  auto& lock = Check(TField::cbLockPrice);
  Spin(TField::edtPrice).SetEnabled(row->keepsPrice && !lock.Checked());
  lock.SetEnabled(row->keepsPrice);
}

void TAlgoOrderEntryFrame::cbLockPriceChange() { UpdatePriceEditorState(); }

}  // namespace algo::views
