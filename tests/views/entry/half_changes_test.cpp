// Changes of exchange, algorithm, symbol and group at which the host fails half-way: what is left can not be
// sent as something that it is not, and the same change can be made again.

#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

using TTexts = std::vector<std::string>;
using views::entry::TField;

class HalfChanges : public TTerminalTest {
 protected:
  /// Picks the item while that operation of the host fails; told once.
  void PickFailing(views::entry::TAlgoOrderEntryFrame& frame, const char* combo, const char* item,
                   const char* fault) {
    Forget();
    Data().faults.Set({fault});
    Pick(frame, combo, item);
    Data().faults.Set({});
    EXPECT_EQ(Told(), TTexts{"The host fails at " + std::string(fault)});
    Forget();
  }
};

TEST_F(HalfChanges, AnAlgorithmWithoutItsFieldsIsNotLeftChosen) {
  auto& frame = OpenFilled();
  ChooseAlgo(frame, "TVOL");
  PickFailing(frame, "cmbOrderType", "Res_Algo_OrderType_ICEBERG", "language.text");
  EXPECT_EQ(frame.Combo(TField::cmbOrderType).Index(), -1);
  Click(frame, "btnSubmit");
  EXPECT_EQ(Told(), TTexts{"Res_MarketMiss"});
  EXPECT_TRUE(Seen("take_action").empty());

  Pick(frame, "cmbOrderType", "Res_Algo_OrderType_ICEBERG");
  EXPECT_TRUE(Element(frame, "liShowQty").Showing()) << "the same algorithm again, with its fields";
}

TEST_F(HalfChanges, ANoticeThatFailsLeavesTheAlgorithmChosen) {
  auto& frame = OpenFilled();
  PickFailing(frame, "cmbOrderType", "Res_Algo_OrderType_PEG", "view.notify");
  EXPECT_EQ(frame.Combo(TField::cmbOrderType).Text(), "Res_Algo_OrderType_PEG");
  EXPECT_TRUE(Element(frame, "liJoin").Showing());
}

TEST_F(HalfChanges, ANoticeThatFailsLeavesTheListsOfTheExchange) {
  auto& frame = OpenFilled();
  PickFailing(frame, "cmbExch", "US", "view.notify");
  EXPECT_EQ(frame.Combo(TField::cmbOrderType).Items(),
            (TTexts{"Res_Algo_OrderType_VWAP", "Res_Algo_OrderType_TWAP"}));
  EXPECT_EQ(frame.Combo(TField::cmbMType).Items(), (TTexts{"Res_OrderType_Limit", "Res_OrderType_Market"}));
}

TEST_F(HalfChanges, AnExchangeWhoseListsCannotBeReadOffersNothing) {
  for (const char* fault : {"orders.list", "language.text", "profile.right"}) {
    auto& frame = OpenFilled();
    PickFailing(frame, "cmbExch", "US", fault);
    EXPECT_EQ(frame.Combo(TField::cmbOrderType).Count(), 0) << fault;
    EXPECT_EQ(frame.Combo(TField::cmbMType).Count(), 0) << fault;
    Pick(frame, "cmbExch", "HK");
    EXPECT_EQ(frame.Combo(TField::cmbOrderType).Text(), "Res_Algo_OrderType_TVOL") << fault;
    EXPECT_TRUE(Element(frame, "liVolPct").Showing()) << fault;
  }
}

TEST_F(HalfChanges, ASymbolAtWhichTheHostFailedIsNone) {
  for (const char* fault : {"subscribe.add", "editor.symbol"}) {
    auto& frame = OpenFilled();
    Data().faults.Set({fault});
    Forget();
    Type(frame, "edtSymbol", "0700");
    Leave(frame);
    Data().faults.Set({});
    EXPECT_EQ(Told().size(), 1U) << fault;
    EXPECT_EQ(frame.Edit(TField::edtSymbol).Hint(), "") << fault;
    Forget();
    Click(frame, "btnSubmit");
    EXPECT_EQ(Told(), TTexts{"DC1000001"}) << fault << ": 0700 is not sent with the quantity of 0005";
    Provider().CloseInstance(host::HandleOf(frame));
    EXPECT_EQ(LeftBehind().subscriptions, 0U) << fault;
  }
}

TEST_F(HalfChanges, TheFollowedSymbolEnteredAgainStaysWhenTheHostFails) {
  auto& frame = OpenFilled();
  Data().faults.Set({"editor.symbol"});
  Type(frame, "edtSymbol", "0005");
  Leave(frame);
  Data().faults.Set({});
  EXPECT_EQ(frame.Edit(TField::edtSymbol).Hint(), "0005");
  EXPECT_EQ(LeftBehind().subscriptions, 1U);
}

TEST_F(HalfChanges, ALinkGroupThatFailedCanBeJoinedAgain) {
  auto& frame = Open();
  Data().faults.Set({"editor.register"});
  EXPECT_FALSE(frame.SetGroupID("G1"));
  EXPECT_EQ(frame.GetGroupID(), "");
  Data().faults.Set({});
  EXPECT_TRUE(frame.SetGroupID("G1"));
  EXPECT_EQ(frame.GetGroupID(), "G1");
}

TEST_F(HalfChanges, AnExchangeCodeIsTheSameWhateverItsLetterCase) {
  auto& frame = OpenFilled();
  host::TCustomClientOrder order;
  order.exchange = "us";
  order.symbol = "0005";
  order.SetTextProperty(440, "TMLO:AlgoId=VWAP;");
  host::TOrderCopyRecord record;
  record.object = &order;
  Host().PostAsHost(host::CopyOrderChannel, record);
  EXPECT_EQ(frame.Combo(TField::cmbExch).Text(), "US");
}

TEST_F(HalfChanges, AUserWithoutAnAccountFieldWorksOnTheProfilesAccountAlone) {
  Data().profile = {2, false, "A1", "U"};
  auto& frame = Open();
  frame.SetLayoutData("Account=A2,Symbol=0005,Quantity=400");
  host::TCustomClientOrder order;
  order.account = "A2";
  order.symbol = "0005";
  order.exchange = "HK";
  order.quantity = 400;
  order.SetTextProperty(440, "TMLO:AlgoId=CLOSE;");
  host::TOrderCopyRecord record;
  record.object = &order;
  Host().PostAsHost(host::CopyOrderChannel, record);
  Click(frame, "btnBuy");
  frame.Check(TField::cbPopup).SetChecked(true);
  Click(frame, "btnSubmit");
  EXPECT_EQ(TakenOrder().account, "A1");
}

TEST_F(HalfChanges, TheItemsOfAGroupStandInTheirOrderWithTheGroupsBehindThem) {
  auto& frame = Open();
  const auto children = [&](const char* group) {
    TTexts names;
    for (const auto* child : dynamic_cast<forms::TLayoutGroup&>(Element(frame, group)).Children()) {
      names.push_back(child->Name());
    }
    return names;
  };
  EXPECT_EQ(children("lgICEBERG"), (TTexts{"liIceberg", "liShowQty", "lgExc"}));
  EXPECT_EQ(children("lgPEG"), (TTexts{"liJoin", "liJoinThr", "lgPEGExcept"}));
  EXPECT_EQ(children("lgAuc"), (TTexts{"liOpening", "liOpenPct", "liClosing", "liClosePct", "lgVWAP"}));
  EXPECT_EQ(children("lgRef"), (TTexts{"liRef", "liTickDiff", "liDiffPct"}));
  EXPECT_EQ(children("lgVol"), (TTexts{"liVolPct", "liMaxVolPct", "liAccuVol"}));
  EXPECT_EQ(children("lgExc"), (TTexts{"liMaxShowQty", "liRandPct", "liReloadPct", "liFunc", "liAllInAuc"}));
}

}  // namespace
}  // namespace algo::tests
