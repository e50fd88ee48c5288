#pragma once

// A frame of the form model as a widget: built generically from the model, without code for any particular
// field, and passing on what the trader does. The focus follows the model, and the model follows the
// desktop's focus.

#include <QWidget>
#include <memory>
#include <unordered_map>
#include <vector>

#include "forms/frame.h"
#include "terminal/render/control_view.h"
#include "terminal/render/editor_assist.h"
#include "terminal/render/layout_view.h"

namespace algo::terminal::render {

class TFrameView final : public QWidget, private forms::TFrameObserver {
  Q_OBJECT
 public:
  /// Shows the frame as long as both live. The view does not own the frame; without it, it is an empty
  /// widget. `assist` outlives the view.
  TFrameView(const std::shared_ptr<forms::TFrame>& frame, const TEditorAssist& assist,
             QWidget* parent = nullptr);
  ~TFrameView() override;

  /// The frame, or nullptr if it is gone.
  std::shared_ptr<forms::TFrame> Frame() const { return FInput.Frame(); }

  /// The view of the control; nullptr for a control that was never shown, and for one of another frame.
  TControlView* Find(const forms::TControl& control) const;

  /// Gives the focus to the first control that takes input; without effect if there is none.
  void FocusFirst();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void ControlChanged(const forms::TControl& control) override;
  void LayoutChanged() override;
  void FocusChanged() override;
  void FrameDestroyed() override;

  QWidget& MakeControl(forms::TControl& control, QWidget& parent);
  void ChainTabs(const forms::TFrame& frame);
  void ShowAll(const forms::TFrame& frame);
  void ShowNames(const forms::TFrame& frame);
  void DesktopFocusChanged(QWidget* before, QWidget* now);
  template <class TStep>
  void Draw(TStep&& step);
  /// The view that receives keys and mouse through `watched`; nullptr if there is none.
  TControlView* ViewOf(const QObject* watched) const;
  bool FilterKey(TControlView& view, const QEvent& event);
  void FilterMouse(TControlView& view, const QEvent& event);

  TFrameInput FInput;
  const TEditorAssist& FAssist;
  QWidget* FContent;
  std::unique_ptr<TLayoutView> FLayout;
  std::unordered_map<const forms::TControl*, std::unique_ptr<TControlView>> FViews;
  std::unordered_map<const QObject*, TControlView*> FByInput;
  std::vector<QWidget*> FTabChain;  ///< the widgets in the order in which Tab goes through them now
  bool FDrawing = false;      ///< widgets are being changed: where the focus goes is not the trader's doing
  bool FFocusAstray = false;  ///< a change of widgets took the focus from where the frame has it
  forms::TFocusCause FFocusCause = forms::TFocusCause::Other;  ///< how the focus came last
};

}  // namespace algo::terminal::render
