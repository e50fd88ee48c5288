// The desktop on a disk that becomes full: from some moment on files may not grow.

#include <QMessageBox>
#include <QTableView>

#include "plugin/host_contract/order_action_manager.h"
#include "tests/terminal/desk/desk_fixture.h"
#include "tests/terminal/file_size_limit.h"

namespace algo::terminal::desk::tests {
namespace {

struct TFullDiskTest : TDeskTest {
  int Messages() { return The<QTableView>("messageTable").model()->rowCount(); }
};

TEST_F(TFullDiskTest, AnOrderThatCannotBeStoredIsNotSentAndTheTraderIsTold) {
  Open();
  FillEntry(Entry().View());
  WhenModal([this](QWidget& dialog) { Click(Input(FrameIn(dialog), "btnBuy")); });
  {
    const terminal::tests::TFileSizeLimit full(0);
    Click(Input(Entry().View(), "btnSubmit"));
  }
  EXPECT_TRUE(Orders().empty());
  EXPECT_EQ(Messages(), 1);
  EXPECT_TRUE(desk->Storage().AllEvents().empty());
}

TEST_F(TFullDiskTest, TheMarketStopsOnceAndSaysWhy) {
  Open();
  host::TCustomClientOrder order;
  order.symbol = "0005";
  order.exchange = "HKG";
  order.quantity = 400;
  order.price = 70;
  order.SetTextProperty(440, "TMLO:AlgoId=SNIPER;");
  ASSERT_TRUE(
      host::TCustomOrderActionManager::GetInstance().TakeAction(nullptr, &order, host::TOrderAction::New, 1));
  const terminal::tests::TFileSizeLimit full(0);
  desk->Start();
  for (int i = 0; i < 100 && Messages() == 0; ++i) QTest::qWait(50);
  QTest::qWait(500);
  ASSERT_EQ(Messages(), 1);
  EXPECT_TRUE(The<QTableView>("messageTable")
                  .model()
                  ->index(0, 1)
                  .data()
                  .toString()
                  .endsWith("The paper market stands still until the program is started again."));
  EXPECT_EQ(desk->Host().Orders().Find("N1")->filled, 0);
}

TEST_F(TFullDiskTest, TheWindowClosesAtTheSecondRequestWithoutAWorkspace) {
  Open();
  const terminal::tests::TFileSizeLimit full(0);
  window->close();
  EXPECT_TRUE(window->isVisible());
  EXPECT_EQ(Messages(), 1);
  window->close();
  EXPECT_FALSE(window->isVisible());
}

}  // namespace
}  // namespace algo::terminal::desk::tests
