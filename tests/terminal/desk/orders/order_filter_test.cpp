// Which orders the blotter shows, and in which order.

#include "terminal/desk/orders/order_filter.h"

#include "terminal/desk/orders/order_model.h"
#include "tests/terminal/desk/orders/orders_fixture.h"

namespace algo::terminal::desk::tests {
namespace {

struct TFilterTest : TOrdersTest {
  TFilterTest() {
    Record(SampleOrder("N1"));
    auto done = SampleOrder("N2");
    done.status = 3;
    done.symbol = "600519";
    Record(done);
    Record(SampleOrder("N3", "N2"));
    auto cancelled = SampleOrder("N10");
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

  orders::TOrderModel model{host, texts};
  orders::TOrderFilter filter{model};
};

TEST_F(TFilterTest, AllShowsEveryOrder) { EXPECT_EQ(Shown(), (QStringList{"N1", "N2", "N3", "N10"})); }

TEST_F(TFilterTest, OpenShowsWhatStillTradesAndTheParentsOfIt) {
  filter.Show(orders::TOrdersShown::Open);
  EXPECT_EQ(Shown(), (QStringList{"N1", "N2", "N3"}));
}

TEST_F(TFilterTest, DoneShowsTheRest) {
  filter.Show(orders::TOrdersShown::Done);
  EXPECT_EQ(Shown(), (QStringList{"N2", "N10"}));
}

TEST_F(TFilterTest, AnOrderThatIsDoneLeavesTheOpenOnes) {
  filter.Show(orders::TOrdersShown::Open);
  auto order = SampleOrder("N1");
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
  auto large = SampleOrder("N11");
  large.quantity = 9000;
  Record(large);
  filter.sort(5, Qt::AscendingOrder);
  EXPECT_EQ(Shown().front(), "N11");
}

}  // namespace
}  // namespace algo::terminal::desk::tests
