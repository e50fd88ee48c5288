#pragma once

// A panel of the main window, docked or floating, under our own title bar.

#include <QDockWidget>
#include <string>

#include "terminal/desk/panels/dock_title.h"

namespace algo::terminal::desk::panels {

class TPanel : public QDockWidget {
  Q_OBJECT
 public:
  /// `name` is the panel's identity in workspaces. `linked` as for TDockTitle.
  TPanel(const QString& name, bool linked);

  /// Caption and name for screen readers.
  void SetCaption(const QString& caption);

  TDockTitle& Title() { return FTitle; }
  const TDockTitle& Title() const { return FTitle; }

 private:
  TDockTitle& FTitle;
};

}  // namespace algo::terminal::desk::panels
