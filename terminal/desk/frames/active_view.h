#pragma once

// Which view of the module is the active one of the terminal: the one whose panel had the focus last, until
// something else of the main window gets it. A dialog in front changes nothing, nor does another program.

#include <QObject>
#include <QWidget>

#include "terminal/desk/frames/entry_panel.h"
#include "terminal/desk/session/desk.h"

namespace algo::terminal::desk::frames {

class TActiveView final : public QObject {
  Q_OBJECT
 public:
  /// Tells the views by the focus of the application. The desk outlives the object.
  explicit TActiveView(TDesk& desk);

  /// The panel of the active view; nullptr when there is none.
  TEntryPanel* Panel() const { return FPanel; }

  /// The panel closes: its view is not the active one any more.
  void Leave(const TEntryPanel& panel);

 signals:
  /// Another view, or none, is the active one.
  void Changed();

 private:
  void FocusChanged(QWidget* before, QWidget* now);
  void Activate(TEntryPanel* panel);

  TDesk& FDesk;
  TEntryPanel* FPanel = nullptr;  ///< leaves before it is destroyed
};

}  // namespace algo::terminal::desk::frames
