// Taking a parent in, and handing the child on.

#include "views/work/work_order_frame.h"

#include <cmath>

#include "forms/dialog_form.h"
#include "model/order_types.h"
#include "plugin/host_contract/editor_manager.h"
#include "plugin/host_contract/user_app_profile.h"
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
    if (FMyOrder != nullptr) AssignOrderInfo(*FMyOrder);
  }
  FrameResize();
  NotifyViewChanged();
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

  const double available = GetWorkParentOrderAvailableQty(&order);
  sedtAvaliQty->SetValue(available);
  sedtAvaliQty->Item()->SetEnabled(false);
  sedtAvaliQty->SetReadOnly(true);
  auto& quantity = Spin(TField::edtQty);
  quantity.SetValue(FAvailQtyAsQty ? std::optional(available) : std::nullopt);
  quantity.SetMin(0);
  quantity.SetMax(available);
  // Multiplied first, so that the whole percentages are whole and not above their own maximum.
  const double share = order.quantity != 0 ? available * 100 / order.quantity : 0;
  sedtPecentage->SetMin(0);
  sedtPecentage->SetMax(share);
  sedtPecentage->SetValue(order.quantity != 0 ? std::trunc(share) : 0);
}

void TAlgoWorkOrderFrame::btnSubmitClick() {
  const bool answered = Form() != nullptr && Form()->ModalResult() != forms::ModalNone;
  if (FMyOrder == nullptr || answered || !CheckInput()) return;
  UpdateOrder();
  if (FMyOrder != nullptr && Form() != nullptr) Form()->SetModalResult(forms::ModalOk);
}

void TAlgoWorkOrderFrame::UpdateOrder() {
  // The identity is asked first; it is written with the rest, when the text, which may fail too, is there.
  std::string user = host::TCustomUserAppProfile::GetInstance().UserIdentity();
  if (FMyOrder == nullptr) return;
  SetOrderAlgo(*FMyOrder);
  FMyOrder->user = std::move(user);
  FMyOrder->price = GetSpinEditValue(&Spin(TField::edtPrice));
  FMyOrder->quantity = GetSpinEditValue(&Spin(TField::edtQty));
  SetOrderType(*FMyOrder);
  SetNativeAlgo(FMyOrder);
}

void TAlgoWorkOrderFrame::btnClearClick() {
  const TFlagScope updating(FIsUpdating);
  // The type first, because choosing one may fill the price; it also says whether there is a price to set.
  // The box holds the price to the parent's here, so it does not lock it.
  Combo(TField::cmbMType).SelectFirst();
  if (const model::TOrderTypeRow* type = Lists().ChosenOrderType()) {
    Control(TField::edtPrice).SetEnabled(type->keepsPrice);
    Control(TField::cbLockPrice).SetEnabled(type->keepsPrice);
  }
  for (forms::TSpinEdit* editor : {&Spin(TField::edtQty), sedtPecentage, &Spin(TField::edtPrice)}) {
    editor->SetValue(std::nullopt);
  }
}

}  // namespace algo::views::work
