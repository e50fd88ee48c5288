// From the click on Submit to the host, step by step in their order: the entries are checked and written into
// an order, the order is marked by its host order type and as an algo order, gets its parameter text and its
// origin, and is handed over.

#include <cstdint>

#include "model/parameter_text.h"
#include "plugin/host_contract/account_adapter.h"
#include "plugin/host_contract/flags/order_flags.h"
#include "plugin/host_contract/order_action_manager.h"
#include "plugin/host_contract/order_adapter.h"
#include "text/number_text.h"
#include "views/entry/entry_frame.h"
#include "views/entry/price_multiplier.h"

namespace algo::views::entry {

void TAlgoOrderEntryFrame::btnBuyClick() {
  FOrderType = host::SideBuy;
  SideButton(TField::btnBuy).SetPressed(true);
}

void TAlgoOrderEntryFrame::btnSellClick() {
  FOrderType = host::SideSell;
  SideButton(TField::btnSell).SetPressed(true);
}

void TAlgoOrderEntryFrame::btnSubmitClick() {
  const host::TOwnedOrder order = host::MakeClientOrder();
  if (!GetOrder(*order)) return;
  SetOrderType(*order);
  SetNativeAlgo(order.get());
  SetOrderAlgo(*order);
  SetAlgoOrder(*order);
  SubmitOrder(*order);
}

// The entries, checked and written into the order.

bool TAlgoOrderEntryFrame::GetOrder(host::TCustomClientOrder& order) {
  if (!Passes(true)) return false;
  FillCommonFields(order);
  return true;
}

bool TAlgoOrderEntryFrame::Passes(bool algoToo) {
  const TEntries entries = Entries();
  auto failure = CheckCommon(entries);
  // A host that closed the form while it was asked, or filled in something else: that is not what the trader
  // pressed the button for.
  if (Detached() || Entries() != entries) return false;
  if (!failure && algoToo) failure = CheckAlgoFields();
  if (failure) Tell(*failure);
  return !failure;
}

TAlgoOrderEntryFrame::TEntries TAlgoOrderEntryFrame::Entries() const {
  return {.side = FOrderType,
          .account = FCurrentAccount,
          .symbol = Edit(TField::edtSymbol).Hint(),
          .item = FSymbol.Item(),
          .quantity = text::TruncateToWhole(Spin(TField::edtQty).Value().value_or(0)),
          .algoIndex = Combo(TField::cmbOrderType).Index()};
}

std::optional<model::TRuleFailure> TAlgoOrderEntryFrame::CheckCommon(const TEntries& entries) const {
  return model::CheckCommonRules({
      .side = entries.side,
      .account = entries.account,
      .accountKnown =
          [](std::string_view account) {
            return host::TCustomAccountAdapter::GetInstance().IsKnown(account);
          },
      .symbol = entries.symbol,
      .hasInstrument = entries.item != nullptr,
      .quantity = entries.quantity,
      .algoChosen = entries.algoIndex >= 0,
  });
}

std::optional<model::TRuleFailure> TAlgoOrderEntryFrame::CheckAlgoFields() const {
  const model::TParamValues values = FForm.Values();
  if (const auto failure = model::CheckTimes(values)) return failure;
  const model::TAlgoRow* algo = FLists.ChosenAlgo();
  return algo == nullptr ? std::nullopt : model::CheckAlgoRules(*algo, values);
}

void TAlgoOrderEntryFrame::FillCommonFields(host::TCustomClientOrder& order) const {
  // The price first: it is the one that may fail, and a failure leaves the order untouched.
  const double price =
      PriceForOrder(Spin(TField::edtPrice).Value().value_or(0), PriceDivisor(FSymbol.Item()));
  order.account = FCurrentAccount;
  order.symbol = Edit(TField::edtSymbol).Hint();
  const std::string_view exchange = FLists.ChosenEntry(TField::cmbExch);
  if (!exchange.empty()) order.exchange = exchange;
  order.quantity = static_cast<double>(text::TruncateToWhole(Spin(TField::edtQty).Value().value_or(0)));
  order.side = FOrderType;
  order.price = price;
}

// The host order type. Bits are only ever added to an order.

void TAlgoOrderEntryFrame::SetOrderType(host::TCustomClientOrder& order) const {
  const model::TOrderTypeRow* row = FLists.ChosenOrderType();
  if (row == nullptr) return;
  if (!row->keepsPrice) order.price = 0;
  switch (row->word) {
    case model::TFlagWord::OrderType:
      order.orderTypeFlags |= row->bits;
      break;
    case model::TFlagWord::Auction:
      order.auctionFlags |= row->bits;
      break;
    case model::TFlagWord::None:
      break;
  }
  if (row->autoTrigger) order.orderTypeFlags |= GetAutoTrigger(order);
}

std::uint32_t TAlgoOrderEntryFrame::GetAutoTrigger(const host::TCustomClientOrder& order) const {
  const host::TMarketDataItem* item = FSymbol.Item();
  if (item == nullptr) return 0;
  return model::AutoTriggerBits(order.orderTypeFlags, order.stopPrice, item->FieldText(host::PriceField),
                                item->FieldText(host::SecondPriceField),
                                item->FieldText(host::ReferencePriceField));
}

// The algorithm.

void TAlgoOrderEntryFrame::SetNativeAlgo(host::TCustomClientOrder* order) const {
  if (order != nullptr) order->algoFlags |= host::flags::NativeAlgo;
}

void TAlgoOrderEntryFrame::SetOrderAlgo(host::TCustomClientOrder& order) const {
  const std::string& code = FLists.ChosenAlgoCode();
  const model::TOrderTypeRow* orderType = FLists.ChosenOrderType();
  const bool marketChildren = orderType != nullptr && orderType->marketChildren;
  order.SetTextProperty(host::AlgoTextProperty,
                        model::ComposeText(marketChildren, code, FLists.ChosenAlgo(), FForm.Values()));
}

// The origin.

void TAlgoOrderEntryFrame::SetAlgoOrder(host::TCustomClientOrder& order) const {
  order.SetNamedText(host::OriginalProperty, std::string(AlgoEntryOrigin));
}

// The host.

void TAlgoOrderEntryFrame::SubmitOrder(host::TCustomClientOrder& order) {
  const auto& popup = Check(TField::cbPopup);
  bool accepted = false;
  // A box that is held disabled means that every order is confirmed, whatever it shows.
  if (popup.Checked() && popup.Enabled()) {
    accepted = host::TCustomOrderActionManager::GetInstance().TakeAction(nullptr, &order,
                                                                         host::TOrderAction::New, 1);
  } else {
    host::TOrderTakeActionRecord record;
    record.order = &order;
    record.action = static_cast<std::int32_t>(host::TOrderAction::New);
    record.viewId = AlgoEntryViewID;
    host::TCustomGlobalChannelManager::GetInstance().Post(host::OrderActionChannel, &record);
    accepted = record.result;
  }
  // The view may have been closed while the confirmation showed.
  if (accepted && !Detached() && Check(TField::cbClear).Checked()) ClearOrder();
}

}  // namespace algo::views::entry
