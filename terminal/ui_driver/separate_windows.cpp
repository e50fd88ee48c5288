#include "terminal/ui_driver/separate_windows.h"

#include <QApplication>
#include <QLabel>
#include <QTest>
#include <QVBoxLayout>
#include <algorithm>

namespace algo::terminal::ui_driver {

struct TSeparateWindows::TWindow {
  TWindow(const std::shared_ptr<forms::TFrame>& shown, const render::TEditorAssist& assist)
      : frame(shown.get()),
        focusSink(new QLabel(&window)),
        view(new render::TFrameView(shown, assist, &window)) {
    auto* column = new QVBoxLayout(&window);
    column->addWidget(focusSink);
    column->addWidget(view);
    focusSink->setText(render::ToQt(shown->ClassName()));
    focusSink->setFocusPolicy(Qt::ClickFocus);
    window.setWindowTitle(focusSink->text());
  }

  const forms::TFrame* frame;
  QWidget window;
  QLabel* focusSink;
  render::TFrameView* view;
};

TSeparateWindows::TSeparateWindows() = default;
TSeparateWindows::~TSeparateWindows() = default;

render::TFrameView& TSeparateWindows::ViewOf(const std::shared_ptr<forms::TFrame>& frame) {
  Views();
  auto found = std::find_if(FWindows.begin(), FWindows.end(),
                            [&](const auto& window) { return window->frame == frame.get(); });
  if (found == FWindows.end()) {
    FWindows.push_back(std::make_unique<TWindow>(frame, FAssist));
    found = FWindows.end() - 1;
    (*found)->window.show();
    // A window that opens has the focus nowhere in particular, as the frame has.
    (*found)->focusSink->setFocus();
  }
  QWidget& window = (*found)->window;
  if (!window.isActiveWindow()) {
    window.activateWindow();
    window.raise();
    (void)QTest::qWaitForWindowActive(&window);
  }
  return *(*found)->view;
}

QWidget& TSeparateWindows::FocusSinkOf(const render::TFrameView& view) const {
  const auto found = std::find_if(FWindows.begin(), FWindows.end(),
                                  [&](const auto& window) { return window->view == &view; });
  return *(*found)->focusSink;
}

std::vector<const render::TFrameView*> TSeparateWindows::Views() {
  std::erase_if(FWindows, [](const auto& window) { return window->view->Frame() == nullptr; });
  std::vector<const render::TFrameView*> views;
  for (const auto& window : FWindows) views.push_back(window->view);
  return views;
}

}  // namespace algo::terminal::ui_driver
