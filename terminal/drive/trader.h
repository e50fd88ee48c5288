#pragma once

// The hand that does what scripts say a trader does. The driver's own works on the form model at once; a
// terminal with a screen brings one that works its keyboard and mouse.

#include <cstdint>
#include <memory>
#include <string_view>

#include "forms/dialog_form.h"
#include "forms/frame.h"

namespace algo::terminal::drive {

class TTrader {
 public:
  using TFramePointer = std::shared_ptr<forms::TFrame>;

  virtual ~TTrader();

  // What each does, and what it answers, is what the operation of the frame that it is named after does and
  // answers.
  virtual forms::TInputResult Type(const TFramePointer& frame, forms::TControl& control,
                                   std::string_view text);
  virtual forms::TInputResult Enter(const TFramePointer& frame, forms::TControl& control);
  virtual forms::TInputResult Click(const TFramePointer& frame, forms::TControl& control);
  virtual forms::TInputResult Pick(const TFramePointer& frame, forms::TControl& control, std::int32_t index);
  virtual void Leave(const TFramePointer& frame);

  /// Closes a form that shows beside the others, by its close box.
  virtual void Close(forms::TDialogForm& form);
  /// Ends a modal form with the result.
  virtual void Dismiss(forms::TDialogForm& form, std::int32_t result);

  /// A modal form is in sight from the first to the second call.
  virtual void DialogOpened(forms::TDialogForm& form);
  virtual void DialogDone(forms::TDialogForm& form);

  /// A command was carried out. Throws ECommandError when what is on the screen is not what it should be.
  virtual void Settle();
};

}  // namespace algo::terminal::drive
