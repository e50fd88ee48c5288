#pragma once

// Passes the trader's input from the widgets to the form model, as long as the frame exists.

#include <QString>
#include <chrono>
#include <memory>

#include "forms/frame.h"
#include "terminal/render/qt_text.h"

namespace algo::terminal::render {

class TFrameInput {
 public:
  explicit TFrameInput(std::weak_ptr<forms::TFrame> frame) : FFrame(std::move(frame)) {}

  /// The frame, or nullptr if it is gone; then none of its controls may be used.
  std::shared_ptr<forms::TFrame> Frame() const { return FFrame.lock(); }

  /// Releases a frame that is being destroyed.
  void Release() { FFrame.reset(); }

  /// See TFrame's operations of the same names. False if the frame is gone or did not take the input.
  bool Typed(forms::TControl& control, const QString& text) const {
    return Send([&](forms::TFrame& frame) { return frame.InputTyped(control, FromQt(text)); });
  }
  bool Click(forms::TControl& control) const {
    return Send([&](forms::TFrame& frame) { return frame.InputClick(control); });
  }
  bool Pick(forms::TControl& control, int index) const {
    return Send([&](forms::TFrame& frame) { return frame.InputPick(control, index); });
  }
  bool Enter(forms::TControl& control) const {
    return Send([&](forms::TFrame& frame) { return frame.InputEnter(control); });
  }
  bool Step(forms::TControl& control, int steps) const {
    return Send([&](forms::TFrame& frame) { return frame.InputStep(control, steps); });
  }
  bool PickDay(forms::TControl& control, std::chrono::local_days day) const {
    return Send([&](forms::TFrame& frame) { return frame.InputPickDay(control, day); });
  }
  bool Focus(forms::TControl& control, forms::TFocusCause cause) const {
    return Send([&](forms::TFrame& frame) { return frame.InputFocus(control, cause); });
  }
  void Leave() const {
    if (const auto frame = FFrame.lock()) frame->InputLeave();
  }

 private:
  template <class TInput>
  bool Send(TInput&& input) const {
    const auto frame = FFrame.lock();
    return frame && input(*frame) == forms::TInputResult::Taken;
  }

  std::weak_ptr<forms::TFrame> FFrame;
};

}  // namespace algo::terminal::render
