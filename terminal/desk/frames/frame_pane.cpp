#include "terminal/desk/frames/frame_pane.h"

#include <QEvent>
#include <QStyle>

namespace algo::terminal::desk::frames {

TFramePane::TFramePane(const std::shared_ptr<forms::TFrame>& frame, const render::TEditorAssist& assist)
    : FView(*new render::TFrameView(frame, assist)) {
  setObjectName("pane");
  FView.setObjectName("frame");
  setFrameShape(QFrame::NoFrame);
  setWidgetResizable(true);
  // The controls take the focus, the area around them does not.
  setFocusPolicy(Qt::NoFocus);
  setWidget(&FView);
}

bool TFramePane::eventFilter(QObject* watched, QEvent* event) {
  const bool taken = QScrollArea::eventFilter(watched, event);
  if (watched == &FView && event->type() == QEvent::LayoutRequest) emit LaidOut();
  return taken;
}

QSize TFramePane::FrameSize() const { return FView.sizeHint(); }

QSize TFramePane::sizeHint() const {
  // Without room for it, a scroll bar in one direction would lead to one in the other.
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  return FrameSize() + QSize(bar, 0);
}

}  // namespace algo::terminal::desk::frames
