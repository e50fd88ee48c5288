#include "terminal/ui_driver/window_stage.h"

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QVBoxLayout>
#include <algorithm>

namespace algo::terminal::ui_driver {

struct TWindowStage::TWindow {
  TWindow(const std::shared_ptr<forms::TFrame>& shown, const render::TEditorAids& aids)
      : frame(shown.get()), rest(new QLabel(&window)), view(new render::TFrameView(shown, aids, &window)) {
    auto* column = new QVBoxLayout(&window);
    column->addWidget(rest);
    column->addWidget(view);
    rest->setText(render::ToQt(shown->ClassName()));
    rest->setFocusPolicy(Qt::ClickFocus);
    window.setWindowTitle(rest->text());
  }

  const forms::TFrame* frame;
  QWidget window;
  QLabel* rest;
  render::TFrameView* view;
};

TWindowStage::TWindowStage() = default;
TWindowStage::~TWindowStage() = default;

render::TFrameView& TWindowStage::ViewOf(const std::shared_ptr<forms::TFrame>& frame) {
  Views();
  auto found = std::find_if(FWindows.begin(), FWindows.end(),
                            [&](const auto& window) { return window->frame == frame.get(); });
  if (found == FWindows.end()) {
    FWindows.push_back(std::make_unique<TWindow>(frame, FAids));
    found = FWindows.end() - 1;
    (*found)->window.show();
    // A window that opens has the focus nowhere in particular, as the frame has.
    (*found)->rest->setFocus();
  }
  QWidget& window = (*found)->window;
  if (!window.isActiveWindow()) {
    window.activateWindow();
    window.raise();
    (void)QTest::qWaitForWindowActive(&window);
  }
  return *(*found)->view;
}

QWidget& TWindowStage::RestOf(const render::TFrameView& view) const {
  const auto found = std::find_if(FWindows.begin(), FWindows.end(),
                                  [&](const auto& window) { return window->view == &view; });
  return *(*found)->rest;
}

std::vector<const render::TFrameView*> TWindowStage::Views() {
  std::erase_if(FWindows, [](const auto& window) { return window->view->Frame() == nullptr; });
  std::vector<const render::TFrameView*> views;
  for (const auto& window : FWindows) views.push_back(window->view);
  return views;
}

}  // namespace algo::terminal::ui_driver
