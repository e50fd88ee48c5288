#pragma once

// Message boxes, one at a time and in the order in which the messages came. Nobody waits for the answer: what
// led to a message goes on while its box shows, but the trader has to close it before anything else.

#include <QMessageBox>
#include <QPointer>
#include <QStringList>
#include <QWidget>

namespace algo::terminal {

class TMessageBoxes final : public QObject {
  Q_OBJECT
 public:
  /// `window` outlives the boxes, which show before it under its title.
  explicit TMessageBoxes(QWidget& window);

  /// Shows the text, or has it wait for its turn. What waits already is not shown twice.
  void Show(const QString& text);

  /// Closes the box that shows and forgets those that wait.
  void CloseAll();

 private:
  void ShowNext();

  QWidget& FWindow;
  QPointer<QMessageBox> FBox;
  QStringList FWaiting;
};

}  // namespace algo::terminal
