#pragma once

// A frame of the form model as a widget: drawn generically from the model, with no code for any field, and
// sending back what the trader does. Focus follows the model, and the model follows the desktop's focus.

#include <QWidget>
#include <memory>
#include <unordered_map>
#include <vector>

#include "forms/frame.h"
#include "terminal/render/control_view.h"
#include "terminal/render/editor_aids.h"
#include "terminal/render/layout_view.h"

namespace algo::terminal {

class TFrameView final : public QWidget, private forms::TFrameObserver {
  Q_OBJECT
 public:
  /// Shows the frame as long as both live. The view does not keep the frame; without it, it is an empty
  /// widget. `aids` outlives the view.
  TFrameView(const std::shared_ptr<forms::TFrame>& frame, const TEditorAids& aids, QWidget* parent = nullptr);
  ~TFrameView() override;

  /// The frame, or nullptr when it has gone.
  std::shared_ptr<forms::TFrame> Frame() const { return FInput.Frame(); }

  /// The view of the control; nullptr for one that was never shown, and for one of another frame.
  TControlView* Find(const forms::TControl& control) const;

  /// Gives the focus to the first control that takes input; with no effect when there is none.
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
  /// The view whose widget takes keys and mouse at `watched`; nullptr for none.
  TControlView* ViewOf(const QObject* watched) const;
  bool FilterKey(TControlView& view, const QEvent& event);
  void FilterMouse(TControlView& view, const QEvent& event);

  TFrameInput FInput;
  const TEditorAids& FAids;
  QWidget* FContent;
  std::unique_ptr<TLayoutView> FLayout;
  std::unordered_map<const forms::TControl*, std::unique_ptr<TControlView>> FViews;
  std::unordered_map<const QObject*, TControlView*> FByInput;
  std::vector<QWidget*> FTabChain;  ///< the widgets in the order in which Tab goes through them now
  forms::TFocusCause FFocusCause = forms::TFocusCause::Other;  ///< how the focus came last
};

}  // namespace algo::terminal
