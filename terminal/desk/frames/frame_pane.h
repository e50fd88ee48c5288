#pragma once

// A frame of the module inside a window of the desktop: as large as the frame wants to be, with scroll bars
// where the window has less room.

#include <QScrollArea>
#include <memory>

#include "terminal/render/frame_view.h"

namespace algo::terminal::desk::frames {

class TFramePane final : public QScrollArea {
  Q_OBJECT
 public:
  /// As for TFrameView.
  TFramePane(const std::shared_ptr<forms::TFrame>& frame, const render::TEditorAssist& assist);

  render::TFrameView& View() { return FView; }

  /// The size that the frame itself wants.
  QSize FrameSize() const;

  QSize sizeHint() const override;

 signals:
  /// The frame was laid out anew, and may want another size than it has.
  void LaidOut();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  render::TFrameView& FView;
};

}  // namespace algo::terminal::desk::frames
