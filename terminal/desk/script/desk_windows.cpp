#include "terminal/desk/script/desk_windows.h"

#include <QDockWidget>
#include <QTest>

#include "text/errors.h"

namespace algo::terminal::desk::script {

render::TFrameView& TDeskWindows::ViewOf(const std::shared_ptr<forms::TFrame>& frame) {
  for (render::TFrameView* view : FWindow.findChildren<render::TFrameView*>()) {
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

QWidget& TDeskWindows::FocusSinkOf(const render::TFrameView& /*view*/) const {
  return *FWindow.findChild<QWidget*>("marketTable");
}

std::vector<const render::TFrameView*> TDeskWindows::Views() {
  std::vector<const render::TFrameView*> views;
  for (const render::TFrameView* view : FWindow.findChildren<render::TFrameView*>()) {
    // A view behind another tab is hidden, whatever its frame says.
    if (view->isVisible()) views.push_back(view);
  }
  return views;
}

}  // namespace algo::terminal::desk::script
