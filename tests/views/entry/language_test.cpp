// What a change of language leaves as it was, and how the side buttons fit their captions.

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

using TTexts = std::vector<std::string>;
using views::entry::TField;

class LanguageTest : public TTerminalTest {
 protected:
  void Speak(const std::string& sell) { Data().texts["Res"]["Res_Side_Sell"] = sell; }

  void ExpectSideFont(views::entry::TAlgoOrderEntryFrame& frame, std::int32_t size, const std::string& when) {
    for (const TField side : {TField::btnBuy, TField::btnSell}) {
      EXPECT_EQ(frame.Control(side).Font().size, size) << frame.Control(side).Name() << " " << when;
      EXPECT_TRUE(frame.Control(side).Font().bold) << frame.Control(side).Name() << " " << when;
    }
  }
};

TEST_F(LanguageTest, ASwitchKeepsEveryChoice) {
  auto& frame = OpenFilled();
  Pick(frame, "cmbExch", "US");
  Pick(frame, "cmbOrderType", "Res_Algo_OrderType_TWAP");
  Pick(frame, "cmbMType", "Res_OrderType_Market");
  frame.Combo(TField::cmbRef).SetIndex(4);
  frame.Combo(TField::cmbFunc).SetIndex(2);
  for (const TField combo : {TField::cmbAccuVol, TField::cmbOpening, TField::cmbClosing, TField::cmbCloseSim,
                             TField::cmbAllInAuc, TField::cmbJoin, TField::cmbIceberg}) {
    frame.Combo(combo).SetIndex(1);
  }
  Data().texts["Res"] = {{"Res_Yes", "Ja"},
                         {"Res_Ask", "Brief"},
                         {"Res_Algo_OrderType_TWAP", "Zeit"},
                         {"Res_OrderType_Market", "Bestens"},
                         {"Res_Algo_Func_Simualted", "Simuliert"}};
  Data().texts["Exchange"] = {{"US", "USA"}};
  EXPECT_TRUE(frame.SetLanguage(1));
  EXPECT_EQ(frame.Combo(TField::cmbExch).Text(), "US(USA)");
  EXPECT_EQ(frame.Combo(TField::cmbOrderType).Text(), "Zeit");
  EXPECT_EQ(frame.Combo(TField::cmbMType).Text(), "Bestens");
  EXPECT_EQ(frame.Combo(TField::cmbRef).Text(), "Brief");
  EXPECT_EQ(frame.Combo(TField::cmbFunc).Text(), "Simuliert");
  for (const TField combo : {TField::cmbAccuVol, TField::cmbOpening, TField::cmbClosing, TField::cmbCloseSim,
                             TField::cmbAllInAuc, TField::cmbJoin, TField::cmbIceberg}) {
    EXPECT_EQ(frame.Combo(combo).Text(), "Ja") << frame.Combo(combo).Name();
  }
}

TEST_F(LanguageTest, ASwitchBlanksNoFieldUnlocksNothingAndTellsTheHostNothing) {
  auto& frame = OpenFilled();
  ChooseAlgo(frame, "TWAP");
  Type(frame, "edtSlices", "12");
  Type(frame, "edtPrice", "61.25");
  Type(frame, "deSTime", "2024-05-06 09:30:00");
  for (const std::string_view box : {"cbLockAcct", "cbLockSymbol", "cbLockPrice", "cbLockQty", "cbLockExch",
                                     "cbLockOrderType", "cbLockMOrder"}) {
    Click(frame, box);
  }
  Forget();
  EXPECT_TRUE(frame.SetLanguage(1));
  EXPECT_EQ(frame.Edit(TField::edtAccount).Text(), "A1");
  EXPECT_EQ(frame.Edit(TField::edtSymbol).Text(), "0005");
  EXPECT_EQ(frame.Edit(TField::edtSymbol).Hint(), "0005");
  EXPECT_EQ(frame.Spin(TField::edtPrice).Text(), "61.25");
  EXPECT_EQ(frame.Spin(TField::edtQty).Text(), "800");
  EXPECT_EQ(frame.Spin(TField::edtSlices).Text(), "12");
  EXPECT_EQ(frame.Date(TField::deSTime).Text(), "2024-05-06 09:30:00");
  for (const TField box : {TField::cbLockAcct, TField::cbLockSymbol, TField::cbLockPrice, TField::cbLockQty,
                           TField::cbLockExch, TField::cbLockOrderType, TField::cbLockMOrder}) {
    EXPECT_TRUE(frame.Check(box).Checked()) << frame.Check(box).Name();
  }
  EXPECT_TRUE(Seen("view_notify").empty());
  EXPECT_TRUE(Seen("subscribe").empty());
  EXPECT_TRUE(Seen("store").empty());
}

TEST_F(LanguageTest, ASwitchPutsTheStyleToItsLastItemWhereTheAlgorithmHasStyles) {
  struct TRow {
    std::string_view code;
    std::int32_t index;
  };
  const std::array<TRow, 12> rows{{{"TVOL", 3},
                                   {"TVOL Threshold", 3},
                                   {"TWAP", 3},
                                   {"VWAP", 3},
                                   {"CLOSE", 1},
                                   {"OPEN", 1},
                                   {"ICEBERG", 3},
                                   {"STOP", 1},
                                   {"PEG", 3},
                                   {"MOC", 3},
                                   {"SNIPER", 3},
                                   {"SHORT SELL", 1}}};
  auto& frame = Open();
  Data().texts["Res"]["Res_Algo_Aggressive"] = "Forsch";
  for (const TRow& row : rows) {
    Data().texts["Res"].erase("Res_Algo_Aggressive");
    ChooseAlgo(frame, "TVOL");
    ChooseAlgo(frame, row.code);
    frame.Combo(TField::cmbStyle).SetIndex(1);
    Data().texts["Res"]["Res_Algo_Aggressive"] = "Forsch";
    EXPECT_TRUE(frame.SetLanguage(1));
    const bool rebuilt = row.index == 3;
    EXPECT_EQ(frame.Combo(TField::cmbStyle).Index(), row.index) << row.code;
    EXPECT_EQ(
        frame.Combo(TField::cmbStyle).Items(),
        (TTexts{"Res_Algo_Normal", rebuilt ? "Forsch" : "Res_Algo_Aggressive", "Res_Algo_Passive", "Res_NA"}))
        << row.code;
  }
}

TEST_F(LanguageTest, AnAlgorithmThatWentAwayMeanwhileRunsTheChangeOnceWithAllListsComplete) {
  auto& frame = Open();
  ChooseAlgo(frame, "PEG");
  frame.Spin(TField::edtJoinQty).SetValue(5);
  Data().lists["ALGO/ALGOType/HK"] = {"STOP", "TVOL"};
  Forget();
  EXPECT_TRUE(frame.SetLanguage(3));
  EXPECT_EQ(frame.Combo(TField::cmbOrderType).Text(), "Res_Algo_OrderType_STOP");
  EXPECT_TRUE(Element(frame, "lgSTOP").Showing());
  EXPECT_FALSE(Element(frame, "lgPEG").Showing());
  EXPECT_EQ(frame.Spin(TField::edtJoinQty).Value(), std::nullopt);
  // Once for the algorithm that changed, and once at the end because the form has another size.
  EXPECT_EQ(Seen("view_notify").size(), 2U);
}

TEST_F(LanguageTest, AnOrderTypeThatWentAwayMeanwhileRunsTheChangeOfTheFirstOne) {
  auto& frame = OpenFilled();
  Pick(frame, "cmbMType", "Res_OrderType_AO");
  Data().rights.erase("OEAO");
  EXPECT_TRUE(frame.SetLanguage(3));
  EXPECT_EQ(frame.Combo(TField::cmbMType).Text(), "Res_OrderType_Limit");
  EXPECT_TRUE(frame.Spin(TField::edtPrice).Enabled());
  EXPECT_EQ(frame.Spin(TField::edtPrice).Text(), "60.5");
}

TEST_F(LanguageTest, AnExchangeThatWentAwayMeanwhileUnlocksTheTypeLists) {
  auto& frame = Open();
  Pick(frame, "cmbExch", "US");
  Click(frame, "cbLockOrderType");
  Data().lists["ALGO/Exchange"] = {"HK"};
  EXPECT_TRUE(frame.SetLanguage(3));
  EXPECT_EQ(frame.Combo(TField::cmbExch).Text(), "HK");
  EXPECT_FALSE(frame.Check(TField::cbLockOrderType).Checked());
  EXPECT_EQ(frame.Combo(TField::cmbOrderType).Text(), "Res_Algo_OrderType_VWAP");
}

// The fixed figures are 0.6 times the font size a character and 1.2 times in height. Of a button of 72 by 26,
// 12 are kept free each way, so that the height alone allows 11.
TEST_F(LanguageTest, TheSellCaptionSetsTheFontOfBothSideButtons) {
  struct TRow {
    std::string sell;
    std::int32_t size;
  };
  const std::vector<TRow> rows{
      {"S", 11},          // held by the height: 11 × 1.2 = 13.2 of 14
      {"123456789", 11},  // 9 × 6.6 = 59.4 of 60
      {"1234567890", 10}, {"12345678901", 9}, {"1234567890123456789012345", 4}, {std::string(100, 'x'), 1}};
  auto& frame = Open();
  frame.Control(TField::btnSell).SetSize({72, 26});
  Data().texts["Res"]["Res_Side_Buy"] = "B";
  for (const TRow& row : rows) {
    Speak(row.sell);
    EXPECT_TRUE(frame.SetLanguage(1));
    ExpectSideFont(frame, row.size, row.sell);
  }
}

TEST_F(LanguageTest, ALongBuyCaptionShrinksNothing) {
  auto& frame = Open();
  frame.Control(TField::btnSell).SetSize({72, 26});
  Speak("S");
  Data().texts["Res"]["Res_Side_Buy"] = "a buy caption that is far too long";
  EXPECT_TRUE(frame.SetLanguage(1));
  ExpectSideFont(frame, 11, "long buy caption");
}

TEST_F(LanguageTest, ALargeSellButtonTakesTheLargestFontAndNoMore) {
  auto& frame = Open();
  Speak("S");
  frame.Control(TField::btnSell).SetSize({200, 120});
  EXPECT_TRUE(frame.SetLanguage(1));
  ExpectSideFont(frame, 36, "large button");
  // 43.2 high at 36: a height of 55.2 still holds it with 12 kept free, one of 55 does not.
  frame.Control(TField::btnSell).SetSize({200, 55.5});
  EXPECT_TRUE(frame.SetLanguage(1));
  ExpectSideFont(frame, 36, "55.5 high");
  frame.Control(TField::btnSell).SetSize({200, 55});
  EXPECT_TRUE(frame.SetLanguage(1));
  ExpectSideFont(frame, 35, "55 high");
}

}  // namespace
}  // namespace algo::tests
