// What is checked before a child is cut, in which order, and what is written into the order then.

#include "tests/views/order_dialogs.h"

namespace algo::tests {
namespace {

using host::TCustomClientOrder;
using TMessageSource = std::vector<std::string>;

class WorkRules : public TOrderDialogTest {
 protected:
  WorkRules() {
    Host().SetMarket("0005", 1, {{24, "100"}}, terminal::TMarketNotice::None);
    Data().profile.user = "trader 7";
    // Children that the host refuses take nothing of the parent.
    Data().accept = false;
  }

  void CheckPrices(bool check) { Data().config["USER"]["ConfirmationWorkOrdPri"] = check ? "Y" : "N"; }

  /// Cuts a child with that algorithm after `prepare` and returns what the trader was told. The order has
  /// gone out exactly when nothing was told.
  TMessageSource ToldOnSubmit(TCustomClientOrder& parent, const std::function<void(TChangeFrame&)>& prepare) {
    const std::string before = Facts(parent);
    Forget();
    Work(parent, [&](forms::TDialogForm& form, TChangeFrame& frame) {
      Pick(frame, "cmbOrderType", "Res_Algo_OrderType_TVOL");
      Type(frame, "edtQty", "400");
      Leave(frame);
      prepare(frame);
      Click(frame, "btnSubmit");
      EXPECT_EQ(form.ModalResult(), Told().empty() ? forms::ModalOk : forms::ModalNone);
      EXPECT_EQ(frame.Focused(), &Named(frame, "btnSubmit"));
    });
    EXPECT_EQ(Seen("take_action").size(), Told().empty() ? 1U : 0U);
    if (!Told().empty()) {
      EXPECT_EQ(Facts(parent), before);
    }
    return Told();
  }
};

TEST_F(WorkRules, TellOneFailureAfterTheOtherInTheirOrder) {
  CheckPrices(true);
  Data().texts["Res"] = {{"Res_QuantityInvalid", "Too much"}};
  TCustomClientOrder parent = ParentOrder();
  Work(parent, [&](forms::TDialogForm& form, TChangeFrame& frame) {
    const auto toldNow = [&] {
      Forget();
      Click(frame, "btnSubmit");
      EXPECT_EQ(form.ModalResult(), forms::ModalNone);
      return Told();
    };
    // Everything is wrong at first; each step mends what was told.
    Pick(frame, "cmbOrderType", "Res_Algo_OrderType_TVOL");
    Spin(frame, "edtVolPct").SetValue(80);
    frame.Edit(views::entry::TField::edtAccount).SetText("");
    frame.Edit(views::entry::TField::edtSymbol).SetText("");
    Spin(frame, "edtQty").SetValue(0);
    Spin(frame, "edtPrice").SetValue(10.6);
    EXPECT_EQ(toldNow(), TMessageSource{"DC10013001"});
    frame.Edit(views::entry::TField::edtAccount).SetText("nobody's");
    EXPECT_EQ(toldNow(), TMessageSource{"DC10013002"});
    frame.Edit(views::entry::TField::edtAccount).SetText("A2");
    EXPECT_EQ(toldNow(), TMessageSource{"DC1000001"});
    frame.Edit(views::entry::TField::edtSymbol).SetText("0005");
    EXPECT_EQ(toldNow(), TMessageSource{"DC1004001"});
    Spin(frame, "edtQty").SetValue(-100);
    EXPECT_EQ(toldNow(), TMessageSource{"DC1004001"});
    Spin(frame, "edtQty").SetValue(std::nullopt);
    EXPECT_EQ(toldNow(), TMessageSource{"DC1004001"});
    Spin(frame, "edtQty").SetValue(10050);
    EXPECT_EQ(toldNow(), TMessageSource{"Too much"});
    Spin(frame, "edtQty").SetValue(9950);
    EXPECT_EQ(toldNow(), TMessageSource{"Res_ChangeUpPrice"});
    Spin(frame, "edtPrice").SetValue(10.4);
    EXPECT_EQ(toldNow(), TMessageSource{"Res_WorkOddLotWarning"});
    Spin(frame, "edtQty").SetValue(9900);
    EXPECT_EQ(toldNow(), TMessageSource{"Res_VolumePctFalse"});
    EXPECT_EQ(Spin(frame, "edtQty").Value(), 9900.0);
    EXPECT_EQ(Spin(frame, "edtPrice").Value(), 10.4);
    Spin(frame, "edtVolPct").SetValue(79);
    Click(frame, "btnSubmit");
    EXPECT_EQ(form.ModalResult(), 1);
  });
  EXPECT_EQ(TakenOrder().quantity, 9900);
}

TEST_F(WorkRules, MeasureTheQuantityByWhatTheParentHasLeftNow) {
  TCustomClientOrder parent = ParentOrder();
  const TMessageSource told = ToldOnSubmit(parent, [&](TChangeFrame& frame) {
    Type(frame, "edtQty", "10000");
    Leave(frame);
    TCustomClientOrder child = OrderWith("", "C1");
    child.parentNo = "NoP1";
    child.flags = 0x20000000;
    child.quantity = 100;
    Store(child);
  });
  EXPECT_EQ(told, TMessageSource{"Res_QuantityInvalid"});
}

TEST_F(WorkRules, HoldAChildToItsParentsPrice) {
  struct TRow {
    bool checked;
    bool locked;
    std::int32_t side;
    double parent;
    std::optional<double> price;
    TMessageSource told;
  };
  const TMessageSource none;
  const TMessageSource up{"Res_ChangeUpPrice"};
  const TMessageSource down{"Res_ChangeDownPrice"};
  for (const TRow& row : {TRow{true, true, 0, 10.5, 10.4, none},
                          {true, true, 0, 10.5, 10.5, none},
                          {true, true, 0, 10.5, 10.50000005, none},
                          {true, true, 0, 10.5, 10.6, up},
                          {true, true, 0, 10.5, std::nullopt, none},
                          {true, true, 1, 10.5, 10.5, none},
                          {true, true, 1, 10.5, 10.50000005, none},
                          {true, true, 1, 10.5, 10.6, down},
                          {true, true, 1, 10.5, 10.4, down},
                          {true, true, 1, 10.5, std::nullopt, down},
                          {true, true, 3, 10.5, 99, none},
                          {true, false, 0, 10.5, 10.6, none},
                          {true, false, 1, 10.5, 10.4, none},
                          {true, true, 0, 0, 10.6, none},
                          {true, true, 1, 0, 10.6, none},
                          {false, true, 0, 10.5, 10.6, none},
                          {false, true, 1, 10.5, 10.4, none}}) {
    DestroyProvider();
    CheckPrices(row.checked);
    TCustomClientOrder parent = ParentOrder(row.side, row.parent);
    const TMessageSource told = ToldOnSubmit(parent, [&](TChangeFrame& frame) {
      frame.Check(views::entry::TField::cbLockPrice).SetChecked(row.locked);
      Spin(frame, "edtPrice").SetValue(row.price);
    });
    EXPECT_EQ(told, row.told) << row.side << " " << row.price.value_or(0) << " " << row.locked;
  }
}

TEST_F(WorkRules, TakeWholeLotsAlone) {
  struct TRow {
    const char* lot;
    double quantity;
    bool passed;
  };
  for (const TRow& row : {TRow{"100", 150, false},
                          {"100", 100, true},
                          {"100", 99, false},
                          {"100", 100.5, false},
                          {"400", 10000, true},
                          {"400", 9999, false},
                          {"1", 7, true},
                          {"1", 7.5, false},
                          {"0", 7, true},
                          {"-100", 7, true},
                          {"2.5", 7, true},
                          {"lots", 7, true}}) {
    Host().SetMarket("0005", 1, {{24, row.lot}}, terminal::TMarketNotice::None);
    TCustomClientOrder parent = ParentOrder();
    const TMessageSource told =
        ToldOnSubmit(parent, [&](TChangeFrame& frame) { Spin(frame, "edtQty").SetValue(row.quantity); });
    EXPECT_EQ(told, row.passed ? TMessageSource{} : TMessageSource{"Res_WorkOddLotWarning"})
        << row.lot << " " << row.quantity;
  }
}

TEST_F(WorkRules, AskForTheLotLiveInTheDataSetOfPrices) {
  TCustomClientOrder parent = ParentOrder();
  ToldOnSubmit(parent, [&](TChangeFrame&) { Forget(); });
  ASSERT_EQ(Seen("subscribe").size(), 1U);
  EXPECT_EQ(Seen("subscribe").front().text, "0005");
  EXPECT_EQ(Seen("subscribe").front().more, "PRCDDS");
  EXPECT_TRUE(Seen("subscribe").front().answer);
}

TEST_F(WorkRules, CheckTheTimesAndTheAlgorithmLast) {
  TCustomClientOrder parent = ParentOrder();
  EXPECT_EQ(ToldOnSubmit(parent,
                         [&](TChangeFrame& frame) {
                           Type(frame, "deSTime", "2024-01-15 15:00:00");
                           Type(frame, "deETime", "2024-01-15 09:30:00");
                           Spin(frame, "edtVolPct").SetValue(80);
                         }),
            TMessageSource{"Res_DateFalse"});
  EXPECT_EQ(ToldOnSubmit(parent, [&](TChangeFrame& frame) { Spin(frame, "edtVolPct").SetValue(0); }),
            TMessageSource{"Res_VolPctMiss"});
}

TEST_F(WorkRules, WriteTheChildIntoTheOrder) {
  TCustomClientOrder parent = ParentOrder();
  parent.algoFlags = 0x2;
  parent.orderTypeFlags = 0x400;
  Host().SetMarket("0005", 1, {{1504, "100"}}, terminal::TMarketNotice::None);
  const TMessageSource told = ToldOnSubmit(parent, [&](TChangeFrame& frame) {
    Type(frame, "edtPrice", "10.25");
    Type(frame, "edtVolPct", "20");
    Leave(frame);
  });
  EXPECT_EQ(told, TMessageSource{});
  const TCustomClientOrder taken = TakenOrder();
  EXPECT_EQ(Seen("take_action").front().number, 42);
  EXPECT_EQ(Seen("take_action").front().more, "1");
  EXPECT_EQ(taken.user, "trader 7");
  EXPECT_EQ(taken.price, 10.25);
  EXPECT_EQ(taken.quantity, 400);
  EXPECT_EQ(taken.TextProperty(440), "TMLO:AlgoId=TVOL,VolPct=20,Closing=0;");
  EXPECT_EQ(taken.orderTypeFlags, 0x400U);
  EXPECT_EQ(taken.algoFlags, 0x8002U);
  EXPECT_EQ(taken.flags, 0x10000001U);
  EXPECT_EQ(taken.orderNo, "NoP1");
}

TEST_F(WorkRules, TakeThePriceAwayFromAMarketChild) {
  for (const double price : {0.0, 10.5}) {
    TCustomClientOrder parent = ParentOrder(host::SideSell, price);
    parent.orderTypeFlags = 1;
    EXPECT_EQ(ToldOnSubmit(parent, [](TChangeFrame&) {}), TMessageSource{});
    EXPECT_EQ(TakenOrder().price, 0);
    EXPECT_EQ(TakenOrder().orderTypeFlags, 1U);
    EXPECT_EQ(TakenOrder().TextProperty(440), "TMMO:AlgoId=TVOL,Closing=0;");
  }
}

TEST_F(WorkRules, CutNothingWithoutAnAlgorithm) {
  TCustomClientOrder parent = ParentOrder();
  const TMessageSource told =
      ToldOnSubmit(parent, [&](TChangeFrame& frame) { Combo(frame, "cmbOrderType").SetIndex(-1); });
  EXPECT_EQ(told, TMessageSource{"List index out of bounds (-1)"});
}

}  // namespace
}  // namespace algo::tests
