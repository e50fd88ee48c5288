// The order blotter's model and filters, on a host without a module.

#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QSortFilterProxyModel>

#include "terminal/desk/order_blotter.h"
#include "terminal/desk/order_filter.h"
#include "terminal/desk/order_model.h"
#include "terminal/desk/order_text.h"
#include "tests/terminal/host/event_notes.h"

namespace algo::terminal::tests {
namespace {

host::TCustomClientOrder Order(const std::string& key, const std::string& parent = {}) {
  host::TCustomClientOrder order;
  order.key = key;
  order.orderNo = key;
  order.parentNo = parent;
  order.account = "A1";
  order.symbol = "0005";
  order.quantity = 12000;
  order.price = 60.5;
  return order;
}

struct TOrdersTest : testing::Test {
  void Record(const host::TCustomClientOrder& order) {
    host.Journal().Record({"test", "test", "test"}, order);
  }
  QString Cell(const QModelIndex& row, int column) { return row.siblingAtColumn(column).data().toString(); }

  TEventNotes events;
  TMemoryHost host{events};
  TTexts texts{TLanguage::English};
};

TEST_F(TOrdersTest, AChildStandsBelowItsParent) {
  Record(Order("N1"));
  TOrderModel model(host, texts);
  Record(Order("N2"));
  Record(Order("N3", "N1"));
  ASSERT_EQ(model.rowCount({}), 2);
  const QModelIndex parent = model.index(0, 0, {});
  ASSERT_EQ(model.rowCount(parent), 1);
  const QModelIndex child = model.index(0, 0, parent);
  EXPECT_EQ(child.data().toString(), "N3");
  EXPECT_EQ(child.parent(), parent);
  EXPECT_EQ(model.rowCount(model.index(1, 0, {})), 0);
}

TEST_F(TOrdersTest, AChildWhoseParentIsNotKnownStandsByItself) {
  TOrderModel model(host, texts);
  Record(Order("N3", "N1"));
  ASSERT_EQ(model.rowCount({}), 1);
  EXPECT_EQ(model.index(0, 0, {}).data().toString(), "N3");
}

TEST_F(TOrdersTest, CellsShowWhatTheOrderHolds) {
  auto order = Order("N1");
  order.side = host::SideSell;
  order.exchange = "HKG";
  order.user = "trader1";
  order.filled = 3000;
  order.status = 2;
  order.orderTypeFlags = 0x400;
  order.SetTextProperty(440, "TMLO:AlgoId=TWAP,Waves=5;");
  order.SetNamedText("AveragePrice", "60.4875");
  Record(order);
  TOrderModel model(host, texts);
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
  auto order = Order("N1");
  order.price = 0;
  Record(order);
  TOrderModel model(host, texts);
  EXPECT_EQ(Cell(model.index(0, 0, {}), 8), "");
  EXPECT_EQ(Cell(model.index(0, 0, {}), 9), "");
}

TEST_F(TOrdersTest, AChangeIsToldForItsRowAlone) {
  Record(Order("N1"));
  Record(Order("N2"));
  TOrderModel model(host, texts);
  QSignalSpy changed(&model, &QAbstractItemModel::dataChanged);
  QSignalSpy inserted(&model, &QAbstractItemModel::rowsInserted);
  auto filled = Order("N2");
  filled.filled = 6000;
  Record(filled);
  EXPECT_EQ(inserted.count(), 0);
  ASSERT_EQ(changed.count(), 1);
  EXPECT_EQ(changed[0][0].toModelIndex().row(), 1);
  EXPECT_EQ(Cell(model.index(1, 0, {}), 7), "50%");
}

TEST_F(TOrdersTest, AModelThatIsGoneHearsNothing) {
  { const TOrderModel model(host, texts); }
  Record(Order("N1"));
  EXPECT_EQ(host.Orders().All().size(), 1U);
}

struct TFilterTest : TOrdersTest {
  TFilterTest() {
    Record(Order("N1"));
    auto done = Order("N2");
    done.status = 3;
    done.symbol = "600519";
    Record(done);
    Record(Order("N3", "N2"));
    auto cancelled = Order("N10");
    cancelled.status = 4;
    Record(cancelled);
  }

  QStringList Shown(const QModelIndex& parent = {}) {
    QStringList shown;
    for (int row = 0; row < filter.rowCount(parent); ++row) {
      const QModelIndex index = filter.index(row, 0, parent);
      shown.append(index.data().toString());
      shown.append(Shown(index));
    }
    return shown;
  }

  TOrderModel model{host, texts};
  TOrderFilter filter{model};
};

TEST_F(TFilterTest, AllShowsEveryOrder) { EXPECT_EQ(Shown(), (QStringList{"N1", "N2", "N3", "N10"})); }

TEST_F(TFilterTest, OpenShowsWhatStillTradesAndTheParentsOfIt) {
  filter.Show(TOrdersShown::Open);
  EXPECT_EQ(Shown(), (QStringList{"N1", "N2", "N3"}));
}

TEST_F(TFilterTest, DoneShowsTheRest) {
  filter.Show(TOrdersShown::Done);
  EXPECT_EQ(Shown(), (QStringList{"N2", "N10"}));
}

TEST_F(TFilterTest, AnOrderThatIsDoneLeavesTheOpenOnes) {
  filter.Show(TOrdersShown::Open);
  auto order = Order("N1");
  order.status = 7;
  Record(order);
  EXPECT_EQ(Shown(), (QStringList{"N2", "N3"}));
}

TEST_F(TFilterTest, ATextIsSearchedInEveryColumnInWhateverCase) {
  filter.ShowText(" 6005 ");
  EXPECT_EQ(Shown(), QStringList{"N2"});
  filter.ShowText("CANCEL");
  EXPECT_EQ(Shown(), QStringList{"N10"});
  filter.ShowText("");
  EXPECT_EQ(Shown().size(), 4);
}

TEST_F(TFilterTest, OrdersSortByTheirArrivalAndNotByTheirNumbersAsTexts) {
  filter.sort(0, Qt::DescendingOrder);
  EXPECT_EQ(Shown(), (QStringList{"N10", "N2", "N3", "N1"}));
}

TEST_F(TFilterTest, NumbersSortByValue) {
  auto large = Order("N11");
  large.quantity = 9000;
  Record(large);
  filter.sort(5, Qt::AscendingOrder);
  EXPECT_EQ(Shown().front(), "N11");
}

TEST(OrderText, TheAlgorithmIsReadFromTheParameterText) {
  host::TCustomClientOrder order;
  EXPECT_EQ(AlgorithmOf(order), "");
  order.SetTextProperty(440, "TMLO:AlgoId=TVOL Threshold,VolPct=20;");
  EXPECT_EQ(AlgorithmOf(order), "TVOL Threshold");
  order.SetTextProperty(440, "TMLO:AlgoId=TVOL;");
  EXPECT_EQ(AlgorithmOf(order), "TVOL");
  order.SetTextProperty(440, "TMLO:AlgoId=MOC");
  EXPECT_EQ(AlgorithmOf(order), "MOC");
  order.SetTextProperty(440, "no such thing");
  EXPECT_EQ(AlgorithmOf(order), "");
}

TEST(OrderText, TheOrderTypeIsReadFromTheFlags) {
  const struct {
    std::uint32_t type, auction;
    double price;
    const char* id;
  } Rows[] = {{0, 0, 1, "Res_OrderType_Limit"},
              {1, 0, 0, "Res_OrderType_Market"},
              {4, 0, 0, "Res_OrderType_StopMarket"},
              {0x800, 0, 1, "Res_OrderType_StopLimit"},
              {0x800800, 0, 1, "Res_OrderType_StopLimit"},
              {0x200, 0, 0, "Res_OrderType_AO"},
              {0x200, 0, 1, "Res_OrderType_ALO"},
              {0x400, 0, 1, "Res_OrderType_ELO"},
              {0, 0x4000, 0, "Res_OrderType_MOO"},
              {0, 0x8000, 0, "Res_OrderType_MOC"},
              {0, 0x1000, 1, "Res_OrderType_LOC"}};
  for (const auto& row : Rows) {
    host::TCustomClientOrder order;
    order.orderTypeFlags = row.type;
    order.auctionFlags = row.auction;
    order.price = row.price;
    EXPECT_EQ(OrderTypeId(order), row.id);
  }
}

TEST(OrderText, AStatusOfNobodyIsUnknown) {
  EXPECT_EQ(StatusKey(0), "Accepted");
  EXPECT_EQ(StatusKey(1), "Working");
  EXPECT_EQ(StatusKey(2), "Partly filled");
  EXPECT_EQ(StatusKey(3), "Filled");
  EXPECT_EQ(StatusKey(4), "Cancelled");
  EXPECT_EQ(StatusKey(7), "Expired");
  EXPECT_EQ(StatusKey(-1), "Rejected");
  EXPECT_EQ(StatusKey(99), "Unknown");
}

TEST(OrderText, TheFilledPartStaysBetweenNothingAndAll) {
  host::TCustomClientOrder order;
  EXPECT_EQ(FilledPart(order), 0);
  order.quantity = 400;
  order.filled = 100;
  EXPECT_EQ(FilledPart(order), 0.25);
  order.filled = 500;
  EXPECT_EQ(FilledPart(order), 1);
}

TEST(OrderCommands, AreOfferedWhereTheyMakeSense) {
  host::TCustomClientOrder order;
  EXPECT_TRUE(TOrderBlotter::IsOffered(TOrderCommand::Change, order));
  EXPECT_TRUE(TOrderBlotter::IsOffered(TOrderCommand::Cancel, order));
  EXPECT_TRUE(TOrderBlotter::IsOffered(TOrderCommand::Copy, order));
  EXPECT_FALSE(TOrderBlotter::IsOffered(TOrderCommand::Work, order));
  order.flags = 0x10000001;
  EXPECT_TRUE(TOrderBlotter::IsOffered(TOrderCommand::Work, order));
  order.status = 3;
  EXPECT_FALSE(TOrderBlotter::IsOffered(TOrderCommand::Change, order));
  EXPECT_FALSE(TOrderBlotter::IsOffered(TOrderCommand::Work, order));
  EXPECT_FALSE(TOrderBlotter::IsOffered(TOrderCommand::Cancel, order));
  EXPECT_TRUE(TOrderBlotter::IsOffered(TOrderCommand::Copy, order));
}

}  // namespace
}  // namespace algo::terminal::tests
