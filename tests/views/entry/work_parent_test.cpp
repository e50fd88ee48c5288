// The Work button of the entry form: a parent is checked, marked and handed on without any algo parameters.

#include "tests/views/order_dialogs.h"

namespace algo::tests {
namespace {

using host::TCustomClientOrder;
using TMessageSource = std::vector<std::string>;

class WorkParent : public TOrderDialogTest {
 protected:
  TMessageSource ToldByWork(views::entry::TAlgoOrderEntryFrame& frame) {
    Forget();
    Click(frame, "btnWork");
    EXPECT_EQ(LeftBehind().orders, 0U);
    return Told();
  }
};

TEST_F(WorkParent, TellsOneFailureAfterTheOtherInTheirOrder) {
  auto& frame = Open();
  Combo(frame, "cmbOrderType").SetIndex(-1);
  EXPECT_EQ(ToldByWork(frame), TMessageSource{"Res_BuySellMiss"});
  Click(frame, "btnSell");
  EXPECT_EQ(ToldByWork(frame), TMessageSource{"DC10013001"});
  Type(frame, "edtAccount", "nobody's");
  EXPECT_EQ(ToldByWork(frame), TMessageSource{"DC10013002"});
  Type(frame, "edtAccount", "A2");
  EXPECT_EQ(ToldByWork(frame), TMessageSource{"DC1000001"});
  Type(frame, "edtSymbol", "unknown");
  EXPECT_EQ(ToldByWork(frame), TMessageSource{"DC1000001"});
  Type(frame, "edtSymbol", "0005");
  Leave(frame);
  for (const char* none : {"", "0", "0.9", "-5"}) {
    Type(frame, "edtQty", none);
    EXPECT_EQ(ToldByWork(frame), TMessageSource{"DC1004001"}) << none;
  }
  Type(frame, "edtQty", "800");
  EXPECT_EQ(ToldByWork(frame), TMessageSource{"Res_MarketMiss"});
  EXPECT_TRUE(Seen("take_action").empty());
  ChooseAlgo(frame, "VWAP");
  EXPECT_EQ(ToldByWork(frame), TMessageSource{});
  EXPECT_EQ(TakenOrder().quantity, 800);
}

TEST_F(WorkParent, GoesOutMarkedAndStampedWithoutAlgoParameters) {
  auto& frame = OpenFilled();
  ChooseAlgo(frame, "TVOL");
  Type(frame, "edtVolPct", "20");
  Type(frame, "edtPrice", "61.5");
  EXPECT_EQ(ToldByWork(frame), TMessageSource{});
  const TCustomClientOrder taken = TakenOrder();
  EXPECT_EQ(Seen("take_action").front().number, 1);
  EXPECT_EQ(Seen("take_action").front().more, "1");
  EXPECT_EQ(taken.account, "A1");
  EXPECT_EQ(taken.symbol, "0005");
  EXPECT_EQ(taken.exchange, "HK");
  EXPECT_EQ(taken.side, 0);
  EXPECT_EQ(taken.quantity, 800);
  EXPECT_EQ(taken.price, 61.5);
  EXPECT_EQ(taken.flags, 0x10000001U);
  EXPECT_EQ(taken.algoFlags, 0U);
  EXPECT_EQ(taken.TextProperty(440), "");
  EXPECT_EQ(taken.NamedText("Original"), "AlgoEntry");
}

TEST_F(WorkParent, IsNotHeldUpByTheRulesOfItsAlgorithm) {
  auto& frame = OpenFilled();
  ChooseAlgo(frame, "TVOL");
  Spin(frame, "edtVolPct").SetValue(80);
  Type(frame, "deSTime", "2024-01-16");
  Type(frame, "deETime", "2024-01-15");
  EXPECT_EQ(ToldByWork(frame), TMessageSource{});
  EXPECT_EQ(TakenOrder().flags, 0x10000001U);
}

TEST_F(WorkParent, CarriesTheFlagsOfItsHostOrderType) {
  struct TRow {
    const char* type;
    std::uint32_t typeFlags;
    std::uint32_t auctionFlags;
    bool priced;
  };
  for (const TRow& row : {TRow{"Res_OrderType_Limit", 0, 0, true},
                          {"Res_OrderType_Market", 1, 0, false},
                          {"Res_OrderType_AO", 0x200, 0, false},
                          {"Res_OrderType_ELO", 0x400, 0, true},
                          {"Res_OrderType_MOC", 0, 0x8000, false}}) {
    auto& frame = OpenFilled();
    Pick(frame, "cmbMType", row.type);
    Spin(frame, "edtPrice").SetValue(60.5);
    EXPECT_EQ(ToldByWork(frame), TMessageSource{});
    EXPECT_EQ(TakenOrder().orderTypeFlags, row.typeFlags) << row.type;
    EXPECT_EQ(TakenOrder().auctionFlags, row.auctionFlags) << row.type;
    EXPECT_EQ(TakenOrder().price, row.priced ? 60.5 : 0) << row.type;
  }
}

TEST_F(WorkParent, CarriesTheUnmultipliedPrice) {
  struct TRow {
    std::int32_t state;
    const char* multiplier;
    std::optional<double> shown;
    double sent;
  };
  for (const TRow& row : {TRow{1, "100", 1.5, 0.015},
                          {1, "0", 1.5, 1.5},
                          {1, "0.0000001", 1.5, 1.5},
                          {1, "many", 1.5, 1.5},
                          {2, "100", 1.5, 1.5},
                          {1, "100", std::nullopt, 0}}) {
    Host().SetMarket("0005", row.state, {{1504, row.multiplier}}, terminal::TMarketNotice::None);
    auto& frame = OpenFilled();
    Spin(frame, "edtPrice").SetValue(row.shown);
    EXPECT_EQ(ToldByWork(frame), TMessageSource{});
    EXPECT_DOUBLE_EQ(TakenOrder().price, row.sent) << row.multiplier;
  }
}

TEST_F(WorkParent, HasNoExchangeWhereNoneIsSelected) {
  auto& frame = OpenFilled();
  Combo(frame, "cmbExch").SetIndex(-1);
  EXPECT_EQ(ToldByWork(frame), TMessageSource{});
  EXPECT_EQ(TakenOrder().exchange, "");
  Pick(frame, "cmbExch", "US");
  EXPECT_EQ(ToldByWork(frame), TMessageSource{});
  EXPECT_EQ(TakenOrder().exchange, "US");
}

TEST_F(WorkParent, IsConfirmedWithoutAlgorithm) {
  Data().config["USER"]["ConfirmationPlaceOrd"] = "Y";
  Data().config["USER"]["ClearOrd"] = "Y";
  auto& frame = OpenFilled();
  InDialogs({[&](forms::TDialogForm& form) {
    EXPECT_EQ(form.Caption(), "Res_Conf_Caption");
    EXPECT_FALSE(Element(FrameIn(form), "lgAlgo").Visible());
    EXPECT_EQ(Spin(FrameIn(form), "edtPrice").Value(), 60.5);
    Click(FrameIn(form), "btnBuy");
  }});
  EXPECT_EQ(ToldByWork(frame), TMessageSource{});
  EXPECT_EQ(TakenOrder().flags, 0x10000001U);
  EXPECT_EQ(TakenOrder().TextProperty(440), "");
  EXPECT_EQ(Named(frame, "edtQty").Text(), "");
}

TEST_F(WorkParent, ClearsNothingWhenItIsRefusedOrNotConfirmed) {
  Data().config["USER"]["ClearOrd"] = "Y";
  Data().accept = false;
  auto& direct = OpenFilled();
  EXPECT_EQ(ToldByWork(direct), TMessageSource{});
  EXPECT_EQ(Named(direct, "edtQty").Text(), "800");
  Data().config["USER"]["ConfirmationPlaceOrd"] = "Y";
  Data().accept = true;
  auto& confirmed = OpenFilled();
  EXPECT_EQ(ToldByWork(confirmed), TMessageSource{});
  EXPECT_TRUE(Seen("take_action").empty());
  EXPECT_EQ(Named(confirmed, "edtQty").Text(), "800");
}

TEST_F(WorkParent, IsGivenBackWhenTheHostFails) {
  for (const char* fault : {"orders.new", "account.known", "action.take"}) {
    auto& frame = OpenFilled();
    Data().faults.Set({fault});
    EXPECT_EQ(ToldByWork(frame), TMessageSource{"The host fails at " + std::string(fault)});
    Data().faults.Set({});
    EXPECT_EQ(Named(frame, "edtQty").Text(), "800");
  }
}

TEST_F(WorkParent, IsAParentFromWhichAChildIsCut) {
  auto& frame = OpenFilled();
  ToldByWork(frame);
  TCustomClientOrder* parent = Host().Orders().Find("N1");
  ASSERT_NE(parent, nullptr);
  Work(*parent, [&](forms::TDialogForm&, TChangeFrame& dialog) {
    EXPECT_EQ(Named(dialog, "tedtOrderNum").Text(), "N1");
    EXPECT_EQ(Spin(dialog, "sedtAvaliQty").Value(), 800.0);
  });
}

}  // namespace
}  // namespace algo::tests
