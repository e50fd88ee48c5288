#include "forms/control.h"

#include <utility>

#include "forms/frame.h"
#include "forms/layout.h"

namespace algo::forms {

namespace {

TSize DefaultSize(TControlKind kind) {
  switch (kind) {
    case TControlKind::Check:
      return {20, 20};
    case TControlKind::Button:
      return {72, 26};
    case TControlKind::Date:
      return {160, 22};
    case TControlKind::Edit:
    case TControlKind::Spin:
    case TControlKind::Combo:
      break;
  }
  return {120, 22};
}

}  // namespace

TControl::TControl(TFrame& frame, std::string name, TControlKind kind)
    : FFrame(frame), FName(std::move(name)), FSize(DefaultSize(kind)), FKind(kind) {}

TControl::~TControl() = default;

void TControl::SetVisible(bool visible) {
  if (FVisible == visible) return;
  FVisible = visible;
  FFrame.Layout().Changed();
}

void TControl::SetEnabled(bool enabled) {
  if (FEnabled == enabled) return;
  FEnabled = enabled;
  const auto alive = FFrame.KeepAlive();
  // Left before it is drawn, so that no toolkit hands the focus on by itself.
  FFrame.Layout().BeginUpdate();
  FFrame.Layout().EndUpdate();
  AppearanceChanged();
}

void TControl::SetReadOnly(bool readOnly) {
  if (FReadOnly == readOnly) return;
  FReadOnly = readOnly;
  AppearanceChanged();
}

bool TControl::Showing() const { return FVisible && FItem != nullptr && FItem->Showing(); }

bool TControl::CanFocus() const { return FEnabled && Showing() && FItem->Usable(); }

bool TControl::Focused() const { return FFrame.Focused() == this; }

void TControl::SetCaption(std::string caption) {
  if (FCaption == caption) return;
  FCaption = std::move(caption);
  AppearanceChanged();
}

void TControl::SetHint(std::string hint) {
  if (FHint == hint) return;
  FHint = std::move(hint);
  AppearanceChanged();
}

void TControl::SetFont(const TFont& font) {
  if (FFont == font) return;
  FFont = font;
  AppearanceChanged();
}

TSize TControl::Size() const {
  if (FKind != TControlKind::Check || FCaption.empty()) return FSize;
  return {FSize.width + TToolkit::Current().MeasureText(FCaption, FFont).width, FSize.height};
}

void TControl::SetSize(const TSize& size) {
  FSize = size;
  FFrame.Layout().Changed();
}

void TControl::Commit() {
  const auto alive = FFrame.KeepAlive();
  TakeUp();
  try {
    Run(FHostEditor);
  } catch (...) {
    Run(OnHostEditorFailed);
    throw;
  }
  Run(OnExit);
}

void TControl::ValueChanged() {
  AppearanceChanged();
  Run(OnChange);
}

void TControl::AppearanceChanged() { FFrame.NotifyControlChanged(*this); }

void TControl::Run(const std::function<void()>& handler) {
  if (!handler) return;
  // A handler may close the form that this control belongs to, or put another handler in its own place.
  const auto alive = FFrame.KeepAlive();
  const std::function<void()> running = handler;
  running();
}

}  // namespace algo::forms
