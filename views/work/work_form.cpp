// The controls that the work order form adds, their captions and settings.

#include <algorithm>
#include <utility>

#include "forms/dialog_form.h"
#include "plugin/host_contract/config_manager.h"
#include "plugin/host_contract/editor_manager.h"
#include "plugin/host_contract/listen.h"
#include "plugin/host_contract/user_app_profile.h"
#include "views/work/work_order_frame.h"

namespace algo::views::work {

namespace {

constexpr forms::TNumberFormat Quantity7{.whole = false, .grouped = true, .decimals = 7};
constexpr forms::TNumberFormat Percentage2{.whole = false, .grouped = true, .decimals = 2};

}  // namespace

void TAlgoWorkOrderFrame::MakeWorkForm() {
  const forms::TLayoutUpdate update(Layout());
  auto& column = Group(TGroup::lgOrder);
  tedtOrderNum = &Add<forms::TTextEdit>("tedtOrderNum");
  cbSide = &Add<forms::TComboBox>("cbSide");
  sedtAvaliQty = &Add<forms::TSpinEdit>("sedtAvaliQty");
  sedtPecentage = &Add<forms::TSpinEdit>("sedtPecentage");
  Layout().AddItem("liOrderNum", column, *tedtOrderNum).SetCaption("OrderNum");
  Layout().AddItem("liSide", column, *cbSide).SetCaption("OrderSide");
  Layout().AddItem("liAvaliQty", column, *sedtAvaliQty).SetCaption("Avialiable Qty");
  Layout().AddItem("liPer", column, *sedtPecentage).SetCaption("Percentage");
  sedtAvaliQty->SetFormat(Quantity7);
  sedtAvaliQty->SetReadOnly(true);
  sedtPecentage->SetFormat(Percentage2);
  sedtPecentage->SetStep(0.01);
  sedtPecentage->SetMax(100);
  Spin(TField::edtQty).SetFormat(Quantity7);
  Check(TField::cbLockPrice).SetCaption("Price");

  // Submit and Clear get a row of their own, because the row in which they stand is hidden with an order
  // loaded.
  auto& row = Layout().AddGroup("lgClear", &column, forms::TDirection::Horizontal);
  Layout().Move(Item(TField::btnSubmit), row);
  Layout().Move(Item(TField::btnClear), row);
  for (const TField field :
       {TField::btnBuy, TField::btnSell, TField::btnWork, TField::cbPopup, TField::cbClear}) {
    Control(field).SetVisible(false);
  }

  Control(TField::edtQty).OnChange = Handler(&TAlgoWorkOrderFrame::edtQtyPropertiesChange);
  Control(TField::edtPrice).OnExit = Handler(&TAlgoWorkOrderFrame::ProcessPriceValueUpdate);
  sedtPecentage->OnChange = Handler(&TAlgoWorkOrderFrame::edtPecentagePropertiesChange);
  sedtPecentage->OnClick = [this] { sedtPecentage->SelectAll(); };
  Control(TField::edtQty).OnEnterKey = EnterLeadsTo(*sedtPecentage);
  sedtPecentage->OnEnterKey = EnterLeadsTo(Control(TField::edtPrice));
  Control(TField::edtPrice).OnEnterKey = EnterLeadsTo(Control(TField::cmbMType));
  Control(TField::cmbMType).OnEnterKey = EnterLeadsTo(Control(TField::cmbOrderType));
  Control(TField::deETime).OnEnterKey = EnterLeadsTo(Control(TField::btnSubmit));
}

std::function<void()> TAlgoWorkOrderFrame::EnterLeadsTo(forms::TControl& next) {
  return [focus = Handler(&TAlgoWorkOrderFrame::FocusFrom), &next] { focus(&next); };
}

void TAlgoWorkOrderFrame::FocusFrom(forms::TControl* next) {
  // The way through the form: quantity, percentage, price, order type, algorithm, and at last the button.
  forms::TControl* const way[] = {sedtPecentage, &Control(TField::edtPrice), &Control(TField::cmbMType),
                                  &Control(TField::cmbOrderType), &Control(TField::btnSubmit)};
  bool reached = false;
  for (forms::TControl* control : way) {
    reached = reached || control == next;
    if (reached && control->CanFocus()) return SetFocus(control);
  }
}

void TAlgoWorkOrderFrame::Initailize() {
  auto& profile = host::TCustomUserAppProfile::GetInstance();
  FOrderTIFList = {"Res_TIF_Day"};
  if (profile.HasRight("OEFAK")) FOrderTIFList.emplace_back("Res_TIF_FAK");
  if (profile.HasRight("OEFOK")) FOrderTIFList.emplace_back("Res_TIF_FOK");
  Item(TField::btnSubmit).SetCaption(GetResource("Res_Submit"));
  Item(TField::btnClear).SetCaption(GetResource("Res_Clear"));
}

void TAlgoWorkOrderFrame::ReadConfig() {
  auto& config = host::TCustomConfigManager::GetInstance();
  const std::string section = config.CurrentSection();
  FAvailQtyAsQty = config.ReadText(section, "WorkOrderQtyOut") != "0";
  FConfirmWorkOrdPri = config.ReadBoolean(section, "ConfirmationWorkOrdPri");
}

bool TAlgoWorkOrderFrame::SetLanguage(std::int32_t language) {
  return AtBoundary(false, [&] {
    TAlgoOrderChangeFrame::SetLanguage(language);
    SetWorkCaptions();
    return true;
  });
}

void TAlgoWorkOrderFrame::SetWorkCaptions() {
  tedtOrderNum->Item()->SetCaption(GetResource("Res_OrderNo"));
  cbSide->Item()->SetCaption(GetResource("Res_Side"));
  // The side of a parent that is shown stays; a new form shows the first one.
  cbSide->Refill({GetResource("Res_AMSPrice_Buy"), GetResource("Res_AMSPrice_Sell")},
                 std::max(cbSide->Index(), 0));
  Check(TField::cbLockPrice).SetCaption(GetResource("Res_OrderPrice"));
  sedtAvaliQty->Item()->SetCaption(GetResource("Res_AvailableQty"));
  sedtPecentage->Item()->SetCaption(GetResource("Res_Percentage"));
}

void TAlgoWorkOrderFrame::JoinGroup() {
  TAlgoOrderChangeFrame::JoinGroup();
  if (Detached() || !Rejoin(host::RegisterQuantityEditor(*sedtAvaliQty, GetGroupID()))) return;
  if (FMyOrder != nullptr) {
    host::TEditorManager::GetInstance().SetQuantitySymbol(*sedtAvaliQty, FMyOrder->symbol);
  }
}

void TAlgoWorkOrderFrame::FrameResize() {
  if (Form() == nullptr) return;
  Form()->SetClientSize({static_cast<double>(GetWidth()), static_cast<double>(GetHeight())});
}

}  // namespace algo::views::work
