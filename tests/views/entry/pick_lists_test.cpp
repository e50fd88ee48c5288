// The exchanges, algorithms and fixed choices that the form offers, and the bounds of its numbers.

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tests/views/table_coverage.h"
#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

using TTexts = std::vector<std::string>;

using PickListsTest = TTerminalTest;

TEST_F(PickListsTest, ListsTheExchangesInTheConfiguredOrderWithTheirNames) {
  Data().lists["ALGO/Exchange"] = {"US", "", "HK", "XX"};
  Data().texts["Exchange"] = {{"HK", "Hong Kong"}, {"US", "United States"}};
  auto& frame = Open();
  EXPECT_EQ(Combo(frame, "cmbExch").Items(), (TTexts{"US(United States)", "HK(Hong Kong)", "XX"}));
  EXPECT_EQ(Combo(frame, "cmbExch").Text(), "US(United States)");
}

TEST_F(PickListsTest, ATerminalWithoutExchangesLeavesTheListsEmptyAndNothingChosen) {
  Data().lists.clear();
  auto& frame = Open();
  for (const std::string_view combo : {"cmbExch", "cmbOrderType", "cmbMType"}) {
    EXPECT_EQ(Combo(frame, combo).Items(), TTexts()) << combo;
    EXPECT_EQ(Combo(frame, combo).Index(), -1) << combo;
  }
  EXPECT_EQ(Told(), TTexts());
}

TEST_F(PickListsTest, AnExchangeThatIsNotOfferedAnyMoreGivesWayToTheFirst) {
  auto& frame = Open();
  Pick(frame, "cmbExch", "US");
  frame.SetLanguage(3);
  EXPECT_EQ(Combo(frame, "cmbExch").Text(), "US");

  Data().lists["ALGO/Exchange"] = {"XX", "HK"};
  frame.SetLanguage(3);
  EXPECT_EQ(Combo(frame, "cmbExch").Text(), "XX");
  EXPECT_EQ(Combo(frame, "cmbOrderType").Items(), TTexts());
}

TEST_F(PickListsTest, ListsEveryAlgorithmByItsOwnTextInTheConfiguredOrder) {
  struct TRow {
    std::string code;
    std::string resourceId;
  };
  // Not the order of any table, so that the order can only come from the settings.
  const std::vector<TRow> rows{{"SHORT SELL", "Res_Algo_OrderType_SHORTSELL"},
                               {"PEG", "Res_Algo_OrderType_PEG"},
                               {"TVOL Threshold", "Res_Algo_OrderType_TVOLTH"},
                               {"MOC", "Res_Algo_OrderType_MOC"},
                               {"OPEN", "Res_Algo_OrderType_OPEN"},
                               {"VWAP", "Res_Algo_OrderType_VWAP"},
                               {"ICEBERG", "Res_Algo_OrderType_ICEBERG"},
                               {"TVOL", "Res_Algo_OrderType_TVOL"},
                               {"CLOSE", "Res_Algo_OrderType_CLOSE"},
                               {"SNIPER", "Res_Algo_OrderType_SNIPER"},
                               {"STOP", "Res_Algo_OrderType_STOP"},
                               {"TWAP", "Res_Algo_OrderType_TWAP"}};
  TTexts codes;
  TTexts shown;
  for (const TRow& row : rows) {
    codes.push_back(row.code);
    Data().texts["Res"][row.resourceId] = "text of " + row.code;
    shown.push_back("text of " + row.code);
  }
  Data().lists["ALGO/ALGOType/HK"] = codes;
  EXPECT_EQ(Combo(Open(), "cmbOrderType").Items(), shown);
}

TEST_F(PickListsTest, KnowsAlgorithmCodesInAnyLetterCaseAndSkipsAllOthersWithoutAMessage) {
  Data().lists["ALGO/ALGOType/HK"] = {"tvol THRESHOLD", "POV", "", "TVOLThreshold", " VWAP", "Short Sell"};
  EXPECT_EQ(Combo(Open(), "cmbOrderType").Items(),
            (TTexts{"Res_Algo_OrderType_TVOLTH", "Res_Algo_OrderType_SHORTSELL"}));
  EXPECT_EQ(Told(), TTexts());
}

TEST_F(PickListsTest, AChangeOfExchangeUnlocksBothTypeListsAndKeepsWhatItOffersToo) {
  auto& frame = Open();
  ChooseAlgo(frame, "TWAP");
  Pick(frame, "cmbMType", "Res_OrderType_Market");
  Click(frame, "cbLockMOrder");
  Click(frame, "cbLockOrderType");
  ASSERT_FALSE(Combo(frame, "cmbMType").Enabled());
  ASSERT_FALSE(Combo(frame, "cmbOrderType").Enabled());

  Pick(frame, "cmbExch", "US");
  for (const auto field : {views::entry::TField::cbLockMOrder, views::entry::TField::cbLockOrderType}) {
    EXPECT_FALSE(frame.Check(field).Checked());
  }
  EXPECT_TRUE(Combo(frame, "cmbMType").Enabled());
  EXPECT_TRUE(Combo(frame, "cmbOrderType").Enabled());
  EXPECT_EQ(Combo(frame, "cmbOrderType").Items(),
            (TTexts{"Res_Algo_OrderType_VWAP", "Res_Algo_OrderType_TWAP"}));
  EXPECT_EQ(Combo(frame, "cmbOrderType").Text(), "Res_Algo_OrderType_TWAP");
  EXPECT_EQ(Combo(frame, "cmbMType").Items(), (TTexts{"Res_OrderType_Limit", "Res_OrderType_Market"}));
  EXPECT_EQ(Combo(frame, "cmbMType").Text(), "Res_OrderType_Market");
}

TEST_F(PickListsTest, AChangeOfExchangeGoesToTheFirstOfWhatItDoesNotOffer) {
  auto& frame = Open();
  ChooseAlgo(frame, "PEG");
  Pick(frame, "cmbMType", "Res_OrderType_LOC");
  Pick(frame, "cmbExch", "US");
  EXPECT_EQ(Combo(frame, "cmbOrderType").Text(), "Res_Algo_OrderType_VWAP");
  EXPECT_EQ(Combo(frame, "cmbMType").Text(), "Res_OrderType_Limit");
  EXPECT_TRUE(Element(frame, "lgSlices").Showing());
  EXPECT_FALSE(Element(frame, "lgPEG").Showing());
}

TEST_F(PickListsTest, AChangeOfExchangeBlanksNoFieldOfAnAlgorithmThatItKeeps) {
  auto& frame = Open();
  ChooseAlgo(frame, "TWAP");
  Type(frame, "edtSlices", "7");
  Leave(frame);
  Pick(frame, "cmbExch", "US");
  EXPECT_EQ(Spin(frame, "edtSlices").Value(), 7.0);
}

TEST_F(PickListsTest, EachChoiceOffersItsTextsAndStartsWhereANewFormHasIt) {
  struct TRow {
    std::string_view control;
    TTexts items;
    std::int32_t index;
  };
  const TTexts yesNo{"Res_No", "Res_Yes", "Res_NA"};
  const TTexts style{"Res_Algo_Normal", "Res_Algo_Aggressive", "Res_Algo_Passive", "Res_NA"};
  const std::vector<TRow> rows{
      {"cmbAccuVol", yesNo, 2},
      {"cmbOpening", yesNo, 2},
      {"cmbClosing", yesNo, 0},
      {"cmbCloseSim", yesNo, 2},
      {"cmbAllInAuc", yesNo, 2},
      {"cmbJoin", yesNo, 2},
      {"cmbIceberg", yesNo, 2},
      {"cmbStyle", style, 3},
      {"cmbFunc", {"Res_Algo_Func_Config", "Res_Algo_Func_Native", "Res_Algo_Func_Simualted", "Res_NA"}, 0}};
  std::vector<std::string_view> names{"cmbRef"};  // its long list has a test of its own
  for (const TRow& row : rows) names.push_back(row.control);
  ExpectNamesEvery(names, HoldsChoice);
  auto& frame = Open();
  for (const TRow& row : rows) {
    EXPECT_EQ(Combo(frame, row.control).Items(), row.items) << row.control;
    EXPECT_EQ(Combo(frame, row.control).Index(), row.index) << row.control;
  }
}

TEST_F(PickListsTest, VwapAloneStartsWithClosingNotSet) {
  auto& frame = Open();
  for (const std::string& code : Data().lists["ALGO/ALGOType/HK"]) {
    ChooseAlgo(frame, code);
    EXPECT_EQ(Combo(frame, "cmbClosing").Index(), code == "VWAP" ? 2 : 0) << code;
  }
}

TEST_F(PickListsTest, TheMaximumVolumePercentKeepsTheBoundThatWasSetLast) {
  struct TRow {
    std::string_view code;
    double maximum;
  };
  const std::vector<TRow> rows{{"TVOL", 100},         {"ICEBERG", 100}, {"PEG", 80},  {"TVOL", 80},
                               {"TWAP", 75},          {"CLOSE", 75},    {"MOC", 80},  {"SNIPER", 80},
                               {"VWAP", 75},          {"STOP", 75},     {"OPEN", 75}, {"SHORT SELL", 75},
                               {"TVOL Threshold", 75}};
  auto& frame = Open();
  for (const TRow& row : rows) {
    ChooseAlgo(frame, row.code);
    EXPECT_EQ(Spin(frame, "edtMaxVolPct").Max(), row.maximum) << row.code;
  }
}

}  // namespace
}  // namespace algo::tests
