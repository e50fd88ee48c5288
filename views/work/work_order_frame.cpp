// Taking a parent in, and handing the child on.

#include "views/work/work_order_frame.h"

#include <cmath>

#include "forms/dialog_form.h"
#include "model/order_types.h"
#include "plugin/host_contract/editor_manager.h"
#include "plugin/host_contract/user_app_profile.h"
#include "plugin/host_contract/view_functions.h"
#include "views/boundary/flag_scope.h"
#include "views/work/available_quantity.h"

namespace algo::views::work {

TAlgoWorkOrderFrame::TAlgoWorkOrderFrame() : TAlgoOrderChangeFrame(entry::WorkPurpose) {
  const TBoundary making;
  MakeWorkForm();
  ReadConfig();
  Initailize();
  RegisterQuantityEditor(*sedtAvaliQty);
  SetWorkCaptions();
}

void TAlgoWorkOrderFrame::WorkOrder(host::TCustomClientOrder* order) {
  FOrderOperatorMode = change::TOperatorMode::Work;
  FMyOrder = order;
  if (FMyOrder != nullptr) {
    InitializeViewbyOrder(*FMyOrder);
    AssignOrderInfo(*FMyOrder);
  }
  FrameResize();
  host::SendViewNotify(*this, host::ViewChanged);
}

void TAlgoWorkOrderFrame::InitializeViewbyOrder(host::TCustomClientOrder& order) {
  // The frame serves one parent after the other: what the last one's range was must not bend this one's
  // figures.
  const TFlagScope updating(FIsUpdating);
  TAlgoOrderChangeFrame::InitializeViewbyOrder(order);
  Control(TField::cmbOrderType).SetEnabled(true);
  Group(TGroup::lgOrd).SetVisible(true);
  Group(TGroup::lgAlgo).SetVisible(true);
  const bool priceMayBeSet = PriceMayBeSet(order);
  Control(TField::edtPrice).SetEnabled(priceMayBeSet);
  Control(TField::cbLockPrice).SetEnabled(priceMayBeSet);
}

void TAlgoWorkOrderFrame::AssignOrderInfo(const host::TCustomClientOrder& order) {
  const TFlagScope updating(FIsUpdating);
  host::TEditorManager::GetInstance().SetQuantitySymbol(*sedtAvaliQty, order.symbol);

  for (forms::TControl* control :
       {&Control(TField::edtAccount), &Control(TField::edtSymbol),
        static_cast<forms::TControl*>(tedtOrderNum), static_cast<forms::TControl*>(cbSide)}) {
    control->Item()->SetEnabled(false);
    control->SetReadOnly(true);
  }
  Edit(TField::edtAccount).SetText(order.account);
  Edit(TField::edtSymbol).SetText(order.symbol);
  tedtOrderNum->SetText(order.orderNo);
  cbSide->SetIndex(order.side != host::SideBuy ? 1 : 0);

  const bool priced = std::abs(order.price) >= model::PriceEpsilon;
  Check(TField::cbLockPrice).SetChecked(priced);
  Spin(TField::edtPrice).SetValue(priced ? std::optional(order.price) : std::nullopt);
  SetPriceMaxMinValue();

  const double available = GetWorkParentOrderAvailableQty(FMyOrder);
  sedtAvaliQty->SetValue(available);
  sedtAvaliQty->Item()->SetEnabled(false);
  sedtAvaliQty->SetReadOnly(true);
  auto& quantity = Spin(TField::edtQty);
  quantity.SetValue(FAvailQtyAsQty ? std::optional(available) : std::nullopt);
  quantity.SetMin(0);
  quantity.SetMax(available);
  const double share = order.quantity != 0 ? available / order.quantity * 100 : 0;
  sedtPecentage->SetMin(0);
  sedtPecentage->SetMax(share);
  sedtPecentage->SetValue(order.quantity != 0 ? std::trunc(available * 100 / order.quantity) : 0);
}

void TAlgoWorkOrderFrame::btnSubmitClick() {
  if (FMyOrder == nullptr || !CheckInput()) return;
  UpdateOrder();
  if (Form() != nullptr) Form()->SetModalResult(forms::ModalOk);
}

void TAlgoWorkOrderFrame::UpdateOrder() {
  // The text first: it is the one that may fail, and a failure leaves the order untouched.
  SetOrderAlgo(*FMyOrder);
  FMyOrder->user = host::TCustomUserAppProfile::GetInstance().UserIdentity();
  FMyOrder->price = GetSpinEditValue(&Spin(TField::edtPrice));
  FMyOrder->quantity = GetSpinEditValue(&Spin(TField::edtQty));
  SetOrderType(*FMyOrder);
  SetNativeAlgo(FMyOrder);
}

void TAlgoWorkOrderFrame::btnClearClick() {
  const TFlagScope updating(FIsUpdating);
  // The type first, because choosing one may fill the price. Whether there is a price to set was settled by
  // the parent.
  const bool priceMayBeSet = Control(TField::edtPrice).Enabled();
  Combo(TField::cmbMType).SelectFirst();
  Control(TField::edtPrice).SetEnabled(priceMayBeSet);
  Control(TField::cbLockPrice).SetEnabled(priceMayBeSet);
  for (forms::TSpinEdit* editor : {&Spin(TField::edtQty), sedtPecentage, &Spin(TField::edtPrice)}) {
    editor->SetValue(std::nullopt);
  }
}

}  // namespace algo::views::work
