#pragma once

// Counts how often widgets are painted: those on which it is installed as an event filter.

#include <QEvent>
#include <QObject>

namespace algo::terminal::tests {

class TPaintCount final : public QObject {
 public:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count;
    return false;
  }
  int count = 0;
};

}  // namespace algo::terminal::tests
