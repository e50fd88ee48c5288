#include "terminal/desk/message_boxes.h"

#include <QAbstractButton>
#include <QApplication>

namespace algo::terminal {

TMessageBoxes::TMessageBoxes(QWidget& window, const TTexts& texts) : FWindow(window), FTexts(texts) {}

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
  // In front of the dialog that the trader works in, and gone with it.
  QWidget* dialog = QApplication::activeModalWidget();
  FBox = new QMessageBox(QMessageBox::Information, FWindow.windowTitle(), FWaiting.takeFirst(),
                         QMessageBox::Ok, dialog != nullptr ? dialog : &FWindow);
  FBox->setObjectName("messageBox");
  FBox->setAccessibleName(FBox->text());
  FBox->button(QMessageBox::Ok)->setText(FTexts.Desk("OK"));
  FBox->setTextFormat(Qt::PlainText);
  FBox->setAttribute(Qt::WA_DeleteOnClose);
  FBox->setWindowModality(Qt::ApplicationModal);
  // Later, since the box may be going with the dialog that it belongs to.
  connect(FBox, &QObject::destroyed, this, &TMessageBoxes::ShowNext, Qt::QueuedConnection);
  FBox->show();
}

}  // namespace algo::terminal
