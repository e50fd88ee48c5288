#pragma once

// A frame: a form's content, with its controls, their layout and the focus. The trader's input comes in
// through the input operations, which check whether the control takes input and do what a toolkit does: move
// the focus (the control that had it is left), then act. Renderers observe the frame and feed back what the
// trader does.

#include <chrono>
#include <cstdint>
#include <exception>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/choices.h"
#include "forms/control.h"
#include "forms/date_edit.h"
#include "forms/frame_observer.h"
#include "forms/input_result.h"
#include "forms/layout.h"
#include "forms/spin_edit.h"
#include "forms/text_edit.h"

namespace algo::forms {

class TDialogForm;

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
  /// Gives the control the focus, selects its text and puts `text` in its place as a whole. A number editor
  /// first takes blanks, tabs and line ends off both ends. A text with a character that the editor does not
  /// accept is not taken at all.
  TInputResult InputPaste(TControl& control, std::string_view text);
  /// The editor holds `text` now, as a renderer with a caret of its own has it: keys were put in or taken out
  /// anywhere. Unsuited, with no effect, when the editor does not accept the text.
  TInputResult InputTyped(TControl& control, std::string_view text);
  /// The focus comes to the control without a click; what happens to an editor's selection depends on how it
  /// comes.
  TInputResult InputFocus(TControl& control, TFocusCause cause);
  /// Takes the focus out of the frame.
  void InputLeave();
  /// Enter in the control, which gets the focus first. Enter in a button presses it.
  TInputResult InputEnter(TControl& control);
  /// A click: the focus moves, a button is pressed, a check box toggled. In a read-only check box nothing
  /// more. In an editor it ends the selection, before the editor's click rule may select the text anew.
  TInputResult InputClick(TControl& control);
  /// Picks the item at `index` of a combo box.
  TInputResult InputPick(TControl& control, std::int32_t index);
  /// Arrow keys, wheel and spin buttons: steps a spin edit up, or down for a negative count. Starts from what
  /// stands in the editor, or from 0 where that is nothing, and goes along the editor's grid, else by its own
  /// step. Its bounds stop the steps; from outside of them any step goes to the nearer one. The number stands
  /// in the editor like one that is typed, selected, until the editor is left.
  TInputResult InputStep(TControl& control, std::int32_t steps);
  /// Picks a day of the years 1 to 9999 for a date edit, whose rule says whether the time of day that stands
  /// there is kept. The date-time stands in the editor like one that is typed, until the editor is left.
  TInputResult InputPickDay(TControl& control, std::chrono::local_days day);

  void AddObserver(TFrameObserver& observer);
  void RemoveObserver(TFrameObserver& observer);

  /// Whether the control takes input of the trader at all: Taken, Hidden or Disabled.
  TInputResult TakesInput(const TControl& control) const;
  /// Whether the trader may change what it holds: as TakesInput, or ReadOnly.
  TInputResult TakesChange(const TControl& control) const;

  /// Gives back everything that the frame holds outside of itself; afterwards nothing from outside reaches it
  /// any more. With no effect the second time.
  virtual void Detach() {}

  /// A handle that keeps the frame in memory while a handler of it runs; empty while the frame is being made.
  std::shared_ptr<TFrame> KeepAlive() { return weak_from_this().lock(); }

 protected:
  /// What went wrong in a form around the frame. Frames that must let no exception out override it.
  virtual void Failed(const std::exception_ptr& failure) { std::rethrow_exception(failure); }

  /// Runs one input of the trader. Frames that must let no exception out override it.
  virtual void RunInput(const std::function<void()>& input) { input(); }

 private:
  friend class TControl;
  friend class TLayoutControl;
  friend class TDialogForm;

  void LeaveUnfocusable();
  void Press(TControl& control);
  void NotifyControlChanged(const TControl& control);
  void NotifyLayoutChanged();
  template <class TNotification>
  void Notify(TNotification&& notify);

  using TCheck = TInputResult (TFrame::*)(const TControl& control) const;
  template <class TAct>
  TInputResult Input(TControl& control, TCheck takes, TAct&& act);

  std::string FClassName;
  TLayoutControl FLayout;
  std::vector<std::unique_ptr<TControl>> FControls;
  std::vector<TFrameObserver*> FObservers;  ///< nullptr where one was removed while they are notified
  std::int32_t FNotifying = 0;
  TControl* FFocused = nullptr;
  TDialogForm* FForm = nullptr;
};

}  // namespace algo::forms
