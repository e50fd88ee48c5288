// Emptying the form: what is emptied, to where the choices go, and what a lock keeps.

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
using views::entry::TField;

constexpr std::array Numbers{
    TField::edtThrPx1,     TField::edtThrPx2,      TField::edtStopLossPx, TField::edtWPx,
    TField::edtClosePct,   TField::edtDiffPct,     TField::edtJoinQty,    TField::edtJoinThr,
    TField::edtMaxShowQty, TField::edtMaxVolPct,   TField::edtMinOrdAmt,  TField::edtMinQty,
    TField::edtOpenPct,    TField::edtRandTimeOut, TField::edtServePct,   TField::edtShowQty,
    TField::edtSlices,     TField::edtStopQty,     TField::edtThrVolPct1, TField::edtThrVolPct2,
    TField::edtTickDiff,   TField::edtTimeOut,     TField::edtVolPct,     TField::edtRandPct,
    TField::edtReloadPct};

struct TChoiceRow {
  TField field;
  std::int32_t emptied;
};

constexpr std::array Choices{
    TChoiceRow{TField::cmbJoin, 2},     TChoiceRow{TField::cmbAccuVol, 2}, TChoiceRow{TField::cmbAllInAuc, 2},
    TChoiceRow{TField::cmbCloseSim, 2}, TChoiceRow{TField::cmbIceberg, 2}, TChoiceRow{TField::cmbOpening, 2},
    TChoiceRow{TField::cmbClosing, 0},  TChoiceRow{TField::cmbFunc, 0},    TChoiceRow{TField::cmbRef, 17}};

constexpr std::array<std::string_view, 7> Boxes{"cbLockAcct", "cbLockSymbol",    "cbLockPrice", "cbLockQty",
                                                "cbLockExch", "cbLockOrderType", "cbLockMOrder"};

class ClearAndLocksTest : public TTerminalTest {
 protected:
  /// A form on which nothing stands where emptying would put it.
  views::entry::TAlgoOrderEntryFrame& OpenFull() {
    auto& frame = OpenFilled();
    Pick(frame, "cmbExch", "US");
    Pick(frame, "cmbOrderType", "Res_Algo_OrderType_TWAP");
    FillAlgoFields(frame);
    return frame;
  }

  void FillAlgoFields(views::entry::TAlgoOrderEntryFrame& frame) {
    for (const TField number : Numbers) frame.Spin(number).SetValue(7);
    for (const TChoiceRow& choice : Choices) frame.Combo(choice.field).SetIndex(1);
    frame.Combo(TField::cmbStyle).SetIndex(1);
    frame.Date(TField::deSTime).SetText("2024-05-06 09:30:00");
    frame.Date(TField::deETime).SetText("2024-05-06 16:00:00");
  }

  void ExpectAlgoFieldsEmpty(views::entry::TAlgoOrderEntryFrame& frame, std::int32_t style,
                             const std::string& when) {
    for (const TField number : Numbers) {
      EXPECT_EQ(frame.Spin(number).Value(), std::nullopt) << frame.Spin(number).Name() << " " << when;
      EXPECT_EQ(frame.Spin(number).Text(), "") << frame.Spin(number).Name() << " " << when;
    }
    for (const TChoiceRow& choice : Choices) {
      EXPECT_EQ(frame.Combo(choice.field).Index(), choice.emptied)
          << frame.Combo(choice.field).Name() << " " << when;
    }
    EXPECT_EQ(frame.Combo(TField::cmbStyle).Index(), style) << when;
    EXPECT_EQ(frame.Date(TField::deSTime).Text(), "") << when;
    EXPECT_EQ(frame.Date(TField::deETime).Text(), "") << when;
  }
};

TEST_F(ClearAndLocksTest, TheTablesNameEveryParameterAndEveryLock) {
  auto& frame = Open();
  std::vector<std::string_view> parameters{"cmbStyle", "deSTime", "deETime"};
  for (const TField number : Numbers) parameters.push_back(frame.Spin(number).Name());
  for (const TChoiceRow& choice : Choices) parameters.push_back(frame.Combo(choice.field).Name());
  ExpectNamesEvery(parameters, [](const auto& row) { return row.param.has_value(); });
  ExpectNamesEvery({Boxes.begin(), Boxes.end()},
                   [](const auto& row) { return row.name.starts_with("cbLock"); });
}

TEST_F(ClearAndLocksTest, ClearEmptiesEveryFieldAndKeepsTheSide) {
  auto& frame = OpenFull();
  Click(frame, "btnClear");
  EXPECT_EQ(frame.Edit(TField::edtAccount).Text(), "");
  EXPECT_EQ(frame.Edit(TField::edtSymbol).Text(), "");
  EXPECT_EQ(frame.Edit(TField::edtSymbol).Hint(), "");
  EXPECT_EQ(frame.Spin(TField::edtPrice).Text(), "");
  EXPECT_EQ(frame.Spin(TField::edtQty).Text(), "");
  EXPECT_EQ(frame.Combo(TField::cmbExch).Text(), "HK");
  EXPECT_EQ(frame.Combo(TField::cmbOrderType).Text(), "Res_Algo_OrderType_TVOL");
  EXPECT_EQ(frame.Combo(TField::cmbMType).Text(), "Res_OrderType_Limit");
  ExpectAlgoFieldsEmpty(frame, 3, "after clearing");
  EXPECT_TRUE(frame.SideButton(TField::btnBuy).Pressed());
  EXPECT_EQ(Told(), TTexts());
}

TEST_F(ClearAndLocksTest, ClearHasTheHostEditorsReactToTheEmptiedAccountAndSymbol) {
  auto& frame = OpenFull();
  ASSERT_EQ(LeftBehind().subscriptions, 1U);
  Forget();
  Click(frame, "btnClear");
  EXPECT_EQ(Seen("unsubscribe").size(), 1U);
  EXPECT_EQ(LeftBehind().subscriptions, 0U);
  host::TCustomClientOrder order;
  EXPECT_FALSE(frame.GetOrder(order));
  Type(frame, "edtSymbol", "0005");
  Leave(frame);
  Forget();
  EXPECT_FALSE(frame.GetOrder(order)) << "the account went with its field";
}

TEST_F(ClearAndLocksTest, ClearKeepsEveryLockedFieldAndEmptiesTheAlgoFieldsAllTheSame) {
  auto& frame = OpenFull();
  Pick(frame, "cmbMType", "Res_OrderType_Market");
  Pick(frame, "cmbMType", "Res_OrderType_Limit");
  for (const std::string_view box : Boxes) Click(frame, box);
  Click(frame, "btnClear");
  EXPECT_EQ(frame.Edit(TField::edtAccount).Text(), "A1");
  EXPECT_EQ(frame.Edit(TField::edtSymbol).Text(), "0005");
  EXPECT_EQ(frame.Edit(TField::edtSymbol).Hint(), "0005");
  EXPECT_EQ(frame.Spin(TField::edtPrice).Text(), "60.5");
  EXPECT_EQ(frame.Spin(TField::edtQty).Text(), "800");
  EXPECT_EQ(frame.Combo(TField::cmbExch).Text(), "US");
  EXPECT_EQ(frame.Combo(TField::cmbOrderType).Text(), "Res_Algo_OrderType_TWAP");
  EXPECT_EQ(frame.Combo(TField::cmbMType).Text(), "Res_OrderType_Limit");
  ExpectAlgoFieldsEmpty(frame, 3, "with everything locked");
  EXPECT_EQ(LeftBehind().subscriptions, 1U);
}

TEST_F(ClearAndLocksTest, EachLockAloneKeepsItsOwnField) {
  struct TRow {
    std::string_view box;
    std::string_view control;
    std::string kept;
    std::string cleared;
  };
  const std::array<TRow, 6> rows{
      {{"cbLockAcct", "edtAccount", "A1", ""},
       {"cbLockSymbol", "edtSymbol", "0005", ""},
       {"cbLockPrice", "edtPrice", "60.5", ""},
       {"cbLockQty", "edtQty", "800", ""},
       {"cbLockExch", "cmbExch", "US", "HK"},
       {"cbLockOrderType", "cmbOrderType", "Res_Algo_OrderType_TWAP", "Res_Algo_OrderType_TVOL"}}};
  for (const TRow& locked : rows) {
    auto& frame = OpenFull();
    Click(frame, locked.box);
    Click(frame, "btnClear");
    for (const TRow& row : rows) {
      // With the exchange kept, the first algorithm is that of the kept exchange.
      const bool ofKeptExchange = locked.box == "cbLockExch" && row.control == "cmbOrderType";
      const std::string expected = row.box == locked.box ? row.kept
                                   : ofKeptExchange      ? "Res_Algo_OrderType_VWAP"
                                                         : row.cleared;
      EXPECT_EQ(Named(frame, row.control).Text(), expected) << row.control << " under " << locked.box;
    }
  }
}

TEST_F(ClearAndLocksTest, TheOrderTypeLockKeepsTheOrderTypeWhenTheExchangeIsCleared) {
  auto& frame = OpenFull();
  Pick(frame, "cmbMType", "Res_OrderType_Market");
  Click(frame, "cbLockMOrder");
  Click(frame, "btnClear");
  EXPECT_EQ(frame.Combo(TField::cmbExch).Text(), "HK");
  EXPECT_EQ(frame.Combo(TField::cmbMType).Text(), "Res_OrderType_Market");
  EXPECT_FALSE(frame.Check(TField::cbLockMOrder).Checked()) << "another exchange unlocks the type lists";
}

TEST_F(ClearAndLocksTest, AMarketTypeThatIsClearedLeavesThePriceToBeTyped) {
  auto& frame = OpenFilled();
  Pick(frame, "cmbMType", "Res_OrderType_Market");
  Click(frame, "btnClear");
  EXPECT_EQ(frame.Combo(TField::cmbMType).Text(), "Res_OrderType_Limit");
  EXPECT_TRUE(frame.Spin(TField::edtPrice).Enabled());
}

TEST_F(ClearAndLocksTest, EachLockBoxDisablesItsOwnFieldForAsLongAsItIsChecked) {
  struct TRow {
    std::string_view box;
    std::string_view control;
  };
  const std::array<TRow, 7> rows{{{"cbLockAcct", "edtAccount"},
                                  {"cbLockSymbol", "edtSymbol"},
                                  {"cbLockPrice", "edtPrice"},
                                  {"cbLockQty", "edtQty"},
                                  {"cbLockExch", "cmbExch"},
                                  {"cbLockOrderType", "cmbOrderType"},
                                  {"cbLockMOrder", "cmbMType"}}};
  auto& frame = Open();
  for (const TRow& pressed : rows) {
    for (const bool locked : {true, false}) {
      Click(frame, pressed.box);
      for (const TRow& row : rows) {
        EXPECT_EQ(Named(frame, row.control).Enabled(), !(locked && row.box == pressed.box))
            << row.control << " under " << pressed.box;
      }
    }
  }
}

TEST_F(ClearAndLocksTest, ClearOnAFormWithoutListsLeavesNothingChosen) {
  Data().lists.clear();
  auto& frame = Open();
  for (const TField number : Numbers) frame.Spin(number).SetValue(7);
  Click(frame, "btnClear");
  ExpectAlgoFieldsEmpty(frame, -1, "without lists");
  for (const TField combo : {TField::cmbExch, TField::cmbOrderType, TField::cmbMType}) {
    EXPECT_EQ(frame.Combo(combo).Index(), -1) << frame.Combo(combo).Name();
  }
  EXPECT_EQ(Told(), TTexts());
}

TEST_F(ClearAndLocksTest, ClearGivesAUserOfOneAccountTheProfilesAccountAgain) {
  Data().profile = {2, false, "A1", ""};
  auto& frame = Open();
  Click(frame, "btnBuy");
  Data().profile.account = "A2";
  Click(frame, "btnClear");
  Type(frame, "edtSymbol", "0005");
  Leave(frame);
  host::TCustomClientOrder order;
  EXPECT_TRUE(frame.GetOrder(order));
  EXPECT_EQ(order.account, "A2");
}

TEST_F(ClearAndLocksTest, AChangeOfAlgorithmEmptiesTheAlgoFieldsAndLeavesTheOrdersOwn) {
  struct TRow {
    std::string_view code;
    std::int32_t style;  ///< the last item, or what was chosen before, for an algorithm without styles
  };
  const std::array<TRow, 11> rows{{{"TVOL Threshold", 3},
                                   {"TWAP", 3},
                                   {"CLOSE", 1},
                                   {"OPEN", 1},
                                   {"ICEBERG", 3},
                                   {"STOP", 1},
                                   {"PEG", 3},
                                   {"MOC", 3},
                                   {"SNIPER", 3},
                                   {"SHORT SELL", 1},
                                   {"TVOL", 3}}};
  auto& frame = OpenFilled();
  for (const TRow& row : rows) {
    FillAlgoFields(frame);
    ChooseAlgo(frame, row.code);
    ExpectAlgoFieldsEmpty(frame, row.style, std::string(row.code));
    EXPECT_EQ(frame.Edit(TField::edtAccount).Text(), "A1") << row.code;
    EXPECT_EQ(frame.Edit(TField::edtSymbol).Text(), "0005") << row.code;
    EXPECT_EQ(frame.Spin(TField::edtPrice).Text(), "60.5") << row.code;
    EXPECT_EQ(frame.Spin(TField::edtQty).Text(), "800") << row.code;
  }
}

TEST_F(ClearAndLocksTest, TheSameAlgorithmPickedAgainEmptiesNothing) {
  auto& frame = OpenFilled();
  FillAlgoFields(frame);
  Pick(frame, "cmbOrderType", "Res_Algo_OrderType_TVOL");
  EXPECT_EQ(frame.Spin(TField::edtVolPct).Value(), 7.0);
}

}  // namespace
}  // namespace algo::tests
