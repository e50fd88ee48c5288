#pragma once

// What every control of a form has: a name, its appearance, its place in the layout, and the moments at which
// the frame's code runs. The program changes a control through its setters at any time; what the trader does
// comes in through the frame's input operations (see frame.h), which alone look at whether the control takes
// input.

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "forms/export.h"
#include "forms/toolkit.h"

namespace algo::forms {

class TFrame;
class TLayoutItem;

enum class TControlKind : std::uint8_t { Edit, Spin, Combo, Date, Check, Button };

/// A colour as 0xRRGGBB.
using TColor = std::uint32_t;

class ALGO_SHARED TControl {
 public:
  /// Controls are made by TFrame::Add, which owns them.
  TControl(TFrame& frame, std::string name, TControlKind kind);
  virtual ~TControl();
  TControl(const TControl&) = delete;
  TControl& operator=(const TControl&) = delete;

  const std::string& Name() const { return FName; }
  TControlKind Kind() const { return FKind; }
  TFrame& Frame() const { return FFrame; }

  /// The layout item that carries this control; nullptr while it stands nowhere.
  TLayoutItem* Item() const { return FItem; }

  bool Visible() const { return FVisible; }
  void SetVisible(bool visible);
  bool Enabled() const { return FEnabled; }
  void SetEnabled(bool enabled);
  bool ReadOnly() const { return FReadOnly; }
  void SetReadOnly(bool readOnly);

  /// Visible itself, and its item with all the item's parents visible.
  bool Showing() const;

  /// Whether it can take the focus: showing, and enabled itself and through all its layout parents.
  bool CanFocus() const;
  bool Focused() const;

  /// The caption of a button or a check box; empty for the others.
  const std::string& Caption() const { return FCaption; }
  void SetCaption(std::string caption);

  /// The tool tip. Some editors keep a value in it, the symbol editor for one.
  const std::string& Hint() const { return FHint; }
  void SetHint(std::string hint);

  const TFont& Font() const { return FFont; }
  void SetFont(const TFont& font);

  /// The room that the control takes, in pixels.
  TSize Size() const;
  void SetSize(const TSize& size);

  /// The text that the control shows; empty for buttons.
  virtual std::string Text() const { return {}; }

  /// The commit notification, which is what leaving by focus sends too: typed input is taken up, the host
  /// editor registered on the control reacts, then the frame's exit handler runs.
  void Commit();

  /// The reaction of the host editor that is registered on this control; an empty function takes it off.
  void SetHostEditor(std::function<void()> reaction) { FHostEditor = std::move(reaction); }

  /// Runs when the control was left or was sent the commit notification.
  std::function<void()> OnExit;
  /// Runs in place of OnExit when the host editor's reaction failed; the failure runs on afterwards.
  std::function<void()> OnHostEditorFailed;
  /// Runs for the trader's click.
  std::function<void()> OnClick;
  /// Runs when the trader presses Enter in the control.
  std::function<void()> OnEnterKey;
  /// Runs when value, index or checked state really changed, whoever changed it.
  std::function<void()> OnChange;

 protected:
  /// Makes the value of what was typed; called before the exit handlers.
  virtual void TakeUp() {}

  /// Called by derived classes when the value really changed: notifies the observers, then runs OnChange.
  void ValueChanged();

  /// Notifies the observers that the control is shown differently now, with no effect on its value.
  void AppearanceChanged();

 private:
  friend class TFrame;
  friend class TLayoutControl;

  void Run(const std::function<void()>& handler);

  TFrame& FFrame;
  std::string FName;
  std::string FCaption;
  std::string FHint;
  std::function<void()> FHostEditor;
  TLayoutItem* FItem = nullptr;
  TSize FSize;
  TFont FFont;
  TControlKind FKind;
  bool FVisible = true;
  bool FEnabled = true;
  bool FReadOnly = false;
};

}  // namespace algo::forms
