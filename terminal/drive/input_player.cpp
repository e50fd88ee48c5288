#include "terminal/drive/input_player.h"

namespace algo::terminal::drive {

using forms::TInputResult;

TInputPlayer::~TInputPlayer() = default;

TInputResult TInputPlayer::Type(const TFramePointer& frame, forms::TControl& control, std::string_view text) {
  return frame->InputText(control, text);
}

TInputResult TInputPlayer::Paste(const TFramePointer& frame, forms::TControl& control,
                                 std::string_view text) {
  return frame->InputPaste(control, text);
}

TInputResult TInputPlayer::Enter(const TFramePointer& frame, forms::TControl& control) {
  return frame->InputEnter(control);
}

TInputResult TInputPlayer::Click(const TFramePointer& frame, forms::TControl& control) {
  return frame->InputClick(control);
}

TInputResult TInputPlayer::Pick(const TFramePointer& frame, forms::TControl& control, std::int32_t index) {
  return frame->InputPick(control, index);
}

void TInputPlayer::Leave(const TFramePointer& frame) { frame->InputLeave(); }

void TInputPlayer::Close(forms::TDialogForm& form) { form.Close(); }

void TInputPlayer::Dismiss(forms::TDialogForm& form, std::int32_t result) { form.SetModalResult(result); }

void TInputPlayer::DialogOpened(forms::TDialogForm& /*form*/) {}

void TInputPlayer::DialogDone(forms::TDialogForm& /*form*/) {}

void TInputPlayer::Settle() {}

}  // namespace algo::terminal::drive
