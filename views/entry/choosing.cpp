// What follows from a choice of exchange, algorithm or host order type, and what the form is emptied to.

#include <utility>

#include "model/order_types.h"
#include "plugin/host_contract/user_app_profile.h"
#include "views/entry/entry_frame.h"

namespace algo::views::entry {

void TAlgoOrderEntryFrame::InitializeList() {
  FLists.FillPickLists();
  ResetView();
  ResetInputUI();
}

void TAlgoOrderEntryFrame::InitializeView() {
  if (const model::TAlgoRow* algo = FLists.ChosenAlgo()) FForm.ShowAlgo(*algo);
}

void TAlgoOrderEntryFrame::ResetInputUI() {
  FForm.EmptyAlgoFields();
  const model::TAlgoRow* algo = FLists.ChosenAlgo();
  if (algo != nullptr && model::Writes(*algo, model::TParam::Style)) FLists.FillStyleList();
}

void TAlgoOrderEntryFrame::cmbExchChange() {
  const std::int32_t index = Combo(TField::cmbExch).Index();
  FLists.ExchangeHandled();
  if (index < 0) return;
  Check(TField::cbLockMOrder).SetChecked(false);
  Check(TField::cbLockOrderType).SetChecked(false);
  TPickLists::TOffers offers;
  try {
    offers = FLists.OffersAt(index);
  } catch (...) {
    // Better nothing to choose from than what another exchange offers.
    FLists.OfferNothing();
    AlgoHidden();
    throw;
  }
  FLists.ShowOffers(std::move(offers));
}

void TAlgoOrderEntryFrame::cmbOrderTypeChange() {
  FLists.AlgoHandled();
  if (Combo(TField::cmbOrderType).Index() < 0) {
    // An order whose algorithm is not offered shows no fields; a form of the trader's own stays as it is.
    if (!FPurpose.showsOneOrder) return;
    ResetView();
  } else {
    LayOutAlgo();
  }
  AlgoShown();
}

void TAlgoOrderEntryFrame::AlgoShown() {
  try {
    NotifyViewChanged();
  } catch (...) {
    if (FOnAlgoTypeChange) FOnAlgoTypeChange();
    throw;
  }
  if (FOnAlgoTypeChange) FOnAlgoTypeChange();
}

void TAlgoOrderEntryFrame::AlgoHidden() {
  try {
    AlgoShown();
  } catch (...) {  // NOLINT(bugprone-empty-catch): the failure that led here is the one to report
  }
}

void TAlgoOrderEntryFrame::LayOutAlgo() {
  try {
    const forms::TLayoutUpdate update(Layout());
    ResetView();
    ResetInputUI();
    InitializeView();
  } catch (...) {
    // An algorithm without its fields must not be sent.
    ResetView();
    FLists.ChooseNothing();
    AlgoHidden();
    throw;
  }
}

void TAlgoOrderEntryFrame::cmbMOrderTypeChange() {
  FLists.OrderTypeHandled();
  const model::TOrderTypeRow* row = FLists.ChosenOrderType();
  if (row == nullptr) return;
  UpdatePriceEditorState();
  auto& price = Spin(TField::edtPrice);
  if (!row->keepsPrice) {
    price.SetValue(0);
  } else if (!price.Value() || *price.Value() < model::PriceEpsilon) {
    FSymbol.SetPriceFilled(false);
    UpdateSymbolInfo();
  }
}

void TAlgoOrderEntryFrame::UpdatePriceEditorState() {
  const model::TOrderTypeRow* row = FLists.ChosenOrderType();
  if (row == nullptr) return;
  auto& lock = Check(TField::cbLockPrice);
  Spin(TField::edtPrice).SetEnabled(row->keepsPrice && !lock.Checked());
  lock.SetEnabled(row->keepsPrice);
}

void TAlgoOrderEntryFrame::SetDisplayOrderType(const host::TCustomOrder& order) {
  FLists.SelectOrderType(model::DisplayOrderType(order.orderTypeFlags, order.auctionFlags, order.price));
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

void TAlgoOrderEntryFrame::InitializeConfirmView(std::string_view algoName,
                                                 const std::vector<std::string_view>& pieces) {
  // The algorithm first, so that its groups and styles are there before the values and nothing loaded is
  // blanked again.
  if (!FLists.Offers(algoName)) {
    // Better no algorithm than another one: the order can be looked at, and an attempt to send it fails.
    if (FPurpose.showsOneOrder) FLists.SelectNoAlgo();
  } else if (!Check(TField::cbLockOrderType).Checked()) {
    FLists.SelectAlgo(algoName);
  }
  FForm.LoadParameters(pieces);
}

}  // namespace algo::views::entry
