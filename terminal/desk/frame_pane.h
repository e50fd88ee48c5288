#pragma once

// A frame of the module inside a window of the desktop: as large as the frame wants to be, and with scroll
// bars where the window has less room.

#include <QScrollArea>
#include <memory>

#include "terminal/render/frame_view.h"

namespace algo::terminal {

class TFramePane final : public QScrollArea {
  Q_OBJECT
 public:
  /// As for TFrameView.
  TFramePane(const std::shared_ptr<forms::TFrame>& frame, const TEditorAssist& aids);

  TFrameView& View() { return FView; }

  /// The room that the frame wants by itself.
  QSize FrameSize() const;

  QSize sizeHint() const override;

 signals:
  /// The frame was laid out anew, and may want another size than it has.
  void LaidOut();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  TFrameView& FView;
};

}  // namespace algo::terminal
