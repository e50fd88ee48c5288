#include "terminal/desk/window/message_boxes.h"

#include <QAbstractButton>
#include <QApplication>

namespace algo::terminal::desk::window {

TMessageBoxes::TMessageBoxes(QWidget& window, const appearance::TTexts& texts)
    : FWindow(window), FTexts(texts) {}

void TMessageBoxes::Show(const QString& text) {
  if (FWaiting.contains(text) || (FBox && FBox->text() == text)) return;
  FWaiting.append(text);
  ShowNext();
}

void TMessageBoxes::CloseAll() {
  FWaiting.clear();
  delete FBox.data();
}

void TMessageBoxes::ShowNext() {
  if (FBox || FWaiting.isEmpty()) return;
  // In front of the dialog in which the trader works, and deleted with it.
  QWidget* dialog = QApplication::activeModalWidget();
  FBox = new QMessageBox(QMessageBox::Information, FWindow.windowTitle(), FWaiting.takeFirst(),
                         QMessageBox::Ok, dialog != nullptr ? dialog : &FWindow);
  FBox->setObjectName("messageBox");
  FBox->setAccessibleName(FBox->text());
  FBox->button(QMessageBox::Ok)->setText(FTexts.Desk("OK"));
  FBox->setTextFormat(Qt::PlainText);
  FBox->setAttribute(Qt::WA_DeleteOnClose);
  FBox->setWindowModality(Qt::ApplicationModal);
  // Queued, since the box may be deleted together with its dialog.
  connect(FBox, &QObject::destroyed, this, &TMessageBoxes::ShowNext, Qt::QueuedConnection);
  FBox->show();
}

}  // namespace algo::terminal::desk::window
