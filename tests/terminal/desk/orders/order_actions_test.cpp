// What a trader does to orders in the blotter.

#include "tests/terminal/desk/orders/blotter_fixture.h"

namespace algo::terminal::desk::tests {
namespace {

TEST_F(TBlotterTest, AnOrderIsChangedInADialog) {
  Open();
  Put("N1");
  QString caption;
  WhenModal([&](QWidget& dialog) {
    caption = dialog.windowTitle();
    Type(FrameIn(dialog), "edtQty", "2000");
    Click(Input(FrameIn(dialog), "btnBuy"));
  });
  EXPECT_TRUE(Choose(0, "changeOrder"));
  EXPECT_EQ(caption, "Change order");
  EXPECT_EQ(Order("N1").quantity, 2000);
  EXPECT_EQ(desk->Storage().EventsOf("N1").back().event.what, "change");
}

TEST_F(TBlotterTest, WhatIsFilledWhileADialogShowsIsNotLost) {
  Open();
  Put("N1");
  WhenModal([&](QWidget& dialog) {
    auto filled = Order("N1");
    filled.filled = 800;
    filled.status = 2;
    desk->Host().Journal().Record({"test", "fill", "800"}, filled);
    Type(FrameIn(dialog), "edtQty", "2000");
    Click(Input(FrameIn(dialog), "btnBuy"));
  });
  EXPECT_TRUE(Choose(0, "changeOrder"));
  EXPECT_EQ(Order("N1").quantity, 2000);
  EXPECT_EQ(Order("N1").filled, 800);
  EXPECT_EQ(Order("N1").status, 2);
}

TEST_F(TBlotterTest, AChangeThatIsGivenUpLeavesTheOrder) {
  Open();
  Put("N1");
  WhenModal([&](QWidget& dialog) {
    Type(FrameIn(dialog), "edtQty", "2000");
    QTest::keyClick(&dialog, Qt::Key_Escape);
  });
  EXPECT_TRUE(Choose(0, "changeOrder"));
  EXPECT_EQ(Order("N1").quantity, 4000);
}

TEST_F(TBlotterTest, AChildIsCutFromAWorkParentAndStandsBelowIt) {
  Open();
  Put("N1", 0x10000001);
  WhenModal([&](QWidget& dialog) {
    Type(FrameIn(dialog), "edtQty", "800");
    Click(Input(FrameIn(dialog), "btnSubmit"));
  });
  EXPECT_TRUE(Choose(0, "workOrder"));
  ASSERT_EQ(Orders().size(), 2U);
  const auto& child = *Orders()[1];
  EXPECT_EQ(child.parentNo, "N1");
  EXPECT_EQ(child.quantity, 800);
  EXPECT_EQ(child.user, "trader1");
  const QModelIndex parent = Tree().model()->index(0, 0);
  EXPECT_EQ(Tree().model()->rowCount(parent), 1);
  EXPECT_TRUE(Tree().isExpanded(parent));
}

TEST_F(TBlotterTest, CancelTakesAnOrderOutOfTheMarket) {
  Open();
  Put("N1");
  EXPECT_TRUE(Choose(0, "cancelOrder"));
  EXPECT_EQ(Order("N1").status, 4);
  const auto last = desk->Storage().EventsOf("N1").back().event;
  EXPECT_EQ(last.who, "trader1");
  EXPECT_EQ(last.what, "cancel");
  EXPECT_FALSE(Choose(0, "cancelOrder"));
  EXPECT_FALSE(Choose(0, "changeOrder"));
}

TEST_F(TBlotterTest, AnOrderIsCopiedIntoAnEntryView) {
  Open();
  Put("N1");
  EXPECT_TRUE(Choose(0, "copyOrder"));
  EXPECT_EQ(Text(Entry().View(), "edtSymbol"), "0005");
  EXPECT_EQ(Text(Entry().View(), "edtQty"), "4,000");
  EXPECT_EQ(Text(Entry().View(), "edtVolPct"), "20");
}

TEST_F(TBlotterTest, TheMarketFillsAnOrderStepByStep) {
  Open();
  Put("N1");
  for (int i = 0; i < 3000 && Order("N1").filled == 0; ++i) desk->Step(1);
  EXPECT_GT(Order("N1").filled, 0);
  EXPECT_NE(Tree().model()->index(0, 7).data().toString(), "0%");
}

TEST_F(TBlotterTest, OrdersAreThereAgainAfterARestart) {
  Open();
  Put("N1");
  Put("N2");
  Close();
  Open();
  EXPECT_EQ(Tree().model()->rowCount(), 2);
  EXPECT_EQ(Order("N2").quantity, 4000);
}

}  // namespace
}  // namespace algo::terminal::desk::tests
