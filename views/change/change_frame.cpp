// Taking an order in, checking what was changed, and handing it on.

#include "views/change/change_frame.h"

#include <algorithm>
#include <utility>

#include "forms/dialog_form.h"
#include "plugin/host_contract/order_action_manager.h"
#include "text/number_text.h"
#include "views/entry/price_multiplier.h"

namespace algo::views::change {

TAlgoOrderChangeFrame::TAlgoOrderChangeFrame(const entry::TFramePurpose& purpose)
    : TAlgoOrderEntryFrame(purpose) {
  for (const model::TAlgoRow& row : model::AlgoRows()) FOrderConstList.emplace_back(row.code);
}

void TAlgoOrderChangeFrame::AddOrder(host::TCustomClientOrder* order) {
  FOrderOperatorMode = TOperatorMode::Add;
  FMyOrder = order;
  if (FMyOrder != nullptr) InitializeViewbyOrder(*FMyOrder);
}

void TAlgoOrderChangeFrame::ChangeOrder(host::TCustomClientOrder* order) {
  FOrderOperatorMode = TOperatorMode::Change;
  if (order != nullptr && !FIsChangeOrderShowModalView) {
    FOwnOrder = host::MakeClientOrder();
    FOwnOrder->AssignContent(*order);
    order = FOwnOrder.get();
  }
  FMyOrder = order;
  if (FMyOrder != nullptr) InitializeViewbyOrder(*FMyOrder);
}

void TAlgoOrderChangeFrame::ReleaseOrder() {
  FMyOrder = nullptr;
  FOwnOrder.reset();
}

void TAlgoOrderChangeFrame::Detach() {
  ReleaseOrder();
  TAlgoOrderEntryFrame::Detach();
}

bool TAlgoOrderChangeFrame::CheckOrderValid() const {
  const auto failure = CheckAlgoFields();
  if (failure) Tell(*failure);
  return !failure;
}

bool TAlgoOrderChangeFrame::CheckOrder(std::string_view text) const {
  const std::string_view first = text.substr(0, text.find(','));
  return std::any_of(FOrderConstList.begin(), FOrderConstList.end(),
                     [first](const std::string& code) { return first.find(code) != std::string_view::npos; });
}

bool TAlgoOrderChangeFrame::GetWorkOrder(const host::TCustomOrder& order) {
  return (order.flags & host::WorkParentMark) != 0 && (order.flags & host::WorkMark) != 0;
}

void TAlgoOrderChangeFrame::btnBuyClick() { Confirm(); }

void TAlgoOrderChangeFrame::btnSellClick() { Confirm(); }

void TAlgoOrderChangeFrame::Confirm() {
  if (FMyOrder == nullptr) return;
  if (GetWorkOrder(*FMyOrder) || CheckOrderValid()) SubmitChange();
}

void TAlgoOrderChangeFrame::SubmitChange() {
  const auto quantity = static_cast<double>(text::TruncateToWhole(Spin(TField::edtQty).Value().value_or(0)));
  const host::TMarketDataItem* item =
      host::TCustomSubscribeAdapter::GetInstance().Subscribe(FMyOrder->symbol, host::PriceDataSet, false);
  const double price = entry::PriceForOrder(Spin(TField::edtPrice).Value().value_or(0), item);
  if (!GetWorkOrder(*FMyOrder)) SetOrderAlgo(*FMyOrder);
  SetOrderType(*FMyOrder);
  FMyOrder->quantity = quantity;
  FMyOrder->price = price;
  if (!FIsChangeOrderShowModalView && FOrderOperatorMode == TOperatorMode::Change && Form() != nullptr) {
    host::TCustomOrderActionManager::GetInstance().TakeAction(nullptr, FMyOrder, host::TOrderAction::Change,
                                                              1);
    ReleaseOrder();
    // The host may have closed the form while it took the action.
    if (Form() != nullptr) Form()->Close();
  }
  FMyOrder = nullptr;
  if (Form() != nullptr) Form()->SetModalResult(forms::ModalOk);
}

void TAlgoOrderChangeFrame::cbPopupClick() {
  if (FOrderOperatorMode == TOperatorMode::Add) TAlgoOrderEntryFrame::cbPopupClick();
}

}  // namespace algo::views::change
