#pragma once

// A trader at a real screen: types, clicks and picks with the key and mouse events of a desktop, and looks
// after each command whether every widget shows what the form model holds.

#include "terminal/drive/trader.h"
#include "terminal/ui_driver/stage.h"

namespace algo::terminal::ui_driver {

class TWidgetTrader final : public drive::TTrader {
 public:
  /// `stage` outlives the trader.
  explicit TWidgetTrader(TStage& stage) : FStage(stage) {}

  forms::TInputResult Type(const TFramePointer& frame, forms::TControl& control,
                           std::string_view text) override;
  forms::TInputResult Enter(const TFramePointer& frame, forms::TControl& control) override;
  forms::TInputResult Click(const TFramePointer& frame, forms::TControl& control) override;
  forms::TInputResult Pick(const TFramePointer& frame, forms::TControl& control, std::int32_t index) override;
  void Leave(const TFramePointer& frame) override;

  /// Throws ECommandError naming the widgets that do not show what their controls hold.
  void Settle() override;

 private:
  TStage& FStage;
};

}  // namespace algo::terminal::ui_driver
