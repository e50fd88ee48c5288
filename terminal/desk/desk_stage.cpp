#include "terminal/desk/desk_stage.h"

#include <QDockWidget>
#include <QTest>

#include "text/errors.h"

namespace algo::terminal {

TFrameView& TDeskStage::ViewOf(const std::shared_ptr<forms::TFrame>& frame) {
  for (TFrameView* view : FWindow.findChildren<TFrameView*>()) {
    if (view->Frame() != frame) continue;
    // A panel may stand behind another one of its tabs.
    for (QWidget* above = view; above != nullptr; above = above->parentWidget()) {
      if (qobject_cast<QDockWidget*>(above) != nullptr) above->raise();
    }
    QWidget* window = view->window();
    if (!window->isActiveWindow()) {
      window->activateWindow();
      (void)QTest::qWaitForWindowActive(window);
    }
    return *view;
  }
  throw EError("the frame stands in no window");
}

QWidget& TDeskStage::FocusSinkOf(const TFrameView& /*view*/) const {
  return *FWindow.findChild<QWidget*>("marketTable");
}

std::vector<const TFrameView*> TDeskStage::Views() {
  std::vector<const TFrameView*> views;
  for (const TFrameView* view : FWindow.findChildren<TFrameView*>()) {
    // What stands behind another tab is not to be seen, whatever the frame says.
    if (view->isVisible()) views.push_back(view);
  }
  return views;
}

}  // namespace algo::terminal
