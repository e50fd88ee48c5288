#pragma once

// Pictures of the desktop as a trader sees it: the main window with whatever stands in front of it.

#include <QString>
#include <QWidget>

namespace algo::terminal::desk::script {

class TScreenshots {
 public:
  /// Pictures go to the folder, which is made if need be; with an empty name none are taken. Throws EError
  /// when the folder cannot be made.
  explicit TScreenshots(const QString& folder);

  /// Takes a picture and returns its file name, which has a number and the words of `what`; empty when none
  /// are taken. Throws EError when it cannot be written.
  QString Take(const QWidget& window, const QString& what);

 private:
  QString FFolder;
  int FCount = 0;
};

}  // namespace algo::terminal::desk::script
