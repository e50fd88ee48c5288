#include "views/entry/followed_symbol.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

#include "plugin/host_contract/editor_manager.h"
#include "views/entry/field_lists.h"
#include "views/entry/price_multiplier.h"

namespace algo::views::entry {

namespace {

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

TFollowedSymbol::TFollowedSymbol(TEntryForm& form, host::TOwner owner,
                                 host::TCustomSubscribeAdapter::TListener listener)
    : FForm(form), FOwner(owner), FListener(std::move(listener)) {}

void TFollowedSymbol::End() {
  FEnded = true;
  Unfollow();
}

void TFollowedSymbol::Unfollow() {
  ++FTurn;
  // Forgotten first: an item that the host refuses to take back must not serve the next symbol.
  FCurrentSymbol.clear();
  host::TMarketDataItem* item = std::exchange(FCurrentItem, nullptr);
  if (std::exchange(FListening, false) && item != nullptr) Subscriptions().Unsubscribe(item, FOwner);
}

void TFollowedSymbol::SetSymbol(std::string_view symbol) {
  if (FEnded) return;
  // Entered again, a symbol that is followed stays so, even when the host fails.
  if (symbol == FCurrentSymbol) return Prefill();
  const std::string next(symbol);
  const auto turn = FTurn + 1;
  try {
    if (Follow(next)) Prefill();
  } catch (...) {
    // No symbol, rather than one with the former one's quantity and price.
    if (turn == FTurn) Forget();
    throw;
  }
}

bool TFollowedSymbol::Follow(const std::string& symbol) {
  // The host may have another symbol followed, or the form closed, in each of these calls: that is the later
  // wish then.
  const auto overtaken = [this, turn = FTurn + 1] { return turn != FTurn; };
  Unfollow();
  if (overtaken()) return false;
  // First, so that what the host delivers while it takes the listener finds its symbol.
  FCurrentSymbol = symbol;
  if (!symbol.empty()) {
    host::TMarketDataItem* item = Subscriptions().Subscribe(symbol, host::PriceDataSet, true);
    if (overtaken()) return false;
    FCurrentItem = item;
    if (item != nullptr) {
      Subscriptions().AddListener(item, FListener, FOwner);
      if (overtaken()) {
        if (item != FCurrentItem) Subscriptions().Unsubscribe(item, FOwner);
        return false;
      }
      FListening = true;
    }
  }
  auto& editor = FForm.Edit(TField::edtSymbol);
  if (editor.Hint() != FCurrentSymbol) {
    editor.SetText(FCurrentSymbol);
    editor.Commit();
  }
  return !FEnded;
}

void TFollowedSymbol::Prefill() {
  TellEditors();
  if (FEnded) return;
  FPriceSet = false;
  FQtySet = false;
  UpdateSymbolInfo();
}

void TFollowedSymbol::Forget() {
  FForm.Edit(TField::edtSymbol).SetHint({});
  try {
    Unfollow();
  } catch (...) {  // NOLINT(bugprone-empty-catch): the failure that led here is the one to report
  }
}

void TFollowedSymbol::TellEditors() const {
  auto& editors = host::TEditorManager::GetInstance();
  const auto tellPrice = [&](TField field) {
    if (!FEnded) editors.SetPriceSymbol(FForm.Spin(field), FCurrentSymbol);
  };
  const auto tellQuantity = [&](TField field) {
    if (!FEnded) editors.SetQuantitySymbol(FForm.Spin(field), FCurrentSymbol);
  };
  tellPrice(TField::edtPrice);
  std::ranges::for_each(QuantityEditors, tellQuantity);
  std::ranges::for_each(AlgoPriceEditors, tellPrice);
}

void TFollowedSymbol::SymbolUpdate(const host::TItemDictionary* data) {
  if (data == nullptr || data->Count() == 0) return;
  host::TMarketDataItem* item = data->Find(FCurrentSymbol);
  if (item == nullptr) return;
  FCurrentItem = item;
  UpdateSymbolInfo();
}

void TFollowedSymbol::SpreadUpdate(const host::TSpreadDictionary* data) {
  if (FCurrentItem == nullptr || data == nullptr) return;
  if (data->Contains(FCurrentItem->FieldText(host::SpreadCodeField))) UpdateSymbolInfo();
}

void TFollowedSymbol::UpdateSymbolInfo() {
  if (FCurrentItem == nullptr || FCurrentItem->State() == host::ItemEmpty || FCopying) return;
  if (!FQtySet) PrefillQuantity();
  // What the quantity set off may have ended the following.
  if (!FPriceSet && FCurrentItem != nullptr) PrefillPrice();
}

void TFollowedSymbol::PrefillQuantity() {
  // Set first, so that an item without a lot size is not asked again until the symbol is entered anew.
  FQtySet = true;
  if (!FCurrentItem->HasField(host::LotSizeField)) return;
  const auto lot = WholeLot(FCurrentItem->FieldNumber(host::LotSizeField));
  if (!lot) return;
  FLotSize = *lot;
  auto& quantity = FForm.Spin(TField::edtQty);
  if (quantity.Enabled()) quantity.SetValue(FLotSize);
  for (const TField field : QuantityEditors) FForm.Spin(field).MoveCaretToEnd();
}

void TFollowedSymbol::PrefillPrice() {
  FPriceSet = true;
  auto& price = FForm.Spin(TField::edtPrice);
  if (price.Enabled()) {
    price.SetValue(PriceToShow(FCurrentItem->FieldNumber(host::PriceField), PriceMultiplier(FCurrentItem)));
  }
  MovePriceCarets();
}

void TFollowedSymbol::UpdatePrice() {
  if (FCurrentItem == nullptr) return;
  const bool live = FCurrentItem->State() == host::ItemLive;
  const double price =
      live ? PriceToShow(FCurrentItem->FieldNumber(host::PriceField), PriceMultiplier(FCurrentItem)) : 0.0;
  for (const TField field : AlgoPriceEditors) FForm.Spin(field).SetValue(price);
  MovePriceCarets();
}

void TFollowedSymbol::MovePriceCarets() const {
  for (const TField field : PriceEditors) FForm.Spin(field).MoveCaretToEnd();
}

}  // namespace algo::views::entry
