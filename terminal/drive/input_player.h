#pragma once

// Plays the trader's input that scripts describe. The driver's own player calls the form model directly; a
// terminal with a screen has one that sends key and mouse events.

#include <cstdint>
#include <memory>
#include <string_view>

#include "forms/dialog_form.h"
#include "forms/frame.h"

namespace algo::terminal::drive {

class TInputPlayer {
 public:
  using TFramePointer = std::shared_ptr<forms::TFrame>;

  virtual ~TInputPlayer();

  // Each does and returns what the frame's operation of that name (InputText, InputEnter, …) does and
  // returns.
  virtual forms::TInputResult Type(const TFramePointer& frame, forms::TControl& control,
                                   std::string_view text);
  virtual forms::TInputResult Paste(const TFramePointer& frame, forms::TControl& control,
                                    std::string_view text);
  virtual forms::TInputResult Enter(const TFramePointer& frame, forms::TControl& control);
  virtual forms::TInputResult Click(const TFramePointer& frame, forms::TControl& control);
  virtual forms::TInputResult Pick(const TFramePointer& frame, forms::TControl& control, std::int32_t index);
  virtual void Leave(const TFramePointer& frame);

  /// Closes a modeless form by its close box.
  virtual void Close(forms::TDialogForm& form);
  /// Ends a modal form with the result.
  virtual void Dismiss(forms::TDialogForm& form, std::int32_t result);

  /// A modal form is visible from the first to the second call.
  virtual void DialogOpened(forms::TDialogForm& form);
  virtual void DialogDone(forms::TDialogForm& form);

  /// A command was executed. Throws ECommandError if the screen does not show what it should.
  virtual void Settle();
};

}  // namespace algo::terminal::drive
