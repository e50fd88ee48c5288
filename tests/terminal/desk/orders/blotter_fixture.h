#pragma once

// The desktop with orders in its blotter, and the context menu of the blotter.

#include <QMenu>
#include <QTreeView>

#include "tests/terminal/desk/desk_fixture.h"

namespace algo::terminal::desk::tests {

struct TBlotterTest : TDeskTest {
  /// Puts an order of the module into the host, as if it had been submitted before.
  void Put(const std::string& key, std::uint32_t flags = 0) {
    host::TCustomClientOrder order;
    order.key = key;
    order.orderNo = key;
    order.account = "SAMPLE-01";
    order.symbol = "0005";
    order.exchange = "HKG";
    order.quantity = 4000;
    order.price = 60.5;
    order.flags = flags;
    order.algoFlags = 0x8000;
    order.SetNamedText("Original", "AlgoEntry");
    order.SetTextProperty(440, "TMLO:AlgoId=TVOL,VolPct=20,Closing=0;");
    desk->Host().Journal().Record({"test", "new", "accepted"}, order);
  }

  host::TCustomClientOrder& Order(const char* key) { return *desk->Host().Orders().Find(key); }
  QTreeView& Tree() { return The<QTreeView>("orderTree"); }

  /// Asks for the context menu at that place of the tree.
  void OpenMenuByMouse(const QPoint& place) {
    QContextMenuEvent request(QContextMenuEvent::Mouse, place, Tree().viewport()->mapToGlobal(place));
    QApplication::sendEvent(Tree().viewport(), &request);
  }
  /// Asks for the context menu of the current row.
  void OpenMenuByKey() {
    QContextMenuEvent request(QContextMenuEvent::Keyboard, {0, 0}, {0, 0});
    QApplication::sendEvent(&Tree(), &request);
  }

  /// Opens the context menu on the row and chooses an entry of it by mouse. False when it is not offered.
  bool Choose(int row, const char* action) {
    const QRect place = Tree().visualRect(Tree().model()->index(row, 0));
    QTest::mouseClick(Tree().viewport(), Qt::LeftButton, {}, place.center());
    OpenMenuByMouse(place.center());
    auto& menu = The<QMenu>("orderMenu");
    const auto* entry = menu.findChild<QAction*>(action);
    const bool offered = entry != nullptr && entry->isEnabled();
    if (offered) {
      QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(const_cast<QAction*>(entry)).center());
    } else {
      menu.close();
    }
    QTest::qWait(1);
    return offered;
  }
};

}  // namespace algo::terminal::desk::tests
