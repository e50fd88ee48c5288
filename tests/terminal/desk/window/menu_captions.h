#pragma once

// What a menu reads.

#include <QAction>
#include <QStringList>
#include <QWidget>

namespace algo::terminal::desk::tests {

inline QStringList Captions(const QWidget& menu) {
  QStringList captions;
  for (const QAction* action : menu.actions()) captions.append(action->text());
  return captions;
}

}  // namespace algo::terminal::desk::tests
