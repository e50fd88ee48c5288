#pragma once

// A dialog form without a window, operated through the host's events. The form model tells a form of what was
// done with it only afterwards; here that is taken back for as long as the call passes the host's point, so
// that a call that fails has done nothing, and who acts in the middle of it finds the form as it was.

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "forms/dialog_form.h"
#include "terminal/host/host_context.h"

namespace algo::terminal {

/// The open modeless forms. The host holds them, so that they live until they are closed.
using TShownForms = std::vector<std::shared_ptr<forms::TDialogForm>>;

class TMemoryForm final : public forms::TDialogForm {
 public:
  /// Both outlive the form.
  TMemoryForm(const THostContext& host, TShownForms& shown) : FHost(host), FShown(shown) {}

 protected:
  void RunModal() override;
  void Shown() override;
  void Hidden() override;
  void BroughtToFront() override;
  void AppearanceChanged() override;
  void Freed() override { FFreed = true; }

 private:
  bool IsCaptionCall() const;
  void PutCaption(const std::string& caption);
  void PutShowing(bool showing);
  void WatchClosing();
  void TakeDown();

  const THostContext& FHost;
  TShownForms& FShown;
  // What the form looked like at the last change of it.
  std::string FLastCaption;
  forms::TSize FLastSize;
  bool FLastOnTop = false;
  bool FTitled = false;          ///< a caption was set since the form was hidden
  bool FOwnHand = false;         ///< the form is changed from here
  bool FClosing = false;         ///< the form is hidden because it closes
  bool FClosingWatched = false;  ///< OnClose passes the host's point
  bool FFreed = false;           ///< the form has closed for good
};

}  // namespace algo::terminal
