#include "terminal/desk/frame_pane.h"

#include <QEvent>
#include <QStyle>

namespace algo::terminal {

TFramePane::TFramePane(const std::shared_ptr<forms::TFrame>& frame, const TEditorAssist& aids)
    : FView(*new TFrameView(frame, aids)) {
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
  // Without it the first scroll bar that shows takes room, and a second one shows.
  const int bar = style()->pixelMetric(QStyle::PM_ScrollBarExtent);
  return FrameSize() + QSize(bar, 0);
}

}  // namespace algo::terminal
