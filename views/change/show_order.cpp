// An order shown in the form, with its identity locked and the fields that may be changed open.

#include <algorithm>

#include "model/order_types.h"
#include "model/parameter_text.h"
#include "plugin/host_contract/editor_manager.h"
#include "text/number_text.h"
#include "views/change/change_frame.h"
#include "views/entry/field_lists.h"
#include "views/entry/price_multiplier.h"

namespace algo::views::change {

bool TAlgoOrderChangeFrame::PriceMayBeSet(const host::TCustomOrder& order) {
  return model::PriceMayBeSet(order.orderTypeFlags, order.auctionFlags, order.price);
}

void TAlgoOrderChangeFrame::InitializeViewbyOrder(host::TCustomClientOrder& order) {
  const forms::TLayoutUpdate update(Layout());
  auto& editors = host::TEditorManager::GetInstance();
  for (const TField field : entry::PriceEditors) {
    if (!Detached()) editors.SetPriceSymbol(Spin(field), order.symbol);
  }
  // Only looked at: the frame follows no symbol of its own.
  const host::TMarketDataItem* item =
      host::TCustomSubscribeAdapter::GetInstance().Subscribe(order.symbol, host::PriceDataSet, false);
  const host::TInstrument* instrument =
      host::TCustomMarketAdapter::GetInstance().FindInstrument(order.symbol);
  Lists().LetAlgoStandIn();
  Lists().SelectExchange(order.exchange);
  const std::string algoText = order.TextProperty(host::AlgoTextProperty);
  const model::TSplitText split = model::SplitText(algoText);
  ShowIdentity(order, item);
  LockIdentity();
  StepByLot(item, instrument);
  ResetInputUI();
  InitializeConfirmView(split.algoId, split.pieces);
  if (FOrderOperatorMode == TOperatorMode::Change) {
    SetChangeViewVisible(split.algoId);
  } else {
    SetConfirmViewVisible();
  }
  ShowAlgoPart(order);
}

void TAlgoOrderChangeFrame::ShowIdentity(const host::TCustomClientOrder& order,
                                         const host::TMarketDataItem* item) {
  for (const TField field : {TField::edtAccount, TField::edtSymbol}) Control(field).SetEnabled(false);
  Edit(TField::edtAccount).SetText(order.account);
  Edit(TField::edtSymbol).SetText(order.symbol);
  SetDisplayOrderType(order);
  Control(TField::cmbMType).SetEnabled(false);
  Control(TField::cbLockMOrder).SetEnabled(false);
  // After the order type, whose choice decides about the price too.
  auto& price = Spin(TField::edtPrice);
  FPriceDivisor = entry::PriceDivisor(item);
  price.SetValue(entry::PriceToShow(order.price, FPriceDivisor));
  FShownPrice = price.Value();
  price.SetEnabled(PriceMayBeSet(order));
  auto& quantity = Spin(TField::edtQty);
  quantity.SetStep(1);
  quantity.SetValue(order.quantity);
  Item(TField::btnBuy).SetVisible(order.side == host::SideBuy);
  Item(TField::btnSell).SetVisible(order.side == host::SideSell);
}

void TAlgoOrderChangeFrame::LockIdentity() {
  Group(TGroup::lgSubmit).SetVisible(false);
  for (const TField field : entry::ClosedInChange) Control(field).SetEnabled(false);
}

void TAlgoOrderChangeFrame::StepByLot(const host::TMarketDataItem* item,
                                      const host::TInstrument* instrument) {
  std::int64_t lot = 1;
  if (item != nullptr && item->State() == host::ItemLive) {
    lot = text::ParseWhole(item->FieldText(host::LotSizeField)).value_or(0);
  } else if (instrument != nullptr && !instrument->lotText.empty()) {
    lot = text::ParseWhole(instrument->lotText).value_or(0);
  }
  for (const TField field : entry::QuantityEditors) {
    Spin(field).SetStep(static_cast<double>(std::max<std::int64_t>(lot, 1)));
    Spin(field).SetMin(0);
  }
}

void TAlgoOrderChangeFrame::SetChangeViewVisible(std::string_view algoId) {
  Item(TField::cbClear).SetVisible(false);
  Item(TField::cbPopup).SetVisible(false);
  EnableAmendable();
  const model::TAlgoRow* algo = model::FindAlgoByCode(algoId);
  if (algo == nullptr) return;
  for (const model::TParam param : algo->fixedWhileWorking) Control(entry::FieldOf(param)).SetEnabled(false);
}

void TAlgoOrderChangeFrame::SetConfirmViewVisible() {
  Item(TField::cbClear).SetVisible(false);
  Item(TField::cbPopup).SetVisible(true);
  EnableAmendable();
}

void TAlgoOrderChangeFrame::EnableAmendable() {
  for (const TField field : entry::OpenInChange) Control(field).SetEnabled(true);
}

void TAlgoOrderChangeFrame::ShowAlgoPart(host::TCustomClientOrder& order) {
  const bool workParent = GetWorkOrder(order);
  Group(TGroup::lgOrd).SetVisible(!workParent);
  Group(TGroup::lgAlgo).SetVisible(!workParent);
  if (!workParent) return;
  Control(TField::cmbMType).SetEnabled(false);
  order.SetTextProperty(host::AlgoTextProperty, {});
  Item(TField::cbClear).SetVisible(false);
  Item(TField::cbPopup).SetVisible(false);
}

}  // namespace algo::views::change
