// The host order type of an order that is shown: always on offer, so that no other type goes out in its
// place.

#include <algorithm>

#include "tests/views/order_dialogs.h"

namespace algo::tests {
namespace {

using host::TCustomClientOrder;
using TTexts = std::vector<std::string>;

class OwnType : public TOrderDialogTest {};

TEST_F(OwnType, StandsBehindTheOfferedOnesInTheChangeForm) {
  Data().lists["ALGO/OrderType/HK"] = {"MO", "StopLimit"};
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=TVOL,VolPct=20;");
  Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
    EXPECT_EQ(Combo(frame, "cmbMType").Items(),
              (TTexts{"Res_OrderType_Market", "Res_OrderType_StopLimit", "Res_OrderType_Limit"}));
    EXPECT_EQ(Combo(frame, "cmbMType").Text(), "Res_OrderType_Limit");
    Click(frame, "btnBuy");
  });
  const TCustomClientOrder taken = TakenOrder();
  EXPECT_EQ(taken.orderTypeFlags, 0U);
  EXPECT_EQ(taken.price, 60.5);
  EXPECT_EQ(taken.TextProperty(440), "TMLO:AlgoId=TVOL,VolPct=20;");
}

TEST_F(OwnType, StaysAMarketOrderWhereTheUserMayOnlySendLimits) {
  Data().rights = {"AlgoTabOrderEntry"};
  TCustomClientOrder order = OrderWith("TMMO:AlgoId=TVOL,VolPct=20;");
  order.orderTypeFlags = 1;
  order.price = 0;
  for (const bool confirming : {true, false}) {
    const auto say = [&](forms::TDialogForm&, TChangeFrame& frame) { Click(frame, "btnBuy"); };
    confirming ? Confirm(order, say) : Change(order, say);
    EXPECT_EQ(TakenOrder().orderTypeFlags, 1U);
    EXPECT_EQ(TakenOrder().price, 0);
    EXPECT_EQ(TakenOrder().TextProperty(440), "TMMO:AlgoId=TVOL,VolPct=20;");
    Forget();
  }
}

TEST_F(OwnType, GoesWithTheNextOrder) {
  Data().lists["ALGO/OrderType/HK"] = {"LO"};
  TCustomClientOrder market = OrderWith("TMMO:AlgoId=CLOSE;");
  market.orderTypeFlags = 1;
  market.price = 0;
  Change(market, [&](forms::TDialogForm&, TChangeFrame& frame) {
    EXPECT_EQ(Combo(frame, "cmbMType").Items(), (TTexts{"Res_OrderType_Limit", "Res_OrderType_Market"}));
  });
  TCustomClientOrder limit = OrderWith("TMLO:AlgoId=CLOSE;");
  Change(limit, [&](forms::TDialogForm&, TChangeFrame& frame) {
    EXPECT_EQ(Combo(frame, "cmbMType").Items(), TTexts{"Res_OrderType_Limit"});
  });
}

TEST_F(OwnType, IsKeptByAChangeOfLanguage) {
  Data().lists["ALGO/OrderType/HK"] = {"MO"};
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=VWAP,Style=5;");
  Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
    EXPECT_TRUE(frame.SetLanguage(1));
    EXPECT_EQ(Combo(frame, "cmbMType").Text(), "Res_OrderType_Limit");
    EXPECT_EQ(Combo(frame, "cmbStyle").Index(), 1) << "so is its style";
    Click(frame, "btnBuy");
  });
  EXPECT_EQ(TakenOrder().orderTypeFlags, 0U);
  EXPECT_EQ(TakenOrder().TextProperty(440), "TMLO:AlgoId=VWAP,Style=5;");
}

TEST_F(OwnType, StandsFirstInTheWorkFormSoThatClearGoesBackToIt) {
  TCustomClientOrder parent = ParentOrder(host::SideBuy, 0);
  parent.orderTypeFlags = 1;
  Work(parent, [&](forms::TDialogForm&, TChangeFrame& frame) {
    EXPECT_EQ(Combo(frame, "cmbMType").Items().front(), "Res_OrderType_Market");
    EXPECT_EQ(std::ranges::count(Combo(frame, "cmbMType").Items(), "Res_OrderType_Market"), 1);
    Click(frame, "btnClear");
    EXPECT_EQ(Combo(frame, "cmbMType").Text(), "Res_OrderType_Market");
    EXPECT_FALSE(Spin(frame, "edtPrice").Enabled());
    Type(frame, "edtQty", "400");
    Pick(frame, "cmbOrderType", "Res_Algo_OrderType_CLOSE");
    Click(frame, "btnSubmit");
  });
  EXPECT_EQ(TakenOrder().orderTypeFlags, 1U);
  EXPECT_EQ(TakenOrder().TextProperty(440), "TMMO:AlgoId=CLOSE;");
}

}  // namespace
}  // namespace algo::tests
