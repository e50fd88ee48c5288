#pragma once

// A frame: a form's content, with its controls, their layout and the focus. The trader's input comes in
// through the input operations, which check whether the control takes input and do what a toolkit does: move
// the focus (the control that had it is left), then act. Renderers observe the frame and feed back what the
// trader does.

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/choices.h"
#include "forms/control.h"
#include "forms/editors.h"
#include "forms/layout.h"

namespace algo::forms {

class TDialogForm;

/// What a renderer is told. The frame is unchanged by being observed; an observer must not throw.
class ALGO_SHARED TFrameObserver {
 public:
  virtual ~TFrameObserver();
  /// Value or looks of one control changed.
  virtual void ControlChanged(const TControl& control) = 0;
  /// What is shown, or where, changed; sent once for each outermost layout update.
  virtual void LayoutChanged() = 0;
  virtual void FocusChanged() = 0;
  /// The frame is going; nothing of it may be touched any more, not even to take the observer off.
  virtual void FrameGone() {}
};

/// What became of an input of the trader.
enum class TInputResult : std::uint8_t {
  Taken,
  Hidden,      ///< the control, or a layout parent of it, is not shown
  Disabled,    ///< the control, or a layout parent of it, is disabled
  ReadOnly,    ///< the control can be looked at but not changed
  Unsuited,    ///< this kind of control takes no such input
  OutOfRange,  ///< the list has no such item
};

class ALGO_SHARED TFrame : public std::enable_shared_from_this<TFrame> {
 public:
  /// `className` names the kind of frame to hosts; `layoutName` names the layout control.
  TFrame(std::string className, std::string layoutName);
  virtual ~TFrame();
  TFrame(const TFrame&) = delete;
  TFrame& operator=(const TFrame&) = delete;

  const std::string& ClassName() const { return FClassName; }
  TLayoutControl& Layout() { return FLayout; }
  const TLayoutControl& Layout() const { return FLayout; }

  /// Makes a control; the frame owns it. Names are unique within the frame.
  template <class TKind, class... TArguments>
  TKind& Add(std::string name, TArguments&&... arguments) {
    auto made = std::make_unique<TKind>(*this, std::move(name), std::forward<TArguments>(arguments)...);
    TKind& control = *made;
    FControls.push_back(std::move(made));
    return control;
  }

  const std::vector<std::unique_ptr<TControl>>& Controls() const { return FControls; }

  /// The control of that name; nullptr when there is none.
  TControl* FindControl(std::string_view name) const;

  /// The form in which the frame sits; nullptr when it sits in none.
  TDialogForm* Form() const { return FForm; }

  TControl* Focused() const { return FFocused; }

  /// Moves the focus by program; nullptr takes it out of the frame. The control that had it is left. With no
  /// effect when the control has the focus already.
  void SetFocus(TControl* control);

  // The trader's input. Each operation runs as one outside call (see RunInput).

  /// Gives the control the focus, selects its text and keys in `text` in its place, character by character;
  /// characters that the editor does not accept are passed over. Line breaks are no characters of a text.
  TInputResult InputText(TControl& control, std::string_view text);
  /// The editor holds `text` now, as a renderer with a caret of its own has it: keys were put in or taken out
  /// anywhere. Unsuited, with no effect, when the editor does not accept the text.
  TInputResult InputTyped(TControl& control, std::string_view text);
  /// The focus comes to the control by key.
  TInputResult InputFocus(TControl& control);
  /// Takes the focus out of the frame.
  void InputLeave();
  /// Enter in the control, which gets the focus first. Enter in a button presses it.
  TInputResult InputEnter(TControl& control);
  /// A click: the focus moves, a button is pressed, a check box toggled. In a read-only check box nothing
  /// more.
  TInputResult InputClick(TControl& control);
  /// Picks the item at `index` of a combo box.
  TInputResult InputPick(TControl& control, std::int32_t index);

  void AddObserver(TFrameObserver& observer);
  void RemoveObserver(TFrameObserver& observer);

  /// Whether the control takes input of the trader at all: Taken, Hidden or Disabled.
  TInputResult TakesInput(const TControl& control) const;

  /// Gives back everything that the frame holds outside of itself; afterwards nothing from outside reaches it
  /// any more. With no effect the second time.
  virtual void Detach() {}

  /// A handle that keeps the frame in memory while a handler of it runs; empty while the frame is being made.
  std::shared_ptr<TFrame> KeepAlive() { return weak_from_this().lock(); }

 protected:
  /// Runs one input of the trader. Frames that must let no exception out override it.
  virtual void RunInput(const std::function<void()>& input) { input(); }

 private:
  friend class TControl;
  friend class TLayoutControl;
  friend class TDialogForm;

  void Press(TControl& control);
  void TellControlChanged(const TControl& control);
  void TellLayoutChanged();
  template <class TInput>
  TInputResult Input(TControl& control, TInput&& act);
  template <class TTell>
  void Tell(TTell&& tell);

  std::string FClassName;
  TLayoutControl FLayout;
  std::vector<std::unique_ptr<TControl>> FControls;
  std::vector<TFrameObserver*> FObservers;  ///< nullptr where one was removed while observers are told
  std::int32_t FTelling = 0;
  TControl* FFocused = nullptr;
  TDialogForm* FForm = nullptr;
};

}  // namespace algo::forms
