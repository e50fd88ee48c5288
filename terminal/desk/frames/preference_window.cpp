#include "terminal/desk/frames/preference_window.h"

#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>
#include <utility>

namespace algo::terminal::desk::frames {

std::shared_ptr<host::TViewFrame> MakePreferences(TDesk& desk) {
  const std::shared_ptr<host::TViewFrame> frame = desk.Provider().GetPreferenceView();
  if (!frame) return nullptr;
  return {frame.get(), [frame, &events = desk.Events()](host::TViewFrame* view) {
            events.Guard([view] { view->Detach(); });
          }};
}

TPreferenceWindow::TPreferenceWindow(TDesk& desk, std::shared_ptr<host::TViewFrame> frame, QWidget& parent)
    : QDialog(&parent), FFrame(std::move(frame)), FPane(*new TFramePane(FFrame, desk.EditorAssist())) {
  setObjectName("preferences");
  setAttribute(Qt::WA_DeleteOnClose);
  setWindowTitle(desk.Texts().Desk("View settings"));
  setAccessibleName(windowTitle());
  FPane.setAccessibleName(windowTitle());
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
  QPushButton* close = buttons->button(QDialogButtonBox::Close);
  close->setObjectName("closePreferences");
  close->setText(desk.Texts().Desk("Close"));
  close->setAccessibleName(close->text());
  // The frame decides what Enter does.
  close->setAutoDefault(false);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
  auto* column = new QVBoxLayout(this);
  column->addWidget(&FPane);
  column->addWidget(buttons);
  resize(sizeHint().boundedTo(parent.screen()->availableSize()));
}

TPreferenceWindow::~TPreferenceWindow() {
  // The widgets go first, so that none of them asks a frame that is going away.
  delete &FPane;
}

}  // namespace algo::terminal::desk::frames
