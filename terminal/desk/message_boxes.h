#pragma once

// Message boxes, one at a time and in the order in which the messages came. Nobody waits for the answer: what
// led to a message goes on while its box shows, but the trader has to close it before anything else.

#include <QMessageBox>
#include <QPointer>
#include <QStringList>
#include <QWidget>

#include "terminal/desk/texts.h"

namespace algo::terminal {

class TMessageBoxes final : public QObject {
  Q_OBJECT
 public:
  /// Both outlive the boxes, which show before the window under its title.
  TMessageBoxes(QWidget& window, const TTexts& texts);

  /// Shows the text, or has it wait for its turn. What waits already is not shown twice.
  void Show(const QString& text);

  /// Closes the box that shows and forgets those that wait.
  void CloseAll();

 private:
  void ShowNext();

  QWidget& FWindow;
  const TTexts& FTexts;
  QPointer<QMessageBox> FBox;
  QStringList FWaiting;
};

}  // namespace algo::terminal
