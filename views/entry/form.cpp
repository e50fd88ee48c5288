// The form made from its tables, and its events tied to the frame's handlers.

#include "views/entry/entry_frame.h"

namespace algo::views {

namespace {

constexpr std::int32_t SideButtonGroup = 1;

forms::TControl& MakeControl(forms::TFrame& frame, const TFieldRow& row) {
  const std::string name(row.name);
  switch (row.kind) {
    case TFieldKind::Edit:
      return frame.Add<forms::TTextEdit>(name);
    case TFieldKind::Combo:
      return frame.Add<forms::TComboBox>(name);
    case TFieldKind::Date: {
      auto& date = frame.Add<forms::TDateEdit>(name);
      date.SetPickKeepsTime(row.pickKeepsTime);
      return date;
    }
    case TFieldKind::Check:
      return frame.Add<forms::TCheckBox>(name);
    case TFieldKind::Button:
      return frame.Add<forms::TButton>(name);
    case TFieldKind::SpeedButton:
      return frame.Add<forms::TSpeedButton>(name, SideButtonGroup);
    case TFieldKind::Spin:
      break;
  }
  auto& spin = frame.Add<forms::TSpinEdit>(name);
  spin.SetFormat(row.format);
  spin.SetMin(row.min);
  spin.SetMax(row.max);
  spin.SetStep(row.step);
  return spin;
}

// The lock boxes with the field that each of them locks. The price's lock is not among them: whether a price
// may be typed depends on the order type too.
struct TLock {
  TField lock;
  TField field;
};

constexpr std::array Locks{
    TLock{TField::cbLockAcct, TField::edtAccount},
    TLock{TField::cbLockSymbol, TField::edtSymbol},
    TLock{TField::cbLockQty, TField::edtQty},
    TLock{TField::cbLockExch, TField::cmbExch},
    TLock{TField::cbLockOrderType, TField::cmbOrderType},
    TLock{TField::cbLockMOrder, TField::cmbMType},
};

}  // namespace

void TAlgoOrderEntryFrame::MakeForm() {
  const forms::TLayoutUpdate update(Layout());
  for (const TGroupRow& row : GroupRows()) {
    forms::TLayoutGroup* parent = row.parent == TGroup::None ? nullptr : &Group(row.parent);
    FGroups[IndexOf(row.group)] = &Layout().AddGroup(std::string(row.name), parent, row.direction);
  }
  for (const TFieldRow& row : FieldRows()) {
    forms::TControl& control = MakeControl(*this, row);
    FControls[IndexOf(row.field)] = &control;
    Layout().AddItem(std::string(row.item), Group(row.group), control);
  }
  Group(TGroup::lgVWAP).SetVisible(false);
  FBoldStyle = &Layout().AddStyle("lslfBold");
}

void TAlgoOrderEntryFrame::WireEvents() {
  for (const TFieldRow& row : FieldRows()) {
    forms::TControl& control = Control(row.field);
    const TField field = row.field;
    if (row.exitRule != TExitRule::None) {
      control.OnExit = [apply = Handler(&TAlgoOrderEntryFrame::ApplyExitRule), field] { apply(field); };
    }
    if (row.clickSelectsAll) {
      control.OnClick = [&editor = static_cast<forms::TEditor&>(control)] { editor.SelectAll(); };
    }
    control.OnEnterKey = [focus = Handler(&TAlgoOrderEntryFrame::FocusAfter), field] { focus(field); };
  }
  for (const TLock& lock : Locks) {
    Control(lock.lock).OnChange = [&box = Check(lock.lock), &field = Control(lock.field)] {
      field.SetEnabled(!box.Checked());
    };
  }
  Control(TField::cbLockPrice).OnChange = Handler(&TAlgoOrderEntryFrame::cbLockPriceChange);
  Control(TField::edtAccount).OnExit = Handler(&TAlgoOrderEntryFrame::edtAccountExit);
  Control(TField::edtSymbol).OnExit = Handler(&TAlgoOrderEntryFrame::edtSymbolExit);
  Control(TField::cmbExch).OnChange = Handler(&TAlgoOrderEntryFrame::cmbExchChange);
  Control(TField::cmbOrderType).OnChange = Handler(&TAlgoOrderEntryFrame::cmbOrderTypeChange);
  Control(TField::cmbMType).OnChange = Handler(&TAlgoOrderEntryFrame::cmbMOrderTypeChange);
  Control(TField::cbPopup).OnClick = Handler(&TAlgoOrderEntryFrame::cbPopupClick);
  Control(TField::cbClear).OnClick = Handler(&TAlgoOrderEntryFrame::cbClearClick);
  Control(TField::btnBuy).OnClick = Handler(&TAlgoOrderEntryFrame::btnBuyClick);
  Control(TField::btnSell).OnClick = Handler(&TAlgoOrderEntryFrame::btnSellClick);
  Control(TField::btnSubmit).OnClick = Handler(&TAlgoOrderEntryFrame::btnSubmitClick);
  Control(TField::btnClear).OnClick = Handler(&TAlgoOrderEntryFrame::btnClearClick);
  Control(TField::btnWork).OnClick = Handler(&TAlgoOrderEntryFrame::btnWorkClick);
}

}  // namespace algo::views
