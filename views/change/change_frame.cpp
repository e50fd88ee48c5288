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
  OneAtATime([this] {
    if (FMyOrder == nullptr) return;
    if (GetWorkOrder(*FMyOrder) || CheckOrderValid()) SubmitChange();
  });
}

double TAlgoOrderChangeFrame::ChangedPrice() const {
  const auto shown = Spin(TField::edtPrice).Value();
  // What was not touched stays to the last bit; what was is divided by what the trader saw it multiplied
  // with, whatever the market's data say by now.
  if (shown && shown == FShownPrice) return FMyOrder->price;
  return entry::PriceForOrder(shown.value_or(0), FPriceDivisor);
}

void TAlgoOrderChangeFrame::SubmitChange() {
  const auto quantity = static_cast<double>(text::TruncateToWhole(Spin(TField::edtQty).Value().value_or(0)));
  // A copy: the order may go with the form while the host has its symbol.
  const std::string symbol = FMyOrder->symbol;
  host::TCustomSubscribeAdapter::GetInstance().Subscribe(symbol, host::PriceDataSet, false);
  // The host may have closed the form while it was asked.
  if (FMyOrder == nullptr) return;
  const double price = ChangedPrice();
  if (!GetWorkOrder(*FMyOrder)) SetOrderAlgo(*FMyOrder);
  SetOrderType(*FMyOrder);
  FMyOrder->quantity = quantity;
  FMyOrder->price = price;
  if (!FIsChangeOrderShowModalView && FOrderOperatorMode == TOperatorMode::Change && Form() != nullptr) {
    SendChange();
  }
  FMyOrder = nullptr;
  if (Form() != nullptr) Form()->SetModalResult(forms::ModalOk);
}

void TAlgoOrderChangeFrame::SendChange() {
  // The order lives until the host has answered, also when it closes the form meanwhile.
  host::TOwnedOrder sent = std::move(FOwnOrder);
  try {
    host::TCustomOrderActionManager::GetInstance().TakeAction(nullptr, sent.get(), host::TOrderAction::Change,
                                                              1);
  } catch (...) {
    // The form stays, to be tried again, unless it was closed.
    if (!Detached()) {
      FOwnOrder = std::move(sent);
      FMyOrder = FOwnOrder.get();
    }
    throw;
  }
  sent.reset();
  ReleaseOrder();
  if (Form() != nullptr) Form()->Close();
}

void TAlgoOrderChangeFrame::cbPopupClick() {
  if (FOrderOperatorMode == TOperatorMode::Add) TAlgoOrderEntryFrame::cbPopupClick();
}

}  // namespace algo::views::change
