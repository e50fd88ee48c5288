// The blotter: what its context menu is for and offers, and its filters.

#include "tests/terminal/desk/orders/blotter_fixture.h"

namespace algo::terminal::desk::tests {
namespace {

TEST_F(TBlotterTest, ByKeyTheMenuIsForTheCurrentRow) {
  Open();
  Put("N1");
  Put("N2");
  Tree().setCurrentIndex(Tree().model()->index(1, 0));
  OpenMenuByKey();
  auto& menu = The<QMenu>("orderMenu");
  QTest::keyClick(&menu, Qt::Key_Up);
  QTest::keyClick(&menu, Qt::Key_Return);
  EXPECT_EQ(Order("N1").status, 4);
  EXPECT_EQ(Order("N2").status, 0);
}

TEST_F(TBlotterTest, AMenuIsForItsRowAndNotForTheCurrentOne) {
  Open();
  Put("N1");
  Put("N2");
  Tree().setCurrentIndex(Tree().model()->index(1, 0));
  const QPoint first = Tree().visualRect(Tree().model()->index(0, 0)).center();
  OpenMenuByMouse(first);
  The<QAction>("cancelOrder").trigger();
  EXPECT_EQ(Order("N2").status, 4);
  EXPECT_EQ(Order("N1").status, 0);
  The<QMenu>("orderMenu").close();
}

TEST_F(TBlotterTest, AnOrderThatLeftTheListWhileItsMenuWasOpenIsLeftAlone) {
  Open();
  Put("N1");
  QTest::keyClick(&The("ordersShown"), Qt::Key_Down);
  Tree().setCurrentIndex(Tree().model()->index(0, 0));
  OpenMenuByKey();
  auto filled = Order("N1");
  filled.filled = 4000;
  filled.status = 3;
  desk->Host().Journal().Record({"test", "fill", "4000"}, filled);
  The<QAction>("cancelOrder").trigger();
  EXPECT_EQ(Order("N1").status, 3);
  EXPECT_EQ(desk->Storage().EventsOf("N1").back().event.what, "fill");
  The<QMenu>("orderMenu").close();
}

TEST_F(TBlotterTest, BelowTheLastRowThereIsNoMenu) {
  Open();
  Put("N1");
  Tree().setCurrentIndex(Tree().model()->index(0, 0));
  const QPoint below(20, Tree().viewport()->height() - 3);
  OpenMenuByMouse(below);
  EXPECT_EQ(window->findChild<QMenu*>("orderMenu"), nullptr);
}

TEST_F(TBlotterTest, OnlyAWorkParentOffersWork) {
  Open();
  Put("N1");
  EXPECT_FALSE(Choose(0, "workOrder"));
}

TEST_F(TBlotterTest, FiltersWorkByKeys) {
  Open();
  Put("N1");
  Put("N2");
  Choose(0, "cancelOrder");
  auto& shown = The("ordersShown");
  QTest::keyClick(&shown, Qt::Key_Down);
  EXPECT_EQ(Tree().model()->rowCount(), 1);
  QTest::keyClick(&shown, Qt::Key_Down);
  ASSERT_EQ(Tree().model()->rowCount(), 1);
  EXPECT_EQ(Tree().model()->index(0, 0).data().toString(), "N2");
  QTest::keyClick(&shown, Qt::Key_Home);
  EXPECT_EQ(Tree().model()->rowCount(), 2);
  QTest::keyClicks(&The("orderFilter"), "cancelled");
  EXPECT_EQ(Tree().model()->rowCount(), 1);
}

TEST(OrderCommands, AreOfferedWhereTheyMakeSense) {
  host::TCustomClientOrder order;
  EXPECT_TRUE(orders::TOrderBlotter::IsOffered(orders::TOrderCommand::Change, order));
  EXPECT_TRUE(orders::TOrderBlotter::IsOffered(orders::TOrderCommand::Cancel, order));
  EXPECT_TRUE(orders::TOrderBlotter::IsOffered(orders::TOrderCommand::Copy, order));
  EXPECT_FALSE(orders::TOrderBlotter::IsOffered(orders::TOrderCommand::Work, order));
  order.flags = 0x10000001;
  EXPECT_TRUE(orders::TOrderBlotter::IsOffered(orders::TOrderCommand::Work, order));
  order.status = 3;
  EXPECT_FALSE(orders::TOrderBlotter::IsOffered(orders::TOrderCommand::Change, order));
  EXPECT_FALSE(orders::TOrderBlotter::IsOffered(orders::TOrderCommand::Work, order));
  EXPECT_FALSE(orders::TOrderBlotter::IsOffered(orders::TOrderCommand::Cancel, order));
  EXPECT_TRUE(orders::TOrderBlotter::IsOffered(orders::TOrderCommand::Copy, order));
}

}  // namespace
}  // namespace algo::terminal::desk::tests
