#pragma once

// The keys at which views of the module do something while they are the active one. Keys that the terminal
// uses itself stay with it.

#include <QAction>
#include <QList>
#include <QObject>
#include <QWidget>
#include <cstdint>
#include <memory>
#include <vector>

#include "terminal/desk/session/desk.h"

namespace algo::terminal::desk::frames {

class TViewShortcuts final : public QObject {
  Q_OBJECT
 public:
  /// The keys work in `window` and what floats beside it. Both outlive the object, which is the only one of
  /// the desk.
  TViewShortcuts(TDesk& desk, QWidget& window);

  /// Asks for the shortcuts, whose captions are in the user's language. The first time, it has the provider
  /// make them ready before.
  void Rebuild();

  /// Whether a view is active, without which the keys do nothing.
  void SetEnabled(bool enabled);

  /// What can be done, with the captions of it, and the keys as far as they are free.
  const std::vector<std::unique_ptr<QAction>>& Actions() const { return FActions; }

  /// What the view knows an action by.
  static std::int32_t Number(const QAction& action);

 signals:
  /// The keys of the action of that number were pressed.
  void Pressed(std::int32_t number);

 private:
  QKeySequence FreeKeys(const QString& proposed) const;

  TDesk& FDesk;
  QWidget& FWindow;
  bool FInitialized = false;
  bool FEnabled = false;
  std::vector<std::unique_ptr<QAction>> FActions;
};

}  // namespace algo::terminal::desk::frames
