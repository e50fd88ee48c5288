// Orders and prices that are picked in other views and copied into the form: for whom they are, what is taken
// over of them, and in what the two differ.

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "model/parameter_text.h"
#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

using std::string_view;

host::TCustomClientOrder Picked() {
  host::TCustomClientOrder order;
  order.key = "P1";
  order.account = "A2";
  order.symbol = "0005";
  order.exchange = "US";
  order.side = host::SideSell;
  order.quantity = 1234.9;
  order.price = 12.5;
  order.orderTypeFlags = 0;
  order.SetTextProperty(440, "TMLO:AlgoId=TWAP,STime=20240115-09:30:00,WPx=10.5,Style=1,MaxVolPct=25;");
  return order;
}

class Copying : public TTerminalTest {
 protected:
  static constexpr std::int32_t Order = 18010;
  static constexpr std::int32_t Price = 18016;

  void Copy(std::int32_t channel, host::TCustomOrder* object, string_view group = "") {
    host::TOrderCopyRecord record;
    record.object = object;
    record.groupId = group;
    Host().PostAsHost(channel, record);
  }
  void Copy(std::int32_t channel, host::TCustomClientOrder order, string_view group = "") {
    Copy(channel, static_cast<host::TCustomOrder*>(&order), group);
  }

  static std::string Text(const forms::TFrame& frame, string_view control) {
    return frame.FindControl(control)->Text();
  }
  void Expect(forms::TFrame& frame, const std::vector<std::pair<string_view, string_view>>& texts) {
    for (const auto& [control, text] : texts) EXPECT_EQ(Text(frame, control), text) << control;
  }
};

TEST_F(Copying, AnOrderFillsTheFormWithAlgorithmAndParameters) {
  auto& frame = Open();
  Copy(Order, Picked());
  Expect(frame, {{"edtAccount", "A2"},
                 {"edtSymbol", "0005"},
                 {"cmbExch", "US"},
                 {"cmbMType", "Res_OrderType_Limit"},
                 {"edtQty", "1,234"},
                 {"edtPrice", "12.5"},
                 {"cmbOrderType", "Res_Algo_OrderType_TWAP"},
                 {"deSTime", "2024-01-15 09:30:00"},
                 {"deETime", ""},
                 {"edtWPx", "10.5"},
                 {"cmbStyle", "Res_Algo_Passive"},
                 {"edtMaxVolPct", "25"},
                 {"cmbClosing", "Res_NA"}});
  EXPECT_EQ(Named(frame, "edtSymbol").Hint(), "0005");
  EXPECT_TRUE(frame.GetLayoutData().starts_with("Account=A2,Account-Lock=0,Symbol=0005,"));
  EXPECT_TRUE(Told().empty());
}

TEST_F(Copying, AnOrderChoosesItsHostOrderType) {
  auto& frame = Open();
  host::TCustomClientOrder order = Picked();
  order.exchange = "HK";
  order.auctionFlags = 0x1000;
  Copy(Order, order);
  Expect(frame, {{"cmbMType", "Res_OrderType_LOC"}, {"edtPrice", "12.5"}});
  order.orderTypeFlags = 1;
  Copy(Order, order);
  Expect(frame, {{"cmbMType", "Res_OrderType_Market"}, {"edtPrice", "0"}});
}

TEST_F(Copying, AnOrderFromAnUnknownExchangeGetsTheFirstOne) {
  auto& frame = Open();
  Combo(frame, "cmbExch").SetIndex(1);
  host::TCustomClientOrder order = Picked();
  order.exchange = "XX";
  Copy(Order, order);
  EXPECT_EQ(Text(frame, "cmbExch"), "HK");
}

TEST_F(Copying, AnOrderClearsTheFormFirst) {
  auto& frame = OpenFilled();
  ChooseAlgo(frame, "PEG");
  Spin(frame, "edtJoinQty").SetValue(77);
  host::TCustomClientOrder order;
  order.symbol = "0700";
  Copy(Order, order);
  Expect(frame, {{"edtAccount", ""},
                 {"edtSymbol", "0700"},
                 {"edtQty", "0"},
                 {"edtPrice", "0"},
                 {"cmbExch", "HK"},
                 {"cmbOrderType", "Res_Algo_OrderType_TVOL"},
                 {"edtJoinQty", ""}});
}

TEST_F(Copying, APriceLeavesTheRestOfTheFormAsItIs) {
  auto& frame = OpenFilled();
  ChooseAlgo(frame, "PEG");
  Spin(frame, "edtJoinQty").SetValue(77);
  host::TCustomClientOrder order = Picked();
  order.orderTypeFlags = 1;
  Copy(Price, order);
  Expect(frame, {{"edtAccount", "A1"},
                 {"edtSymbol", "0005"},
                 {"edtQty", "1,234"},
                 {"edtPrice", "12.5"},
                 {"cmbExch", "HK"},
                 {"cmbMType", "Res_OrderType_Limit"},
                 {"cmbOrderType", "Res_Algo_OrderType_PEG"},
                 {"edtJoinQty", "77"},
                 {"edtWPx", ""},
                 {"deSTime", ""}});
}

TEST_F(Copying, ZeroIsTakenOverWithAnOrderAndNotWithAPrice) {
  auto& frame = OpenFilled();
  host::TCustomClientOrder order = Picked();
  order.quantity = 0;
  order.price = 0;
  Copy(Price, order);
  Expect(frame, {{"edtQty", "800"}, {"edtPrice", "60.5"}});
  Copy(Order, order);
  Expect(frame, {{"edtQty", "0"}, {"edtPrice", "0"}});
}

TEST_F(Copying, APriceBelowZeroIsAPrice) {
  auto& frame = OpenFilled();
  host::TCustomClientOrder order = Picked();
  order.price = -2.5;
  order.quantity = -7.9;
  Copy(Price, order);
  Expect(frame, {{"edtQty", "-7"}, {"edtPrice", "-2.5"}});
}

TEST_F(Copying, AQuantityThatFitsNoWholeNumberCountsAsZero) {
  auto& frame = OpenFilled();
  host::TCustomClientOrder order = Picked();
  order.quantity = 1e19;
  Copy(Order, order);
  EXPECT_EQ(Text(frame, "edtQty"), "0");
}

TEST_F(Copying, APriceWithoutQuantityLeavesTheLotOfTheSameSymbolAlone) {
  auto& frame = OpenFilled();
  host::TCustomClientOrder order = Picked();
  order.quantity = 0;
  Copy(Price, order);
  Host().SetMarket("0005", 1, {{24, "500"}, {3, "70"}}, terminal::TMarketNotice::Item);
  Expect(frame, {{"edtQty", "800"}, {"edtPrice", "12.5"}});
}

TEST_F(Copying, APriceWithoutQuantityWaitsForTheLotOfAnotherSymbol) {
  auto& frame = OpenFilled();
  host::TCustomClientOrder order = Picked();
  order.symbol = "0700";
  order.quantity = 0;
  Copy(Price, order);
  Expect(frame, {{"edtSymbol", "0700"}, {"edtQty", "800"}, {"edtPrice", "12.5"}});
  Host().SetMarket("0700", 1, {{24, "100"}, {3, "300"}}, terminal::TMarketNotice::Item);
  Expect(frame, {{"edtQty", "100"}, {"edtPrice", "12.5"}});
}

TEST_F(Copying, APriceRefreshesTheLotAtItsEndWhenTheSymbolIsAnother) {
  auto& frame = OpenFilled();
  Host().SetMarket("0700", 1, {{24, "100"}, {3, "300"}}, terminal::TMarketNotice::None);
  host::TCustomClientOrder order = Picked();
  order.symbol = "0700";
  order.quantity = 0;
  order.price = 0;
  Copy(Price, order);
  Expect(frame, {{"edtQty", "100"}, {"edtPrice", "60.5"}});
}

TEST_F(Copying, APriceWithoutSymbolKeepsTheSymbol) {
  auto& frame = OpenFilled();
  host::TCustomClientOrder order = Picked();
  order.symbol.clear();
  Copy(Price, order);
  Expect(frame, {{"edtSymbol", "0005"}, {"edtPrice", "12.5"}, {"edtQty", "1,234"}});
}

TEST_F(Copying, TheMarketLeavesWhatWasCopiedAlone) {
  for (const std::int32_t channel : {Order, Price}) {
    auto& frame = OpenFilled();
    Copy(channel, Picked());
    Host().SetMarket("0005", 1, {{24, "500"}, {3, "70"}}, terminal::TMarketNotice::Item);
    Expect(frame, {{"edtQty", "1,234"}, {"edtPrice", "12.5"}});
  }
}

TEST_F(Copying, TheCopiedPriceIsShownTimesTheMultiplierOfLiveData) {
  struct TRow {
    std::int32_t state;
    const char* multiplier;
    const char* shown;
  };
  for (const TRow& row :
       {TRow{1, "0.001", "0.0125"}, TRow{1, "100", "1,250"}, TRow{1, "1e1", "125"}, TRow{1, "abc", "12.5"},
        TRow{1, "", "12.5"}, TRow{2, "100", "12.5"}, TRow{0, "100", "12.5"}}) {
    Host().SetMarket("0005", row.state, {{1504, row.multiplier}}, terminal::TMarketNotice::None);
    for (const std::int32_t channel : {Order, Price}) {
      auto& frame = Open();
      Copy(channel, Picked());
      EXPECT_EQ(Text(frame, "edtPrice"), row.shown) << row.state << " " << row.multiplier;
    }
  }
  Host().SetMarket("0005", 1, {{1504, std::nullopt}}, terminal::TMarketNotice::None);
  auto& frame = Open();
  Copy(Order, Picked());
  EXPECT_EQ(Text(frame, "edtPrice"), "12.5");
}

TEST_F(Copying, AnUnknownSymbolIsShownAndNotFollowed) {
  auto& frame = OpenFilled();
  host::TCustomClientOrder order = Picked();
  order.symbol = "ZZ";
  Copy(Order, order);
  Expect(frame, {{"edtSymbol", "ZZ"}, {"edtPrice", "12.5"}});
  EXPECT_NE(frame.GetLayoutData().find(",Symbol=,"), std::string::npos);
}

TEST_F(Copying, TextsAreTakenApartAtTheirLastPartWithAnId) {
  struct TRow {
    const char* text;
    const char* algoId;
    std::vector<string_view> pieces;
  };
  const std::vector<TRow> rows{
      {"TMLO:AlgoId=17,STime=20240115-09:30:00,VolPct=20;",
       "17",
       {"TMLO:AlgoId=17", "STime=20240115-09:30:00", "VolPct=20"}},
      {"tmlo:algoid=5", "5", {"tmlo:algoid=5"}},
      {"TMLO:AlgoId", "", {"TMLO:AlgoId"}},
      {"AlgoId,a=b", "", {"AlgoId", "a=b"}},
      {"x=y,AlgoId=3", "y", {"x=y", "AlgoId=3"}},
      {"AlgoId=1,a=1;Other=2;ALGOID=2,b=2;z", "2", {"ALGOID=2", "b=2"}},
      {"TMLO:AlgoId=TVOL Threshold, a b ,,c=d=e;",
       "TVOL Threshold",
       {"TMLO:AlgoId=TVOL Threshold", " a b ", "", "c=d=e"}},
      {"TMLO:AlgoId=a=b;", "a=b", {"TMLO:AlgoId=a=b"}},
      {"VolPct=20;STime=1", "", {}},
      {"", "", {}},
      {";;;", "", {}},
  };
  for (const TRow& row : rows) {
    const model::TSplitText split = model::SplitText(row.text);
    EXPECT_EQ(split.algoId, row.algoId) << row.text;
    EXPECT_EQ(split.pieces, row.pieces) << row.text;
  }
}

}  // namespace
}  // namespace algo::tests
