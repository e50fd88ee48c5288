#pragma once

// Plays the trader's input at real widgets: types, clicks and picks with a desktop's key and mouse events,
// and checks after each command that every widget shows what the form model holds.

#include "terminal/drive/input_player.h"
#include "terminal/ui_driver/script_windows.h"

namespace algo::terminal::ui_driver {

class TWidgetInputPlayer final : public drive::TInputPlayer {
 public:
  /// `windows` outlive the player.
  explicit TWidgetInputPlayer(TScriptWindows& windows) : FWindows(windows) {}

  forms::TInputResult Type(const TFramePointer& frame, forms::TControl& control,
                           std::string_view text) override;
  forms::TInputResult Paste(const TFramePointer& frame, forms::TControl& control,
                            std::string_view text) override;
  forms::TInputResult Enter(const TFramePointer& frame, forms::TControl& control) override;
  forms::TInputResult Click(const TFramePointer& frame, forms::TControl& control) override;
  forms::TInputResult Pick(const TFramePointer& frame, forms::TControl& control, std::int32_t index) override;
  void Leave(const TFramePointer& frame) override;

  /// Throws ECommandError with the widgets that do not show what their controls hold.
  void Settle() override;

 private:
  /// Selects the whole text of the editor's line and lets the act put in another.
  template <class TAct>
  forms::TInputResult Replace(const TFramePointer& frame, forms::TControl& control, TAct&& act);

  TScriptWindows& FWindows;
};

}  // namespace algo::terminal::ui_driver
