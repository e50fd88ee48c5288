// What the trader sets off in the controls: leaving a field, Enter, clicks, and the boxes whose state is a
// setting.

#include <string>
#include <utility>

#include "plugin/host_contract/config_manager.h"
#include "text/text.h"
#include "views/entry/enter_key_path.h"
#include "views/entry/entry_frame.h"

namespace algo::views::entry {

void TAlgoOrderEntryFrame::WireEvents() {
  using TThis = TAlgoOrderEntryFrame;
  for (const TFieldRow& row : FieldRows()) {
    forms::TControl& control = Control(row.field);
    const TField field = row.field;
    if (row.exitRule != TExitRule::None) {
      control.OnExit = [left = Handler(&TThis::FieldLeft), field] { left(field); };
    }
    control.OnEnterKey = [pressed = Handler(&TThis::EnterPressed), field] { pressed(field); };
  }
  Control(TField::cbLockPrice).OnChange = Handler(&TThis::cbLockPriceChange);
  Control(TField::edtAccount).OnExit = Handler(&TThis::edtAccountExit);
  Control(TField::edtAccount).OnHostEditorFailed = Handler(&TThis::AccountEditorFailed);
  Control(TField::edtSymbol).OnExit = Handler(&TThis::edtSymbolExit);
  Control(TField::edtSymbol).OnHostEditorFailed = Handler(&TThis::SymbolEditorFailed);
  Control(TField::cmbExch).OnChange = Handler(&TThis::cmbExchChange);
  Control(TField::cmbOrderType).OnChange = Handler(&TThis::cmbOrderTypeChange);
  Control(TField::cmbMType).OnChange = Handler(&TThis::cmbMOrderTypeChange);
  Control(TField::cbPopup).OnClick = Handler(&TThis::cbPopupClick);
  Control(TField::cbClear).OnClick = Handler(&TThis::cbClearClick);
  Control(TField::btnBuy).OnClick = Handler(&TThis::btnBuyClick);
  Control(TField::btnSell).OnClick = Handler(&TThis::btnSellClick);
  Control(TField::btnSubmit).OnClick = Handler(&TThis::SubmitPressed);
  Control(TField::btnClear).OnClick = Handler(&TThis::btnClearClick);
  Control(TField::btnWork).OnClick = Handler(&TThis::WorkPressed);
}

void TAlgoOrderEntryFrame::EnterPressed(TField field) { FForm.FocusNext(EnterPath(field)); }

void TAlgoOrderEntryFrame::edtAccountExit() {
  // None while the host is asked, so that a failure does not leave the former account to what is shown now.
  std::string former = std::exchange(FCurrentAccount, {});
  // A user who sees no account field works on the profile's account, whatever the field holds.
  const bool fixed = WorksOnProfileAccount();
  FCurrentAccount = fixed ? std::move(former) : std::string(text::Trim(Edit(TField::edtAccount).Text()));
}

void TAlgoOrderEntryFrame::AccountEditorFailed() { FCurrentAccount.clear(); }

void TAlgoOrderEntryFrame::SymbolEditorFailed() {
  // What the editor did not take up must not be sent as what it held before.
  if (text::Trim(Edit(TField::edtSymbol).Text()) != FSymbol.Symbol()) FSymbol.Forget();
}

void TAlgoOrderEntryFrame::edtSymbolExit() {
  // A form that shows an order follows no symbol: its market data would fill in another quantity and price.
  if (FPurpose.showsOneOrder) return;
  const std::string hint = Edit(TField::edtSymbol).Hint();
  SetSymbol(text::Trim(hint));
}

void TAlgoOrderEntryFrame::SubmitPressed() {
  OneAtATime([this] { btnSubmitClick(); });
}

void TAlgoOrderEntryFrame::WorkPressed() {
  OneAtATime([this] { btnWorkClick(); });
}

void TAlgoOrderEntryFrame::cbLockPriceChange() { UpdatePriceEditorState(); }

void TAlgoOrderEntryFrame::btnClearClick() { ClearOrder(); }

void TAlgoOrderEntryFrame::StoreSetting(std::string_view key, bool value) const {
  auto& config = host::TCustomConfigManager::GetInstance();
  config.Store(config.CurrentSection(), key, value ? "Y" : "N", true);
}

void TAlgoOrderEntryFrame::cbPopupClick() {
  // The setting says whether the confirmation is wanted, the box whether it is skipped.
  StoreSetting("ConfirmationPlaceOrd", !Check(TField::cbPopup).Checked());
}

void TAlgoOrderEntryFrame::cbClearClick() { StoreSetting("ClearOrd", Check(TField::cbClear).Checked()); }

}  // namespace algo::views::entry
