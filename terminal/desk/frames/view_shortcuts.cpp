#include "terminal/desk/frames/view_shortcuts.h"

#include <QKeySequence>
#include <QMenuBar>
#include <algorithm>
#include <utility>

#include "terminal/render/qt_text.h"

namespace algo::terminal::desk::frames {

namespace {

/// Every key sequence that something in the window listens to already.
QList<QKeySequence> KeysIn(const QWidget& window) {
  QList<QKeySequence> keys;
  for (const QAction* action : window.findChildren<QAction*>()) keys.append(action->shortcuts());
  for (const QMenuBar* bar : window.findChildren<QMenuBar*>()) {
    for (const QAction* menu : bar->actions()) keys.append(QKeySequence::mnemonic(menu->text()));
  }
  return keys;
}

/// Whether one is the beginning of the other, so that the first key does not tell them apart.
bool Collide(const QKeySequence& one, const QKeySequence& other) {
  if (one.isEmpty() || other.isEmpty()) return false;
  return one.matches(other) != QKeySequence::NoMatch || other.matches(one) != QKeySequence::NoMatch;
}

}  // namespace

TViewShortcuts::TViewShortcuts(TDesk& desk, QWidget& window) : FDesk(desk), FWindow(window) {}

void TViewShortcuts::Rebuild() {
  if (!std::exchange(FInitialized, true)) FDesk.Provider().InitializeShortcut();
  FActions.clear();
  for (const host::TShortcut& shortcut : FDesk.Provider().GetShortCutList()) {
    auto action = std::make_unique<QAction>(render::ToQt(shortcut.caption));
    action->setObjectName("viewShortcut" + QString::number(shortcut.action));
    action->setData(shortcut.action);
    action->setShortcut(FreeKeys(render::ToQt(shortcut.keys)));
    action->setEnabled(FEnabled);
    connect(action.get(), &QAction::triggered, this,
            [this, number = shortcut.action] { emit Pressed(number); });
    FWindow.addAction(action.get());
    FActions.push_back(std::move(action));
  }
}

void TViewShortcuts::SetEnabled(bool enabled) {
  FEnabled = enabled;
  for (const auto& action : FActions) action->setEnabled(enabled);
}

std::int32_t TViewShortcuts::Number(const QAction& action) { return action.data().toInt(); }

QKeySequence TViewShortcuts::FreeKeys(const QString& proposed) const {
  const QKeySequence keys(proposed, QKeySequence::PortableText);
  QList<QKeySequence> taken = KeysIn(FWindow);
  for (const auto& action : FActions) taken.append(action->shortcut());
  const bool known = !keys.isEmpty() && keys[0].key() != Qt::Key_unknown;
  const bool free = std::none_of(taken.begin(), taken.end(),
                                 [&keys](const QKeySequence& other) { return Collide(keys, other); });
  return known && free ? keys : QKeySequence();
}

}  // namespace algo::terminal::desk::frames
