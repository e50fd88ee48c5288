#include "terminal/host/memory_form.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace algo::terminal {

namespace {

/// Raises the flag for the life of the object.
class TRaised {
 public:
  explicit TRaised(bool& flag) : FFlag(flag), FFormer(std::exchange(flag, true)) {}
  ~TRaised() { FFlag = FFormer; }
  TRaised(const TRaised&) = delete;
  TRaised& operator=(const TRaised&) = delete;

 private:
  bool& FFlag;
  bool FFormer;
};

}  // namespace

// In all of these the form is held, since nobody else may hold it when the call is over.

void TMemoryForm::RunModal() {
  const auto self = shared_from_this();
  PutShowing(false);
  FHost.Call(TServiceOperation::FormShow, [this] {
    PutShowing(true);
    FHost.events.RunModal(*this);
    assert(ModalResult() != forms::ModalNone);
  });
}

void TMemoryForm::Shown() {
  if (FOwnHand) return;
  const auto self = shared_from_this();
  PutShowing(false);
  FHost.Call(TServiceOperation::FormShow, [&] {
    // It may have been closed in the middle of the call.
    if (FFreed) return;
    PutShowing(true);
    WatchClosing();
    if (std::find(FShown.begin(), FShown.end(), self) == FShown.end()) FShown.push_back(self);
    FHost.events.FormShown(*this);
  });
}

void TMemoryForm::Hidden() {
  if (FOwnHand) return;
  const auto self = shared_from_this();
  FTitled = false;
  if (FClosing) return TakeDown();
  FHost.Call(TServiceOperation::FormHide, [this] { TakeDown(); });
}

void TMemoryForm::BroughtToFront() {
  const auto self = shared_from_this();
  FHost.Call(TServiceOperation::FormFront, [this] { FHost.events.FormBroughtToFront(*this); });
}

void TMemoryForm::AppearanceChanged() {
  if (FOwnHand) return;
  const auto self = shared_from_this();
  const auto changed = [this] {
    FLastSize = ClientSize();
    FLastOnTop = StaysOnTop();
    FHost.events.FormAppearanceChanged(*this);
  };
  if (!IsCaptionCall()) return changed();
  const std::string caption = Caption();
  PutCaption(FLastCaption);
  FHost.Call(TServiceOperation::FormCaption, [&] {
    PutCaption(caption);
    FLastCaption = caption;
    FTitled = true;
    changed();
  });
}

// A caption that is set anew as it was leaves no trace. Before each showing a form is given its caption
// first.
bool TMemoryForm::IsCaptionCall() const {
  if (Caption() != FLastCaption) return true;
  const forms::TSize& size = ClientSize();
  const bool sameElse =
      size.width == FLastSize.width && size.height == FLastSize.height && StaysOnTop() == FLastOnTop;
  return sameElse && !FTitled;
}

void TMemoryForm::PutCaption(const std::string& caption) {
  const TRaised ownHand(FOwnHand);
  SetCaption(caption);
}

void TMemoryForm::PutShowing(bool showing) {
  const TRaised ownHand(FOwnHand);
  showing ? Show() : Hide();
}

void TMemoryForm::WatchClosing() {
  if (std::exchange(FClosingWatched, true)) return;
  OnClose = [this, answer = std::move(OnClose)](TDialogForm& sender, forms::TCloseAction& action) {
    // Held here: when the form is closed once more in the middle of the call, the handler goes with that.
    const auto self = shared_from_this();
    const auto asked = answer;
    auto& form = *this;
    form.FHost.Call(TServiceOperation::FormClose, [&] {
      if (form.FFreed) {
        action = forms::TCloseAction::None;
        return;
      }
      if (asked) asked(sender, action);
      const TRaised closing(form.FClosing);
      if (action != forms::TCloseAction::None) form.Hide();
    });
  };
}

void TMemoryForm::TakeDown() {
  // A modal form is hidden too when it is done, but was never among the modeless forms.
  if (std::erase(FShown, shared_from_this()) > 0) FHost.events.FormClosed(*this);
}

}  // namespace algo::terminal
