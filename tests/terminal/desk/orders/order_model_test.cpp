// The order blotter's model, on a host without a module.

#include "terminal/desk/orders/order_model.h"

#include <QSignalSpy>

#include "tests/terminal/desk/orders/orders_fixture.h"

namespace algo::terminal::desk::tests {
namespace {

TEST_F(TOrdersTest, AChildStandsBelowItsParent) {
  Record(SampleOrder("N1"));
  orders::TOrderModel model(host, texts);
  Record(SampleOrder("N2"));
  Record(SampleOrder("N3", "N1"));
  ASSERT_EQ(model.rowCount({}), 2);
  const QModelIndex parent = model.index(0, 0, {});
  ASSERT_EQ(model.rowCount(parent), 1);
  const QModelIndex child = model.index(0, 0, parent);
  EXPECT_EQ(child.data().toString(), "N3");
  EXPECT_EQ(child.parent(), parent);
  EXPECT_EQ(model.rowCount(model.index(1, 0, {})), 0);
}

TEST_F(TOrdersTest, AChildWhoseParentIsNotKnownStandsByItself) {
  orders::TOrderModel model(host, texts);
  Record(SampleOrder("N3", "N1"));
  ASSERT_EQ(model.rowCount({}), 1);
  EXPECT_EQ(model.index(0, 0, {}).data().toString(), "N3");
}

TEST_F(TOrdersTest, CellsShowWhatTheOrderHolds) {
  auto order = SampleOrder("N1");
  order.side = host::SideSell;
  order.exchange = "HKG";
  order.user = "trader1";
  order.filled = 3000;
  order.status = 2;
  order.orderTypeFlags = 0x400;
  order.SetTextProperty(440, "TMLO:AlgoId=TWAP,Waves=5;");
  order.SetNamedText("AveragePrice", "60.4875");
  Record(order);
  orders::TOrderModel model(host, texts);
  const QModelIndex row = model.index(0, 0, {});
  const QStringList expected{"N1",
                             "A1",
                             "0005",
                             "HKG",
                             "Sell",
                             "12,000",
                             "3,000",
                             "25%",
                             "60.5",
                             "60.4875",
                             "TWAP",
                             "Enhanced limit",
                             "Partly filled",
                             "trader1",
                             "TMLO:AlgoId=TWAP,Waves=5;"};
  QStringList shown;
  for (int column = 0; column < model.columnCount({}); ++column) shown.append(Cell(row, column));
  EXPECT_EQ(shown, expected) << shown.join(" | ").toStdString();
}

TEST_F(TOrdersTest, AnOrderWithoutPricesShowsNone) {
  auto order = SampleOrder("N1");
  order.price = 0;
  Record(order);
  orders::TOrderModel model(host, texts);
  EXPECT_EQ(Cell(model.index(0, 0, {}), 8), "");
  EXPECT_EQ(Cell(model.index(0, 0, {}), 9), "");
}

TEST_F(TOrdersTest, AChangeIsToldForItsRowAlone) {
  Record(SampleOrder("N1"));
  Record(SampleOrder("N2"));
  orders::TOrderModel model(host, texts);
  QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
  QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
  auto filled = SampleOrder("N2");
  filled.filled = 6000;
  Record(filled);
  EXPECT_EQ(inserted.count(), 0);
  ASSERT_EQ(changed.count(), 1);
  EXPECT_EQ(changed[0][0].toModelIndex().row(), 1);
  EXPECT_EQ(Cell(model.index(1, 0, {}), 7), "50%");
}

TEST_F(TOrdersTest, AModelThatIsGoneHearsNothing) {
  { const orders::TOrderModel model(host, texts); }
  Record(SampleOrder("N1"));
  EXPECT_EQ(host.Orders().All().size(), 1U);
}

}  // namespace
}  // namespace algo::terminal::desk::tests
