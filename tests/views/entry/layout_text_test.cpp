// The layout text: what is written, in which order and when.

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "plugin/host_contract/language_manager.h"
#include "tests/views/table_coverage.h"
#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

using std::string_view;

class LayoutText : public TTerminalTest {
 protected:
  LayoutText() : FFrame(Open()) {}

  /// The items of the text, without regard to quotes, which no value here needs but the times.
  std::vector<std::string> Items() {
    std::vector<std::string> items;
    const std::string text = FFrame.GetLayoutData() + ",";
    for (std::size_t start = 0; start < text.size();) {
      const std::size_t end = text.find(',', start);
      items.push_back(text.substr(start, end - start));
      start = end + 1;
    }
    return items;
  }
  /// The values of the items of that key, in order.
  std::vector<std::string> ValuesOf(string_view key) {
    std::vector<std::string> values;
    for (const std::string& item : Items()) {
      if (item.starts_with(std::string(key) + "=")) values.push_back(item.substr(key.size() + 1));
    }
    return values;
  }

  views::entry::TAlgoOrderEntryFrame& FFrame;
};

using TValues = std::vector<std::string>;

// All that a new form has to say; nothing is in its parameter fields.
constexpr string_view NewForm =
    "Account=,Account-Lock=0,Symbol=,Symbol-Lock=0,Quantity-Lock=0,Price=0,Price-Lock=0,"
    "OrderType=Res_Algo_OrderType_TVOL,Type=Res_OrderType_Limit,OrderType-Lock=0,Exchange=HK,"
    "Exchange-Lock=0,Popup=1,Clear=0,Style=Res_NA,AccuVol=Res_NA,Opening=Res_NA,Closing=Res_No,"
    "CloseSim=Res_NA,Func=Res_Algo_Func_Config,AllInAuc=Res_NA,Iceberg=Res_NA,Ref=N\\A,Join=Res_NA";

TEST_F(LayoutText, OfANewFormHoldsAccountSymbolBoxesAndChoices) {
  EXPECT_EQ(FFrame.GetLayoutData(), NewForm);
}

TEST_F(LayoutText, OfAnEmptyFormWithoutChoicesHoldsAccountSymbolAndBoxesAlone) {
  for (const char* combo :
       {"cmbOrderType", "cmbMType", "cmbExch", "cmbAccuVol", "cmbOpening", "cmbClosing", "cmbCloseSim",
        "cmbFunc", "cmbAllInAuc", "cmbIceberg", "cmbRef", "cmbJoin", "cmbStyle"}) {
    Combo(FFrame, combo).SetIndex(-1);
  }
  Spin(FFrame, "edtPrice").SetValue(std::nullopt);
  EXPECT_EQ(FFrame.GetLayoutData(),
            "Account=,Account-Lock=0,Symbol=,Symbol-Lock=0,Quantity-Lock=0,Price-Lock=0,OrderType-Lock=0,"
            "Exchange-Lock=0,Popup=1,Clear=0");
}

TEST_F(LayoutText, OfAFullFormHoldsEveryKeyInItsOrder) {
  Type(FFrame, "edtAccount", "A1");
  Type(FFrame, "edtSymbol", "0005");
  Leave(FFrame);
  ChooseAlgo(FFrame, "PEG");
  struct TNumber {
    const char* name;
    double value;
  };
  for (const TNumber& number : {
           TNumber{"edtQty", 1200},         TNumber{"edtPrice", 1060.5},      TNumber{"edtMinQty", 5},
           TNumber{"edtServePct", 40},      TNumber{"edtShowQty", 2500.5},    TNumber{"edtTimeOut", 3600},
           TNumber{"edtTickDiff", -2},      TNumber{"edtJoinThr", 1000},      TNumber{"edtJoinQty", 2000},
           TNumber{"edtRandTimeOut", 31.5}, TNumber{"edtDiffPct", -5.25},     TNumber{"edtMaxShowQty", 5000},
           TNumber{"edtRandPct", 21},       TNumber{"edtReloadPct", 50},      TNumber{"edtVolPct", 20},
           TNumber{"edtMaxVolPct", 25},     TNumber{"edtMinOrdAmt", 1234567}, TNumber{"edtWPx", 10.5},
           TNumber{"edtThrPx1", 10.2},      TNumber{"edtThrPx2", 10.8},       TNumber{"edtThrVolPct1", 30},
           TNumber{"edtThrVolPct2", 6},     TNumber{"edtSlices", 12},         TNumber{"edtOpenPct", 11},
           TNumber{"edtClosePct", 12.25},   TNumber{"edtStopLossPx", 9.8},    TNumber{"edtStopQty", 4000},
       }) {
    Spin(FFrame, number.name).SetValue(number.value);
  }
  struct TChoice {
    const char* name;
    std::int32_t index;
  };
  for (const TChoice& choice :
       {TChoice{"cmbStyle", 1}, TChoice{"cmbAccuVol", 0}, TChoice{"cmbOpening", 1}, TChoice{"cmbClosing", 2},
        TChoice{"cmbCloseSim", 1}, TChoice{"cmbFunc", 2}, TChoice{"cmbAllInAuc", 0}, TChoice{"cmbIceberg", 1},
        TChoice{"cmbRef", 9}, TChoice{"cmbJoin", 0}, TChoice{"cmbMType", 3}}) {
    Combo(FFrame, choice.name).SetIndex(choice.index);
  }
  dynamic_cast<forms::TDateEdit&>(Named(FFrame, "deSTime")).SetText("2024-01-15 09:30:00");
  dynamic_cast<forms::TDateEdit&>(Named(FFrame, "deETime")).SetText("2024-01-15 15:00:00");
  for (const char* box : {"cbLockAcct", "cbLockQty", "cbLockExch", "cbClear"}) {
    dynamic_cast<forms::TCheckBox&>(Named(FFrame, box)).SetChecked(true);
  }
  EXPECT_EQ(FFrame.GetLayoutData(),
            "Account=A1,Account-Lock=1,Symbol=0005,Symbol-Lock=0,Quantity=1200,Quantity-Lock=1,Price=1060.5,"
            "Price-Lock=0,OrderType=Res_Algo_OrderType_PEG,Type=Res_OrderType_StopLimit,OrderType-Lock=0,"
            "Exchange=HK,Exchange-Lock=1,Popup=1,Clear=1,Style=Res_Algo_Aggressive,AccuVol=Res_No,"
            "Opening=Res_Yes,Closing=Res_NA,CloseSim=Res_Yes,Func=Res_Algo_Func_Simualted,AllInAuc=Res_No,"
            "Iceberg=Res_Yes,Ref=Bid2,Join=Res_No,\"STime=2024-01-15 09:30:00\","
            "\"ETime=2024-01-15 15:00:00\",MinQty=1200,ServePct=40,ShowQty=2500.5,Timeout=3600,TickDiff=-2,"
            "JoinThr=1000,JoinQty=2000,RandTimeout=31.5,DiffPct=-5.25,JoinQty=2000,MaxShowQty=5000,"
            "RandPct=21,ReloadPct=50,VolPct=20,MaxVolPct=25,MinOrdAmt=1234567,WPx=10.5,ThrPx1=10.2,"
            "ThrPx2=10.8,ThrVolPct1=30,ThrVolPct2=6,Waves=12,OpenPct=11,ClosePct=12.25,StopLossPx=9.8,"
            "StopQty=4000");
}

TEST_F(LayoutText, HoldsEachBoxUnderItsOwnKey) {
  struct TBox {
    const char* box;
    const char* key;
  };
  for (const TBox& row : {TBox{"cbLockAcct", "Account-Lock"}, TBox{"cbLockSymbol", "Symbol-Lock"},
                          TBox{"cbLockQty", "Quantity-Lock"}, TBox{"cbLockPrice", "Price-Lock"},
                          TBox{"cbLockOrderType", "OrderType-Lock"}, TBox{"cbLockExch", "Exchange-Lock"},
                          TBox{"cbPopup", "Popup"}, TBox{"cbClear", "Clear"}}) {
    auto& box = dynamic_cast<forms::TCheckBox&>(Named(FFrame, row.box));
    for (const bool checked : {true, false}) {
      box.SetChecked(checked);
      EXPECT_EQ(ValuesOf(row.key), TValues{checked ? "1" : "0"}) << row.key;
    }
  }
}

TEST_F(LayoutText, SaysNothingOfTheLockOfTheHostOrderType) {
  const std::string before = FFrame.GetLayoutData();
  Click(FFrame, "cbLockMOrder");
  EXPECT_EQ(FFrame.GetLayoutData(), before);
}

struct TNumberRow {
  const char* key;
  const char* editor;
};
constexpr TNumberRow Numbers[] = {
    {"Quantity", "edtQty"},          {"Price", "edtPrice"},
    {"ServePct", "edtServePct"},     {"ShowQty", "edtShowQty"},
    {"Timeout", "edtTimeOut"},       {"TickDiff", "edtTickDiff"},
    {"JoinThr", "edtJoinThr"},       {"RandTimeout", "edtRandTimeOut"},
    {"DiffPct", "edtDiffPct"},       {"MaxShowQty", "edtMaxShowQty"},
    {"RandPct", "edtRandPct"},       {"ReloadPct", "edtReloadPct"},
    {"VolPct", "edtVolPct"},         {"MaxVolPct", "edtMaxVolPct"},
    {"MinOrdAmt", "edtMinOrdAmt"},   {"WPx", "edtWPx"},
    {"ThrPx1", "edtThrPx1"},         {"ThrPx2", "edtThrPx2"},
    {"ThrVolPct1", "edtThrVolPct1"}, {"ThrVolPct2", "edtThrVolPct2"},
    {"Waves", "edtSlices"},          {"OpenPct", "edtOpenPct"},
    {"ClosePct", "edtClosePct"},     {"StopLossPx", "edtStopLossPx"},
    {"StopQty", "edtStopQty"},
};

TEST_F(LayoutText, TheTableNamesEveryNumberButTheTwoThatAreWrittenInTheirOwnWay) {
  std::vector<std::string_view> names{"edtMinQty", "edtJoinQty"};
  for (const TNumberRow& row : Numbers) names.emplace_back(row.editor);
  ExpectNamesEvery(names, [](const auto& row) { return row.kind == views::entry::TFieldKind::Spin; });
}

TEST_F(LayoutText, HoldsEachNumberUnderItsOwnKeyWithoutSeparators) {
  for (const TNumberRow& row : Numbers) {
    Spin(FFrame, row.editor).SetValue(1234567);
    EXPECT_EQ(ValuesOf(row.key), TValues{"1234567"}) << row.key;
    Spin(FFrame, row.editor).SetValue(0);
    EXPECT_EQ(ValuesOf(row.key), TValues{"0"}) << row.key;
    Spin(FFrame, row.editor).SetValue(-12);
    EXPECT_EQ(ValuesOf(row.key), TValues{"-12"}) << row.key;
    Spin(FFrame, row.editor).SetValue(std::nullopt);
    EXPECT_EQ(ValuesOf(row.key), TValues{}) << row.key;
  }
}

TEST_F(LayoutText, HoldsTheJoinQuantityTwice) {
  Spin(FFrame, "edtJoinQty").SetValue(2500);
  EXPECT_EQ(ValuesOf("JoinQty"), (TValues{"2500", "2500"}));
  Spin(FFrame, "edtJoinQty").SetValue(std::nullopt);
  EXPECT_EQ(ValuesOf("JoinQty"), TValues{});
}

TEST_F(LayoutText, HoldsTheQuantityOfTheOrderUnderTheMinimumQuantity) {
  Spin(FFrame, "edtMinQty").SetValue(5);
  Spin(FFrame, "edtQty").SetValue(1300);
  EXPECT_EQ(ValuesOf("MinQty"), TValues{"1300"});
  Spin(FFrame, "edtQty").SetValue(std::nullopt);
  EXPECT_EQ(ValuesOf("MinQty"), TValues{""});
  Spin(FFrame, "edtQty").SetValue(1300);
  Spin(FFrame, "edtMinQty").SetValue(std::nullopt);
  EXPECT_EQ(ValuesOf("MinQty"), TValues{});
}

TEST_F(LayoutText, QuotesWhatHoldsACommaABlankOrAQuote) {
  Type(FFrame, "edtAccount", "a,b \"c\"");
  Leave(FFrame);
  EXPECT_TRUE(FFrame.GetLayoutData().starts_with("\"Account=a,b \"\"c\"\"\",Account-Lock=0,"));
}

TEST_F(LayoutText, FollowsTheEntriesOfTheListsAndNotTheirTexts) {
  Data().texts[std::string(host::Const_ResourceStringTag)]["Res_NA"] = "none";
  Data().texts["Exchange"]["HK"] = "Hong Kong";
  FFrame.SetLanguage(3);
  EXPECT_EQ(Combo(FFrame, "cmbStyle").Text(), "none");
  EXPECT_EQ(Combo(FFrame, "cmbExch").Text(), "HK(Hong Kong)");
  EXPECT_EQ(FFrame.GetLayoutData(), NewForm);
}

}  // namespace
}  // namespace algo::tests
