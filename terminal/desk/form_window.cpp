#include "terminal/desk/form_window.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QScreen>
#include <QVBoxLayout>
#include <cmath>

#include "terminal/render/qt_text.h"

namespace algo::terminal {

TFormWindow::TFormWindow(forms::TDialogForm& form, TDeskEvents& events, const TEditorAssist& aids,
                         QWidget* parent)
    : QDialog(parent),
      FEvents(events),
      FForm(form.weak_from_this()),
      FPane(*new TFramePane(form.Frame(), aids)) {
  setObjectName("form");
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->addWidget(&FPane);
  setWindowFlag(Qt::WindowContextHelpButtonHint, false);
  connect(&FPane, &TFramePane::LaidOut, this, &TFormWindow::Grow);
  Refresh();
}

void TFormWindow::Grow() { resize(size().expandedTo(FPane.sizeHint()).boundedTo(screen()->availableSize())); }

void TFormWindow::Fit(const host::TViewFrame& frame) {
  const auto form = FForm.lock();
  if (!form || form->Frame().get() != &frame) return;
  form->SetClientSize({static_cast<double>(frame.GetWidth()), static_cast<double>(frame.GetHeight())});
}

void TFormWindow::Refresh() {
  const auto form = FForm.lock();
  if (!form) return;
  setWindowTitle(ToQt(form->Caption()));
  setAccessibleName(windowTitle());
  FPane.setAccessibleName(windowTitle());
  // The trader may have chosen another size, which stays until the form asks for a new one.
  if (form->ClientSize() != FClientSize) {
    FClientSize = form->ClientSize();
    resize(static_cast<int>(std::ceil(FClientSize.width)), static_cast<int>(std::ceil(FClientSize.height)));
    Grow();
  }
  const bool onTop = windowFlags().testFlag(Qt::WindowStaysOnTopHint);
  // A change of the flag takes the window out of sight.
  if (form->StaysOnTop() != onTop && !isVisible())
    setWindowFlag(Qt::WindowStaysOnTopHint, form->StaysOnTop());
}

void TFormWindow::reject() {
  FEvents.Guard([this] {
    if (const auto form = FForm.lock()) form->Close();
  });
}

void TFormWindow::keyPressEvent(QKeyEvent* event) {
  // What Enter does is for the frame to say. A dialog by itself would press some button, which may send an
  // order.
  const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (!isEnter) QDialog::keyPressEvent(event);
}

void TFormWindow::closeEvent(QCloseEvent* event) {
  // What becomes of the window is the form's to say.
  event->ignore();
  reject();
}

}  // namespace algo::terminal
