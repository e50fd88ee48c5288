#pragma once

// A dialog form: a window that the host makes and in which one frame fills the client area. The form keeps
// what a module may ask or set; how the window is drawn and how a modal one waits is the host's part, in a
// derived class.

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "forms/export.h"
#include "forms/toolkit.h"

namespace algo::forms {

class TFrame;

/// What becomes of a form that is closed.
enum class TCloseAction : std::uint8_t { None, Hide, Free };

/// Modal results as the toolkit numbers them.
inline constexpr std::int32_t ModalNone = 0;
inline constexpr std::int32_t ModalOk = 1;
inline constexpr std::int32_t ModalCancel = 2;

class ALGO_SHARED TDialogForm : public std::enable_shared_from_this<TDialogForm> {
 public:
  TDialogForm();
  virtual ~TDialogForm();
  TDialogForm(const TDialogForm&) = delete;
  TDialogForm& operator=(const TDialogForm&) = delete;

  const std::string& Caption() const { return FCaption; }
  void SetCaption(std::string caption);
  const TSize& ClientSize() const { return FClientSize; }
  void SetClientSize(const TSize& size);
  bool StaysOnTop() const { return FStaysOnTop; }
  void SetStaysOnTop(bool staysOnTop);

  /// Puts `frame` into the form, filling its client area. A form holds one frame for its life.
  void SetFrame(std::shared_ptr<TFrame> frame);
  const std::shared_ptr<TFrame>& Frame() const { return FFrame; }

  bool Showing() const { return FShowing; }
  bool Modal() const { return FModal; }

  /// Shows the form and returns its modal result once it has one. The form stays in sight until it is hidden,
  /// so that its owner may look at it first.
  std::int32_t ShowModal();
  /// Shows the form beside the others and returns at once.
  void Show();
  void Hide();
  void BringToFront();

  /// Closes the form: OnClose says what becomes of it (a form without the handler hides). A modal form ends
  /// with ModalCancel unless it has a result. A form that is freed goes when nobody holds it any more, so it
  /// may be closed from inside its own frame's handlers.
  void Close();

  /// The result that ends a modal form; with no effect on a form shown non-modally.
  std::int32_t ModalResult() const { return FModalResult; }
  void SetModalResult(std::int32_t result);

  /// Asked when the form is closed; the handler sets what becomes of it. A form that is freed asks no more.
  std::function<void(TDialogForm& sender, TCloseAction& action)> OnClose;

 protected:
  /// Waits, playing the trader's input, until ModalResult is no longer ModalNone.
  virtual void RunModal() = 0;
  /// The form became visible non-modally, went out of sight, or was brought to the front.
  virtual void Shown() {}
  virtual void Hidden() {}
  virtual void BroughtToFront() {}
  /// Caption, client size or stay-on-top changed.
  virtual void AppearanceChanged() {}
  /// The form has closed for good; it may still be held for a while by a handler that runs.
  virtual void Freed() {}

 private:
  std::string FCaption;
  TSize FClientSize;
  std::shared_ptr<TFrame> FFrame;
  std::int32_t FModalResult = ModalNone;
  bool FStaysOnTop = false;
  bool FShowing = false;
  bool FModal = false;
};

}  // namespace algo::forms
