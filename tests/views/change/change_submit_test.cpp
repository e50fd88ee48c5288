// What a change form writes into its order when the trader presses the side button, and what it hands on.

#include <limits>

#include "tests/views/order_dialogs.h"

namespace algo::tests {
namespace {

using host::TCustomClientOrder;

class ChangeSubmit : public TOrderDialogTest {};

TEST_F(ChangeSubmit, SendsTheEditedOrder) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=TVOL,VolPct=20,Style=5;");
  Change(order, [&](forms::TDialogForm& form, TChangeFrame& frame) {
    Type(frame, "edtQty", "1,200");
    Type(frame, "edtPrice", "61.25");
    Type(frame, "edtVolPct", "30");
    Type(frame, "deSTime", "2024-01-15 09:30:00");
    Click(frame, "btnBuy");
    EXPECT_EQ(form.ModalResult(), 1);
  });
  const TCustomClientOrder taken = TakenOrder();
  EXPECT_EQ(Seen("take_action").front().number, 2);
  EXPECT_EQ(Seen("take_action").front().more, "1");
  EXPECT_EQ(taken.quantity, 1200);
  EXPECT_EQ(taken.price, 61.25);
  EXPECT_EQ(taken.TextProperty(440), "TMLO:AlgoId=TVOL,STime=20240115-09:30:00,VolPct=30,Style=5;");
  EXPECT_EQ(taken.account, "A1");
  EXPECT_EQ(taken.NamedText("Original"), "AlgoEntry");
  EXPECT_TRUE(Told().empty());
}

TEST_F(ChangeSubmit, SendsASellOrderFromTheSellButton) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=CLOSE;");
  order.side = host::SideSell;
  Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
    EXPECT_EQ(frame.InputClick(Named(frame, "btnBuy")), forms::TInputResult::Hidden);
    Click(frame, "btnSell");
  });
  EXPECT_EQ(TakenOrder().side, host::SideSell);
}

TEST_F(ChangeSubmit, LeavesThePriceOfAnUntouchedOrder) {
  struct TRow {
    std::int32_t state;
    const char* multiplier;
    double price;
    double shown;
  };
  for (const TRow& row : {TRow{1, "0.001", 10500, 10.5},
                          {1, "100", 0.605, 60.5},
                          {1, "", 60.5, 60.5},
                          {1, "many", 60.5, 60.5},
                          {2, "100", 60.5, 60.5},
                          {0, "100", 60.5, 60.5}}) {
    Host().SetMarket("0005", row.state, {{1504, row.multiplier}}, terminal::TMarketNotice::None);
    TCustomClientOrder order = OrderWith("TMLO:AlgoId=CLOSE;");
    order.price = row.price;
    Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
      EXPECT_DOUBLE_EQ(Spin(frame, "edtPrice").Value().value_or(-1), row.shown);
      Click(frame, "btnBuy");
    });
    EXPECT_DOUBLE_EQ(TakenOrder().price, row.price);
    Forget();
  }
}

TEST_F(ChangeSubmit, DividesThePriceByTheMultiplier) {
  struct TRow {
    std::int32_t state;
    const char* multiplier;
    const char* typed;
    double sent;
  };
  for (const TRow& row : {TRow{1, "0.001", "10.5", 10500},
                          {1, "100", "150", 1.5},
                          {1, "-2", "8", -4},
                          {1, "0", "10.5", 10.5},
                          {1, "0.0000001", "10.5", 10.5},
                          {1, "many", "10.5", 10.5},
                          {2, "100", "10.5", 10.5}}) {
    Host().SetMarket("0005", row.state, {{1504, row.multiplier}}, terminal::TMarketNotice::None);
    TCustomClientOrder order = OrderWith("TMLO:AlgoId=CLOSE;");
    Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
      Type(frame, "edtPrice", row.typed);
      Click(frame, "btnBuy");
    });
    EXPECT_DOUBLE_EQ(TakenOrder().price, row.sent) << row.multiplier;
    Forget();
  }
}

TEST_F(ChangeSubmit, SendsThePriceAsEnteredWithoutAMultiplier) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=CLOSE;");
  Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
    Type(frame, "edtPrice", "12.75");
    Click(frame, "btnBuy");
  });
  EXPECT_EQ(TakenOrder().price, 12.75);
}

TEST_F(ChangeSubmit, TakesEmptyAndBrokenFiguresAsWholeNumbers) {
  struct TRow {
    std::optional<double> quantity;
    double sent;
  };
  for (const TRow& row : {TRow{std::nullopt, 0}, {100.9, 100}, {-3.7, -3}, {0, 0}, {1e30, 0}}) {
    TCustomClientOrder order = OrderWith("TMLO:AlgoId=CLOSE;");
    Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
      Spin(frame, "edtQty").SetValue(row.quantity);
      Spin(frame, "edtPrice").SetValue(std::nullopt);
      Click(frame, "btnBuy");
    });
    EXPECT_EQ(TakenOrder().quantity, row.sent);
    EXPECT_EQ(TakenOrder().price, 0);
    Forget();
  }
}

TEST_F(ChangeSubmit, AddsTheBitsOfTheShownTypeAndThenSetsThePriceShown) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=TVOL,VolPct=20;");
  order.orderTypeFlags = 0x21;
  Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) { Click(frame, "btnBuy"); });
  const TCustomClientOrder taken = TakenOrder();
  EXPECT_EQ(taken.orderTypeFlags, 0x21U);
  EXPECT_EQ(taken.price, 60.5);
  EXPECT_EQ(taken.TextProperty(440), "TMMO:AlgoId=TVOL,VolPct=20;");
}

TEST_F(ChangeSubmit, AddsNoTriggerBits) {
  Host().SetMarket("0005", 1, {{3, "60"}, {17, "60"}}, terminal::TMarketNotice::None);
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=CLOSE;");
  order.orderTypeFlags = 0x800;
  order.stopPrice = 70;
  Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) { Click(frame, "btnBuy"); });
  EXPECT_EQ(TakenOrder().orderTypeFlags, 0x800U);
}

TEST_F(ChangeSubmit, ComposesNoTextForAWorkParentAndChecksNothing) {
  TCustomClientOrder parent = OrderWith("TMLO:AlgoId=VWAP,MaxVolPct=75;");
  parent.flags = 0x10000001;
  Change(parent, [&](forms::TDialogForm&, TChangeFrame& frame) {
    EXPECT_EQ(Spin(frame, "edtMaxVolPct").Value(), 75.0);
    frame.Date(views::entry::TField::deSTime).SetText("2024-01-16");
    frame.Date(views::entry::TField::deETime).SetText("2024-01-15");
    Type(frame, "edtQty", "2000");
    Click(frame, "btnBuy");
  });
  EXPECT_TRUE(Told().empty());
  EXPECT_EQ(TakenOrder().TextProperty(440), "");
  EXPECT_EQ(TakenOrder().quantity, 2000);
}

TEST_F(ChangeSubmit, SendsNoOtherAlgorithmInPlaceOfOneThatIsNotOffered) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=XYZ,VolPct=20;");
  const std::string before = Facts(order);
  Change(order, [&](forms::TDialogForm& form, TChangeFrame& frame) {
    Type(frame, "edtQty", "5");
    Click(frame, "btnBuy");
    EXPECT_EQ(form.ModalResult(), forms::ModalNone);
    EXPECT_EQ(Told(), std::vector<std::string>{"List index out of bounds (-1)"});
  });
  EXPECT_TRUE(Seen("take_action").empty());
  EXPECT_EQ(Facts(order), before);
}

TEST_F(ChangeSubmit, StopsAtAPriceThatIsNotFinite) {
  Host().SetMarket("0005", 1, {{1504, "0.000001"}}, terminal::TMarketNotice::None);
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=TVOL,VolPct=20;");
  const std::string before = Facts(order);
  Change(order, [&](forms::TDialogForm& form, TChangeFrame& frame) {
    Spin(frame, "edtPrice").SetValue(std::numeric_limits<double>::max());
    Type(frame, "edtVolPct", "30");
    Click(frame, "btnBuy");
    EXPECT_EQ(form.ModalResult(), forms::ModalNone);
    EXPECT_EQ(Told().size(), 1U);
    Type(frame, "edtPrice", "0.00006");
    Click(frame, "btnBuy");
    EXPECT_EQ(form.ModalResult(), 1);
    EXPECT_EQ(Told().size(), 1U);
  });
  EXPECT_NE(Facts(order), before);
  EXPECT_DOUBLE_EQ(TakenOrder().price, 60);
}

TEST_F(ChangeSubmit, StoresTheConfirmationSettingForANewOrderAlone) {
  struct TRow {
    bool checked;
    const char* stored;
  };
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=CLOSE;");
  for (const TRow& row : {TRow{false, "Y"}, {true, "N"}}) {
    Forget();
    Confirm(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
      frame.Check(views::entry::TField::cbPopup).SetChecked(!row.checked);
      Click(frame, "cbPopup");
    });
    ASSERT_EQ(Seen("store").size(), 1U);
    EXPECT_EQ(Seen("store").front().text, "USER/ConfirmationPlaceOrd");
    EXPECT_EQ(Seen("store").front().more, row.stored);
    EXPECT_TRUE(Seen("store").front().answer);
  }
  Forget();
  Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
    EXPECT_EQ(frame.InputClick(Named(frame, "cbPopup")), forms::TInputResult::Hidden);
    Element(frame, "liPopup").SetVisible(true);
    Click(frame, "cbPopup");
  });
  EXPECT_TRUE(Seen("store").empty());
}

}  // namespace
}  // namespace algo::tests
