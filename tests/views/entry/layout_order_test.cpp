// In which order the keys of a layout text count, wherever they stand in it, and what account and symbol set
// off.

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

using std::string_view;

class LayoutOrder : public TTerminalTest {
 protected:
  LayoutOrder() : FFrame(Open()) { Forget(); }

  std::string Text(string_view control) { return Named(FFrame, control).Text(); }
  bool Enabled(string_view control) { return Named(FFrame, control).Enabled(); }
  /// Whether the text that the frame writes now has that item.
  bool Writes(string_view item) {
    return ("," + FFrame.GetLayoutData() + ",").find("," + std::string(item) + ",") != std::string::npos;
  }

  views::entry::TAlgoOrderEntryFrame& FFrame;
};

TEST_F(LayoutOrder, GivesTheAccountToTheHostsEditorEvenWhenItIsMissing) {
  Type(FFrame, "edtAccount", "A1");
  Leave(FFrame);
  for (const string_view text : {"Account=A2", "Account=", "VolPct=20", "x", ""}) {
    Forget();
    EXPECT_TRUE(FFrame.SetLayoutData(text));
    const auto set = Seen("layout_account");
    ASSERT_EQ(set.size(), 1U) << text;
    EXPECT_EQ(set.front().text, "edtAccount");
    EXPECT_EQ(set.front().more, text == "Account=A2" ? "A2" : "") << text;
    EXPECT_EQ(Text("edtAccount"), text == "Account=A2" ? "A2" : "") << text;
    EXPECT_TRUE(Writes(text == "Account=A2" ? "Account=A2" : "Account=")) << text;
  }
}

TEST_F(LayoutOrder, CommitsTheSymbolEvenWhenItIsMissing) {
  FFrame.SetLayoutData("Symbol=0700");
  EXPECT_EQ(Text("edtSymbol"), "0700");
  EXPECT_TRUE(Writes("Symbol=0700"));
  FFrame.SetLayoutData("Symbol=ZZ");
  EXPECT_EQ(Text("edtSymbol"), "ZZ");
  EXPECT_TRUE(Writes("Symbol="));
  FFrame.SetLayoutData("Symbol=0700");
  Forget();
  FFrame.SetLayoutData("VolPct=20");
  EXPECT_EQ(Text("edtSymbol"), "");
  EXPECT_TRUE(Writes("Symbol="));
  EXPECT_EQ(Seen("unsubscribe").size(), 1U);
}

TEST_F(LayoutOrder, LetsQuantityAndPriceStandAgainstTheMarket) {
  FFrame.SetLayoutData("Quantity=300,Price=12.5,Symbol=0005");
  EXPECT_EQ(Text("edtQty"), "300");
  EXPECT_EQ(Text("edtPrice"), "12.5");
  Host().SetMarket("0005", 1, {{24, "500"}, {3, "70"}}, terminal::TMarketNotice::Item);
  EXPECT_EQ(Text("edtQty"), "300");
  EXPECT_EQ(Text("edtPrice"), "12.5");
}

TEST_F(LayoutOrder, KeepsQuantityAndPriceWhenTheMarketComesLater) {
  FFrame.SetLayoutData("Quantity=300,Price=12.5,Symbol=0700");
  Host().SetMarket("0700", 1, {{24, "500"}, {3, "70"}}, terminal::TMarketNotice::Item);
  EXPECT_EQ(Text("edtQty"), "300");
  EXPECT_EQ(Text("edtPrice"), "12.5");
}

TEST_F(LayoutOrder, LeavesTheMarketToFillWhatTheTextDoesNotGive) {
  FFrame.SetLayoutData("Quantity=0,Price=0,Symbol=0700");
  Host().SetMarket("0700", 1, {{24, "500"}, {3, "70"}}, terminal::TMarketNotice::Item);
  EXPECT_EQ(Text("edtQty"), "500");
  EXPECT_EQ(Text("edtPrice"), "70");
}

TEST_F(LayoutOrder, PutsTheQuantityInBeforeItIsLocked) {
  FFrame.SetLayoutData("Quantity-Lock=1,Quantity=300");
  EXPECT_EQ(Text("edtQty"), "300");
  EXPECT_FALSE(Enabled("edtQty"));
  FFrame.SetLayoutData("Quantity=500");
  EXPECT_EQ(Text("edtQty"), "500");
}

TEST_F(LayoutOrder, PutsTheSymbolInBeforeItIsLocked) {
  FFrame.SetLayoutData("Symbol-Lock=1,Symbol=0700,Account-Lock=1,Account=A1");
  EXPECT_EQ(Text("edtSymbol"), "0700");
  EXPECT_EQ(Text("edtAccount"), "A1");
  EXPECT_FALSE(Enabled("edtSymbol"));
  EXPECT_FALSE(Enabled("edtAccount"));
}

TEST_F(LayoutOrder, PutsThePriceInBeforeItIsLockedAndNotOnceItIs) {
  FFrame.SetLayoutData("Price-Lock=1,Price=12.5");
  EXPECT_EQ(Text("edtPrice"), "12.5");
  EXPECT_FALSE(Enabled("edtPrice"));
  FFrame.SetLayoutData("Price=13.5");
  EXPECT_EQ(Text("edtPrice"), "12.5");
  FFrame.SetLayoutData("Price=13.5,Price-Lock=0");
  EXPECT_EQ(Text("edtPrice"), "12.5");
  FFrame.SetLayoutData("Price=13.5");
  EXPECT_EQ(Text("edtPrice"), "13.5");
}

TEST_F(LayoutOrder, ChoosesTheHostOrderTypeBeforeThePrice) {
  FFrame.SetLayoutData("Price=12.5,Type=Res_OrderType_Market");
  EXPECT_EQ(Text("edtPrice"), "0");
  FFrame.SetLayoutData("Price=12.5,Type=Res_OrderType_ELO");
  EXPECT_EQ(Text("edtPrice"), "12.5");
}

TEST_F(LayoutOrder, ChoosesTheExchangeBeforeWhatItOffers) {
  FFrame.SetLayoutData("Type=Res_OrderType_Market,OrderType=Res_Algo_OrderType_TWAP,Exchange=US");
  EXPECT_EQ(Text("cmbExch"), "US");
  EXPECT_EQ(Text("cmbOrderType"), "Res_Algo_OrderType_TWAP");
  EXPECT_EQ(Text("cmbMType"), "Res_OrderType_Market");
  FFrame.SetLayoutData("OrderType=Res_Algo_OrderType_PEG");
  EXPECT_EQ(Text("cmbOrderType"), "Res_Algo_OrderType_TWAP");
  FFrame.SetLayoutData("OrderType=Res_Algo_OrderType_PEG,Exchange=HK");
  EXPECT_EQ(Text("cmbOrderType"), "Res_Algo_OrderType_PEG");
}

TEST_F(LayoutOrder, LocksTheAlgorithmAfterTheExchangeUnlockedIt) {
  FFrame.SetLayoutData("OrderType-Lock=1,Exchange-Lock=1,OrderType=Res_Algo_OrderType_TWAP,Exchange=US");
  EXPECT_EQ(Text("cmbOrderType"), "Res_Algo_OrderType_TWAP");
  EXPECT_FALSE(Enabled("cmbOrderType"));
  EXPECT_FALSE(Enabled("cmbExch"));
}

TEST_F(LayoutOrder, ChoosesTheAlgorithmBeforeItsParametersWhichItWouldBlank) {
  FFrame.SetLayoutData(
      "VolPct=20,Style=Res_Algo_Passive,Opening=Res_Yes,STime=2024-01-15,OrderType=Res_Algo_OrderType_VWAP");
  EXPECT_EQ(Text("edtVolPct"), "20");
  EXPECT_EQ(Text("cmbStyle"), "Res_Algo_Passive");
  EXPECT_EQ(Text("cmbOpening"), "Res_Yes");
  EXPECT_EQ(Text("deSTime"), "2024-01-15 00:00:00");
  FFrame.SetLayoutData("OrderType=Res_Algo_OrderType_VWAP");
  EXPECT_EQ(Text("edtVolPct"), "20");
  FFrame.SetLayoutData("OrderType=Res_Algo_OrderType_TVOL");
  EXPECT_EQ(Text("edtVolPct"), "");
}

TEST_F(LayoutOrder, TakesTheFirstItemOfAName) {
  FFrame.SetLayoutData("VolPct=20,VolPct=30,JoinQty=5,JoinQty=6,Account=A1,Account=A2,Quantity=,Quantity=9");
  EXPECT_EQ(Text("edtVolPct"), "20");
  EXPECT_EQ(Text("edtJoinQty"), "5");
  EXPECT_EQ(Text("edtAccount"), "A1");
  EXPECT_EQ(Text("edtQty"), "");
}

TEST_F(LayoutOrder, PassesOverItemsItDoesNotKnow) {
  EXPECT_TRUE(FFrame.SetLayoutData("Unknown=1,VolPct,=5,,\"\",VolPct =7, WPx=10.5 ,VolPct=20=1"));
  EXPECT_EQ(Text("edtVolPct"), "");
  EXPECT_EQ(Text("edtWPx"), "10.5");
  EXPECT_TRUE(Told().empty());
}

TEST_F(LayoutOrder, ReadsTheOrdersQuantityIntoTheMinimumQuantity) {
  Spin(FFrame, "edtMinQty").SetValue(5);
  Spin(FFrame, "edtQty").SetValue(300);
  const std::string text = FFrame.GetLayoutData();
  auto& other = Open();
  other.SetLayoutData(text);
  EXPECT_EQ(Spin(other, "edtMinQty").Value(), 300);
  EXPECT_EQ(Spin(other, "edtQty").Value(), 300);
}

TEST_F(LayoutOrder, ReadsBackATimeThatHoldsABlank) {
  Type(FFrame, "deSTime", "2024-01-15 09:30:00");
  Leave(FFrame);
  auto& other = Open();
  other.SetLayoutData(FFrame.GetLayoutData());
  EXPECT_EQ(Named(other, "deSTime").Text(), "2024-01-15 09:30:00");
}

TEST_F(LayoutOrder, WritesAZeroThatItNeverReadsBack) {
  Spin(FFrame, "edtVolPct").SetValue(0);
  EXPECT_TRUE(Writes("VolPct=0"));
  auto& other = Open();
  other.SetLayoutData(FFrame.GetLayoutData());
  EXPECT_EQ(Spin(other, "edtVolPct").Value(), std::nullopt);
}

TEST_F(LayoutOrder, ChecksTheBoxOfAForcedConfirmationWithoutEnablingIt) {
  Data().config["USER"]["ForceConfirmBox"] = "Y";
  Data().config["USER"]["ConfirmationPlaceOrd"] = "Y";
  Host().NotifyConfigChanged();
  EXPECT_TRUE(Writes("Popup=0"));
  FFrame.SetLayoutData("Popup=1");
  EXPECT_FALSE(Enabled("cbPopup"));
  EXPECT_TRUE(Writes("Popup=1"));
}

}  // namespace
}  // namespace algo::tests
