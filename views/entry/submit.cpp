// From the buttons to the host: building an order of the entries and handing it over.

#include <cstdint>

#include "model/parameter_text.h"
#include "plugin/host_contract/account_adapter.h"
#include "plugin/host_contract/config_manager.h"
#include "plugin/host_contract/message_box.h"
#include "plugin/host_contract/order_action_manager.h"
#include "plugin/host_contract/order_adapter.h"
#include "plugin/host_contract/user_app_profile.h"
#include "text/errors.h"
#include "text/number_text.h"
#include "text/text.h"
#include "views/entry/entry_frame.h"

namespace algo::views {

void TAlgoOrderEntryFrame::PopupMsg(std::string_view resourceId) const {
  ShowMessage(GetResource(resourceId));
}

void TAlgoOrderEntryFrame::Tell(const model::TRuleFailure& complaint) const {
  if (complaint.told == model::TMessageSource::Resource) return PopupMsg(complaint.id);
  const TNestedLoopScope messageBox;
  host::TCustomMessageBoxCtrl::GetInstance().ShowErrorCode(complaint.id);
}

model::TParamValues TAlgoOrderEntryFrame::Values() const {
  model::TParamValues values;
  for (const model::TParamRow& row : model::ParamRows()) {
    const TField field = FieldOf(row.param);
    switch (row.kind) {
      case model::TValueKind::Number:
        values.SetNumber(row.param, Spin(field).Value());
        break;
      case model::TValueKind::Choice:
        values.SetChoice(row.param, Combo(field).Index());
        break;
      case model::TValueKind::Time:
        values.SetTime(row.param, Date(field).Value());
        break;
    }
  }
  return values;
}

std::optional<model::TRuleFailure> TAlgoOrderEntryFrame::CheckCommon() const {
  return model::CheckCommonRules({
      .side = FOrderType,
      .account = FCurrentAccount,
      .accountKnown =
          [](std::string_view account) {
            return host::TCustomAccountAdapter::GetInstance().IsKnown(account);
          },
      .symbol = Edit(TField::edtSymbol).Hint(),
      .hasInstrument = FCurrentItem != nullptr,
      .quantity = text::TruncateToWhole(Spin(TField::edtQty).Value().value_or(0)),
      .algoChosen = Combo(TField::cmbOrderType).Index() >= 0,
  });
}

std::optional<model::TRuleFailure> TAlgoOrderEntryFrame::CheckAlgoFields() const {
  const model::TParamValues values = Values();
  if (const auto complaint = model::CheckTimes(values)) return complaint;
  const model::TAlgoRow* algo = ChosenAlgo();
  return algo == nullptr ? std::nullopt : model::CheckAlgoRules(*algo, values);
}

bool TAlgoOrderEntryFrame::GetOrder(host::TCustomClientOrder& order) {
  auto complaint = CheckCommon();
  if (!complaint) complaint = CheckAlgoFields();
  if (complaint) {
    Tell(*complaint);
    return false;
  }
  FillCommonFields(order);
  return true;
}

void TAlgoOrderEntryFrame::FillCommonFields(host::TCustomClientOrder& order) const {
  // The price first: it is the one that may fail, and a failure leaves the order untouched.
  const double price = PriceForOrder(Spin(TField::edtPrice).Value().value_or(0), FCurrentItem);
  order.account = FCurrentAccount;
  order.symbol = Edit(TField::edtSymbol).Hint();
  const std::string exchange = Chosen().exchange;
  if (!exchange.empty()) order.exchange = exchange;
  order.quantity = static_cast<double>(text::TruncateToWhole(Spin(TField::edtQty).Value().value_or(0)));
  order.side = FOrderType;
  order.price = price;
}

void TAlgoOrderEntryFrame::SetOrderAlgo(host::TCustomClientOrder& order) const {
  const std::int32_t index = Combo(TField::cmbOrderType).Index();
  if (index < 0 || index >= std::ssize(FOrderTypeConstList)) throw EListIndexError(index);
  if (index > std::ssize(FAlgoTypeList)) return;
  // Child orders are market orders for this one type; the comparison is exact, as the lists hold the ids
  // themselves.
  const bool marketChildren = Chosen().orderType == "Res_OrderType_Market";
  order.SetTextProperty(
      host::AlgoTextProperty,
      model::ComposeText(marketChildren, FOrderTypeConstList[static_cast<std::size_t>(index)], ChosenAlgo(),
                         Values()));
}

void TAlgoOrderEntryFrame::btnBuyClick() {
  FOrderType = host::SideBuy;
  SideButton(TField::btnBuy).SetPressed(true);
}

void TAlgoOrderEntryFrame::btnSellClick() {
  FOrderType = host::SideSell;
  SideButton(TField::btnSell).SetPressed(true);
}

void TAlgoOrderEntryFrame::btnClearClick() { ClearOrder(); }

void TAlgoOrderEntryFrame::btnSubmitClick() {
  const host::TOwnedOrder order = host::MakeClientOrder();
  if (!GetOrder(*order)) return;
  SetOrderType(*order);
  SetNativeAlgo(order.get());
  SetOrderAlgo(*order);
  SetAlgoOrder(*order);
  SubmitOrder(*order);
}

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

void TAlgoOrderEntryFrame::ClearOrder() {
  // Choosing the first exchange unlocks the two lists that depend on it, so what is cleared is settled
  // before.
  const bool clearExchange = Control(TField::cmbExch).Enabled();
  const bool clearMType = Control(TField::cmbMType).Enabled();
  const bool clearOrderType = Control(TField::cmbOrderType).Enabled();
  for (const TField field : {TField::edtAccount, TField::edtSymbol}) {
    if (!Control(field).Enabled()) continue;
    Edit(field).SetText({});
    Edit(field).Commit();
  }
  for (const TField field : {TField::edtPrice, TField::edtQty}) {
    if (Control(field).Enabled()) Spin(field).SetValue(std::nullopt);
  }
  if (clearExchange) Combo(TField::cmbExch).SelectFirst();
  if (clearMType) Combo(TField::cmbMType).SelectFirst();
  if (clearOrderType) Combo(TField::cmbOrderType).SelectFirst();
  ResetInputUI();
  if (WorksOnProfileAccount()) FCurrentAccount = host::TCustomUserAppProfile::GetInstance().AccountText();
}

void TAlgoOrderEntryFrame::StoreSetting(std::string_view key, bool value) const {
  auto& config = host::TCustomConfigManager::GetInstance();
  config.Store(config.CurrentSection(), key, value ? "Y" : "N", true);
}

void TAlgoOrderEntryFrame::cbPopupClick() {
  // The setting says whether the confirmation is wanted, the box whether it is skipped.
  StoreSetting("ConfirmationPlaceOrd", !Check(TField::cbPopup).Checked());
}

void TAlgoOrderEntryFrame::cbClearClick() { StoreSetting("ClearOrd", Check(TField::cbClear).Checked()); }

bool TAlgoOrderEntryFrame::CheckTheOrder(std::string_view text) {
  bool found = false;
  text::ForEachPiece(text, ';', [&found](std::string_view piece) {
    found = found || piece.find("Original") != std::string_view::npos;
  });
  return found;
}

}  // namespace algo::views
