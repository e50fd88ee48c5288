#include "terminal/desk/frames/form_window.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QVBoxLayout>
#include <cmath>

#include "terminal/render/qt_text.h"

namespace algo::terminal::desk::frames {

TFormWindow::TFormWindow(forms::TDialogForm& form, TDeskEvents& events, const render::TEditorAssist& assist,
                         QWidget* parent)
    : QDialog(parent),
      FEvents(events),
      FForm(form.weak_from_this()),
      FPane(*new TFramePane(form.Frame(), assist)) {
  setObjectName("form");
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->addWidget(&FPane);
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  connect(&FPane, &TFramePane::LaidOut, this, &TFormWindow::GrowToFrame);
  Refresh();
}

void TFormWindow::GrowToFrame() {
  resize(size().expandedTo(FPane.sizeHint()).boundedTo(screen()->availableSize()));
}

void TFormWindow::Fit(const host::TViewFrame& frame) {
  const auto form = FForm.lock();
  if (!form || form->Frame().get() != &frame) return;
  form->SetClientSize({static_cast<double>(frame.GetWidth()), static_cast<double>(frame.GetHeight())});
}

void TFormWindow::Refresh() {
  const auto form = FForm.lock();
  if (!form) return;
  setWindowTitle(render::ToQt(form->Caption()));
  setAccessibleName(windowTitle());
  FPane.setAccessibleName(windowTitle());
  // The trader may have chosen another size, which stays until the form wants a new one.
  if (form->ClientSize() != FClientSize) {
    FClientSize = form->ClientSize();
    resize(static_cast<int>(std::ceil(FClientSize.width)), static_cast<int>(std::ceil(FClientSize.height)));
    GrowToFrame();
  }
  const bool onTop = windowFlags().testFlag(Qt::WindowStaysOnTopHint);
  // A change of the flag hides the window.
  if (form->StaysOnTop() != onTop && !isVisible())
    setWindowFlag(Qt::WindowStaysOnTopHint, form->StaysOnTop());
}

void TFormWindow::reject() {
  FEvents.Guard([this] {
    if (const auto form = FForm.lock()) form->Close();
  });
}

void TFormWindow::keyPressEvent(QKeyEvent* event) {
  // The frame decides what Enter does. The dialog itself would press some button, which may send an order.
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!isEnter) QDialog::keyPressEvent(event);
}

void TFormWindow::closeEvent(QCloseEvent* event) {
  // The form decides what becomes of the window.
  event->ignore();
  reject();
}

}  // namespace algo::terminal::desk::frames
