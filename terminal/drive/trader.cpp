#include "terminal/drive/trader.h"

namespace algo::terminal::drive {

using forms::TInputResult;

TTrader::~TTrader() = default;

TInputResult TTrader::Type(const TFramePointer& frame, forms::TControl& control, std::string_view text) {
  return frame->InputText(control, text);
}

TInputResult TTrader::Enter(const TFramePointer& frame, forms::TControl& control) {
  return frame->InputEnter(control);
}

TInputResult TTrader::Click(const TFramePointer& frame, forms::TControl& control) {
  return frame->InputClick(control);
}

TInputResult TTrader::Pick(const TFramePointer& frame, forms::TControl& control, std::int32_t index) {
  return frame->InputPick(control, index);
}

void TTrader::Leave(const TFramePointer& frame) { frame->InputLeave(); }

void TTrader::Close(forms::TDialogForm& form) { form.Close(); }

void TTrader::Dismiss(forms::TDialogForm& form, std::int32_t result) { form.SetModalResult(result); }

void TTrader::DialogOpened(forms::TDialogForm& /*form*/) {}

void TTrader::DialogDone(forms::TDialogForm& /*form*/) {}

void TTrader::Settle() {}

}  // namespace algo::terminal::drive
