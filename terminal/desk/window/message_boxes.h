#pragma once

// Message boxes, one at a time and in the order of the messages. Nobody waits for the answer: whatever led to
// a message goes on while its box shows, but the trader has to close the box before anything else.

#include <QMessageBox>
#include <QPointer>
#include <QStringList>
#include <QWidget>

#include "terminal/desk/appearance/texts.h"

namespace algo::terminal::desk::window {

class TMessageBoxes final : public QObject {
  Q_OBJECT
 public:
  /// Both outlive the boxes, which show in front of the window under its title.
  TMessageBoxes(QWidget& window, const appearance::TTexts& texts);

  /// Shows the text, or lets it wait for its turn. A text that waits already is not shown twice.
  void Show(const QString& text);

  /// Closes the box that shows and forgets those that wait.
  void CloseAll();

 private:
  void ShowNext();

  QWidget& FWindow;
  const appearance::TTexts& FTexts;
  QPointer<QMessageBox> FBox;
  QStringList FWaiting;
};

}  // namespace algo::terminal::desk::window
