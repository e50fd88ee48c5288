// Orders and prices picked in other views of the terminal, copied into the form.

#include <cmath>

#include "model/parameter_text.h"
#include "text/number_text.h"
#include "views/boundary/flag_scope.h"
#include "views/entry/entry_frame.h"
#include "views/entry/price_multiplier.h"

namespace algo::views::entry {

const host::TCustomClientOrder* TAlgoOrderEntryFrame::OrderForThisView(
    const host::TChannelRecord* record) const {
  const auto* copied = dynamic_cast<const host::TOrderCopyRecord*>(record);
  if (copied == nullptr || !FPurpose.takesCopies) return nullptr;
  const auto* order = dynamic_cast<const host::TCustomClientOrder*>(copied->object);
  if (order == nullptr) return nullptr;
  const bool otherGroup = FGlobalValueUpdateMode >= 0 && !FGroupID.empty() && copied->groupId != FGroupID;
  const bool symbolLocked = !Control(TField::edtSymbol).Enabled() && order->symbol != FSymbol.Symbol();
  return otherGroup || symbolLocked ? nullptr : order;
}

void TAlgoOrderEntryFrame::CopyOrder(const void* /*sender*/, host::TChannelRecord* record) {
  if (const auto* order = OrderForThisView(record)) DoCopyOrder(*order);
}

void TAlgoOrderEntryFrame::CopyPrice(const void* /*sender*/, host::TChannelRecord* record) {
  if (const auto* order = OrderForThisView(record)) DoCopyPrice(*order);
}

void TAlgoOrderEntryFrame::CopySymbol(const std::string& symbol) {
  auto& editor = Edit(TField::edtSymbol);
  editor.SetText(symbol);
  editor.SetHint(symbol);
  editor.Commit();
}

void TAlgoOrderEntryFrame::DoCopyOrder(const host::TCustomClientOrder& order) {
  ClearOrder();
  const TFlagScope copying(FSymbol.Copying());
  if (Control(TField::edtSymbol).Enabled()) CopySymbol(order.symbol);
  auto& account = Edit(TField::edtAccount);
  if (account.Enabled()) {
    account.SetText(order.account);
    account.Commit();
    // A user who sees no account field works on the profile's account, whatever the field holds.
    if (!WorksOnProfileAccount()) FCurrentAccount = order.account;
  }
  auto& quantity = Spin(TField::edtQty);
  if (quantity.Enabled()) quantity.SetValue(static_cast<double>(text::TruncateToWhole(order.quantity)));
  FLists.SelectExchange(order.exchange);
  SetDisplayOrderType(order);
  auto& price = Spin(TField::edtPrice);
  if (price.Enabled()) price.SetValue(PriceToShow(order.price, PriceMultiplier(FSymbol.Item())));
  FSymbol.SetPriceFilled(true);
  FSymbol.SetQuantityFilled(true);
  const std::string algoText = order.TextProperty(host::AlgoTextProperty);
  const model::TSplitText split = model::SplitText(algoText);
  InitializeConfirmView(split.algoId, split.pieces);
}

void TAlgoOrderEntryFrame::DoCopyPrice(const host::TCustomClientOrder& order) {
  {
    const TFlagScope copying(FSymbol.Copying());
    const std::string previousSymbol = FSymbol.Symbol();
    if (!order.symbol.empty() && Control(TField::edtSymbol).Enabled()) CopySymbol(order.symbol);
    auto& price = Spin(TField::edtPrice);
    if (std::isfinite(order.price) && order.price != 0 && price.Enabled())
      price.SetValue(PriceToShow(order.price, PriceMultiplier(FSymbol.Item())));
    auto& quantity = Spin(TField::edtQty);
    const auto whole = static_cast<double>(text::TruncateToWhole(order.quantity));
    // A fraction of one is a quantity, of which nothing whole is left; one that no order can have is none.
    if (whole != 0 || (order.quantity != 0 && std::abs(order.quantity) < 1)) {
      if (quantity.Enabled()) quantity.SetValue(whole);
      FSymbol.SetQuantityFilled(true);
    } else {
      FSymbol.SetQuantityFilled(order.symbol == previousSymbol);
    }
    FSymbol.SetPriceFilled(true);
  }
  UpdateSymbolInfo();
}

}  // namespace algo::views::entry
