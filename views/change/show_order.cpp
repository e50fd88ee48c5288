// An order shown in the form, with its identity locked and the fields that may be changed open.

#include <array>
#include <cmath>

#include "model/order_types.h"
#include "model/parameter_text.h"
#include "plugin/host_contract/editor_manager.h"
#include "text/number_text.h"
#include "text/text.h"
#include "views/change/change_frame.h"

namespace algo::views {

namespace {

constexpr std::array PriceFields{TField::edtPrice, TField::edtThrPx1, TField::edtThrPx2,
                                 TField::edtStopLossPx, TField::edtWPx};

constexpr std::array LotFields{TField::edtQty,     TField::edtStopQty, TField::edtMinQty,
                               TField::edtShowQty, TField::edtJoinQty, TField::edtMaxShowQty};

// What may be changed of an order, and of one that is about to be sent.
constexpr std::array Amendable{
    TField::deSTime,    TField::edtJoinThr,     TField::cmbJoin,   TField::edtJoinQty, TField::cmbIceberg,
    TField::edtTimeOut, TField::edtRandTimeOut, TField::cmbRef,    TField::edtDiffPct, TField::edtTickDiff,
    TField::edtShowQty, TField::edtStopLossPx,  TField::cmbFunc,   TField::cmbOpening, TField::edtOpenPct,
    TField::cmbClosing, TField::cmbAccuVol,     TField::edtThrPx1, TField::edtThrPx2,
};

constexpr std::array Identity{TField::cmbExch,      TField::cmbOrderType, TField::cbLockAcct,
                              TField::cbLockSymbol, TField::cbLockExch,   TField::cbLockOrderType,
                              TField::cbLockPrice,  TField::cbLockQty};

}  // namespace

bool TAlgoOrderChangeFrame::PriceMayBeSet(const host::TCustomOrder& order) {
  return model::PriceMayBeSet(order.orderTypeFlags, order.auctionFlags, order.price);
}

void TAlgoOrderChangeFrame::InitializeViewbyOrder(host::TCustomClientOrder& order) {
  const forms::TLayoutUpdate update(Layout());
  auto& editors = host::TEditorManager::GetInstance();
  for (const TField field : PriceFields) editors.SetPriceSymbol(Spin(field), order.symbol);
  // Only looked at: the frame follows no symbol of its own.
  const host::TMarketDataItem* item =
      host::TCustomSubscribeAdapter::GetInstance().Subscribe(order.symbol, host::PriceDataSet, false);
  FAlgoNotOffered = false;
  SelectExchange(order.exchange);
  const std::string algoText = order.TextProperty(host::AlgoTextProperty);
  const model::TSplitText split = model::SplitText(algoText);
  ShowIdentity(order, item);
  LockIdentity();
  StepByLot(item, order.symbol);
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
  price.SetValue(PriceToShow(order.price, item));
  price.SetEnabled(PriceMayBeSet(order));
  auto& quantity = Spin(TField::edtQty);
  quantity.SetStep(1);
  quantity.SetValue(order.quantity);
  Item(TField::btnBuy).SetVisible(order.side == host::SideBuy);
  Item(TField::btnSell).SetVisible(order.side == host::SideSell);
}

void TAlgoOrderChangeFrame::LockIdentity() {
  Group(TGroup::lgSubmit).SetVisible(false);
  for (const TField field : Identity) Control(field).SetEnabled(false);
}

void TAlgoOrderChangeFrame::StepByLot(const host::TMarketDataItem* item, std::string_view symbol) {
  std::int64_t lot = 1;
  if (item != nullptr && item->State() == host::ItemLive) {
    lot = text::ParseWhole(item->FieldText(host::LotSizeField)).value_or(0);
  } else {
    const auto* instrument = host::TCustomMarketAdapter::GetInstance().FindInstrument(symbol);
    if (instrument != nullptr && !instrument->lotText.empty())
      lot = text::ParseWhole(instrument->lotText).value_or(0);
  }
  for (const TField field : LotFields) {
    Spin(field).SetStep(static_cast<double>(std::max<std::int64_t>(lot, 1)));
    Spin(field).SetMin(0);
  }
}

void TAlgoOrderChangeFrame::SetChangeViewVisible(std::string_view algoId) {
  Item(TField::cbClear).SetVisible(false);
  Item(TField::cbPopup).SetVisible(false);
  EnableAmendable();
  // A working iceberg keeps the way in which it is shown.
  if (text::EqualNoCase(algoId, "ICEBERG")) Control(TField::cmbFunc).SetEnabled(false);
}

void TAlgoOrderChangeFrame::SetConfirmViewVisible() {
  Item(TField::cbClear).SetVisible(false);
  Item(TField::cbPopup).SetVisible(true);
  EnableAmendable();
}

void TAlgoOrderChangeFrame::EnableAmendable() {
  for (const TField field : Amendable) Control(field).SetEnabled(true);
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

}  // namespace algo::views
