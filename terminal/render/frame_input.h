#pragma once

// The way back from a widget to the form model: what the trader does reaches the frame as long as there is
// one.

#include <QString>
#include <chrono>
#include <memory>

#include "forms/frame.h"
#include "terminal/render/qt_text.h"

namespace algo::terminal {

class TFrameInput {
 public:
  explicit TFrameInput(std::weak_ptr<forms::TFrame> frame) : FFrame(std::move(frame)) {}

  /// The frame, or nullptr when it has gone; then none of its controls may be touched.
  std::shared_ptr<forms::TFrame> Frame() const { return FFrame.lock(); }

  /// Releases a frame that is being destroyed.
  void Release() { FFrame.reset(); }

  /// See the operations of the same names of TFrame. False when the frame has gone or did not take the input.
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

}  // namespace algo::terminal
