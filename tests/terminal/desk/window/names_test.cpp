// Every widget that takes the focus has its names.

#include "tests/terminal/desk/desk_fixture.h"

namespace algo::terminal::desk::tests {
namespace {

// What is Qt's own, parts inside of a widget for one, has names of Qt's making.
bool IsOurs(const QWidget& widget) {
  const QString name = widget.objectName();
  if (name.startsWith("qt_") || widget.metaObject()->className() == std::string_view("QWidget")) return false;
  for (const char* kind :
       {"QLabel", "QScrollBar", "QHeaderView", "QTabBar", "QSizeGrip", "QRubberBand", "QMenu"}) {
    if (widget.inherits(kind)) return false;
  }
  return widget.focusPolicy() != Qt::NoFocus && widget.isVisible();
}

struct TNamesTest : TDeskTest {};

TEST_F(TNamesTest, WhatTakesTheFocusHasAnObjectNameAndAnAccessibleName) {
  Open();
  int seen = 0;
  for (const QWidget* widget : window->findChildren<QWidget*>()) {
    if (!IsOurs(*widget)) continue;
    ++seen;
    const std::string kind = widget->metaObject()->className();
    EXPECT_FALSE(widget->objectName().isEmpty())
        << kind << " in " << widget->parent()->objectName().toStdString();
    EXPECT_FALSE(widget->accessibleName().isEmpty()) << kind << " " << widget->objectName().toStdString();
  }
  EXPECT_GT(seen, 30);
}

}  // namespace
}  // namespace algo::terminal::desk::tests
