// The layout text read back: each key, what is passed over, and the order in which the keys are applied.

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "tests/views/table_coverage.h"
#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

using std::string_view;

class LayoutReading : public TTerminalTest {
 protected:
  LayoutReading() : FFrame(Open()) { Forget(); }

  std::string Text(string_view control) { return Named(FFrame, control).Text(); }
  bool Checked(string_view box) { return dynamic_cast<forms::TCheckBox&>(Named(FFrame, box)).Checked(); }

  views::entry::TAlgoOrderEntryFrame& FFrame;
};

TEST_F(LayoutReading, AnswersTrueAndTellsTheHostOnceThatTheViewChanged) {
  EXPECT_TRUE(FFrame.SetLayoutData("VolPct=20"));
  const auto notified = Seen("view_notify");
  ASSERT_EQ(notified.size(), 1U);
  EXPECT_EQ(notified.front().number, 1025);
  EXPECT_TRUE(Told().empty());
}

TEST_F(LayoutReading, PutsEachNumberIntoTheEditorOfItsKey) {
  struct TRow {
    const char* key;
    const char* editor;
  };
  const std::vector<TRow> rows{
      TRow{"MinQty", "edtMinQty"},         TRow{"ServePct", "edtServePct"},
      TRow{"ShowQty", "edtShowQty"},       TRow{"Timeout", "edtTimeOut"},
      TRow{"TickDiff", "edtTickDiff"},     TRow{"JoinThr", "edtJoinThr"},
      TRow{"JoinQty", "edtJoinQty"},       TRow{"RandTimeout", "edtRandTimeOut"},
      TRow{"DiffPct", "edtDiffPct"},       TRow{"MaxShowQty", "edtMaxShowQty"},
      TRow{"RandPct", "edtRandPct"},       TRow{"ReloadPct", "edtReloadPct"},
      TRow{"VolPct", "edtVolPct"},         TRow{"MaxVolPct", "edtMaxVolPct"},
      TRow{"MinOrdAmt", "edtMinOrdAmt"},   TRow{"WPx", "edtWPx"},
      TRow{"ThrPx1", "edtThrPx1"},         TRow{"ThrPx2", "edtThrPx2"},
      TRow{"ThrVolPct1", "edtThrVolPct1"}, TRow{"ThrVolPct2", "edtThrVolPct2"},
      TRow{"Waves", "edtSlices"},          TRow{"OpenPct", "edtOpenPct"},
      TRow{"ClosePct", "edtClosePct"},     TRow{"StopLossPx", "edtStopLossPx"},
      TRow{"StopQty", "edtStopQty"},       TRow{"Price", "edtPrice"},
  };
  std::vector<std::string_view> names{"edtQty"};  // read by a rule of its own
  for (const TRow& row : rows) names.emplace_back(row.editor);
  ExpectNamesEvery(names, [](const auto& row) { return row.kind == views::entry::TFieldKind::Spin; });
  for (const TRow& row : rows) {
    auto& editor = Spin(FFrame, row.editor);
    const std::string start = std::string(row.key) + "=";
    for (const double value : {12.0, -3.0, 1234567.5}) {
      FFrame.SetLayoutData(start + std::to_string(value));
      EXPECT_EQ(editor.Value(), value) << row.key;
    }
    editor.SetValue(7);
    for (const char* nothing : {"", "0", "0.00", "-0", "x", "5x", "nan", "inf", "1e999", "0x10"}) {
      FFrame.SetLayoutData(start + nothing);
      EXPECT_EQ(editor.Value(), 7) << row.key << "=" << nothing;
    }
    editor.SetValue(std::nullopt);
    FFrame.SetLayoutData(start + "0");
    EXPECT_EQ(editor.Value(), std::nullopt) << row.key;
  }
}

TEST_F(LayoutReading, TakesAWholeQuantityAboveZeroAlone) {
  for (const char* taken : {"100", " 100 ", "+100"}) {
    Spin(FFrame, "edtQty").SetValue(7);
    FFrame.SetLayoutData("\"Quantity=" + std::string(taken) + "\"");
    EXPECT_EQ(Spin(FFrame, "edtQty").Value(), 100) << taken;
  }
  for (const char* passed : {"0", "-5", "1.5", "1e3", "x", "99999999999999999999", ""}) {
    Spin(FFrame, "edtQty").SetValue(7);
    FFrame.SetLayoutData("Quantity=" + std::string(passed));
    EXPECT_EQ(Spin(FFrame, "edtQty").Value(), 7) << passed;
  }
}

TEST_F(LayoutReading, PutsEachBoxWhereItsKeySays) {
  struct TBox {
    const char* key;
    const char* box;
  };
  for (const TBox& row : {TBox{"Account-Lock", "cbLockAcct"}, TBox{"Symbol-Lock", "cbLockSymbol"},
                          TBox{"Quantity-Lock", "cbLockQty"}, TBox{"Price-Lock", "cbLockPrice"},
                          TBox{"OrderType-Lock", "cbLockOrderType"}, TBox{"Exchange-Lock", "cbLockExch"},
                          TBox{"Popup", "cbPopup"}, TBox{"Clear", "cbClear"}}) {
    const std::string start = std::string(row.key) + "=";
    for (const char* yes : {"1", "True", "TRUE", "true", "2", "-1"}) {
      FFrame.SetLayoutData(start + "0");
      EXPECT_TRUE(FFrame.SetLayoutData(start + yes));
      EXPECT_TRUE(Checked(row.box)) << start << yes;
    }
    for (const char* no : {"0", "False", "FALSE", "fAlSe", "00", "-0"}) {
      FFrame.SetLayoutData(start + "1");
      EXPECT_TRUE(FFrame.SetLayoutData(start + no));
      EXPECT_FALSE(Checked(row.box)) << start << no;
    }
    FFrame.SetLayoutData(start + "1");
    FFrame.SetLayoutData(start);
    EXPECT_TRUE(Checked(row.box)) << row.key;
  }
  EXPECT_TRUE(Told().empty());
}

TEST_F(LayoutReading, StoresNoSettingForTheBoxesThatItChecks) {
  FFrame.SetLayoutData("Popup=0,Clear=1");
  EXPECT_TRUE(Seen("store").empty());
}

TEST_F(LayoutReading, StopsAtABoxThatIsNoBoolean) {
  for (const char* wrong : {"yes", "1.0", "tru", "x1"}) {
    FFrame.SetLayoutData("Account-Lock=0,Symbol-Lock=0,Quantity-Lock=0,Clear=0");
    Spin(FFrame, "edtVolPct").SetValue(9);
    Forget();
    EXPECT_FALSE(FFrame.SetLayoutData("Account-Lock=1,VolPct=20,Quantity=300,Symbol-Lock=" +
                                      std::string(wrong) + ",Quantity-Lock=1,Clear=1"));
    EXPECT_EQ(Told().size(), 1U) << wrong;
    EXPECT_TRUE(Seen("view_notify").empty()) << wrong;
    EXPECT_TRUE(Checked("cbLockAcct")) << wrong;
    EXPECT_FALSE(Checked("cbLockSymbol")) << wrong;
    EXPECT_FALSE(Checked("cbLockQty")) << wrong;
    EXPECT_FALSE(Checked("cbClear")) << wrong;
    EXPECT_EQ(Spin(FFrame, "edtQty").Value(), std::nullopt) << wrong;
    EXPECT_EQ(Spin(FFrame, "edtVolPct").Value(), 9) << wrong;
  }
}

TEST_F(LayoutReading, ChoosesEachEntryByItsNameInTheList) {
  struct TRow {
    const char* key;
    const char* combo;
    std::vector<const char*> entries;
  };
  const std::vector<const char*> yesNo{"Res_No", "Res_Yes", "Res_NA"};
  const std::vector<TRow> rows{
      {"Style", "cmbStyle", {"Res_Algo_Normal", "Res_Algo_Aggressive", "Res_Algo_Passive", "Res_NA"}},
      {"AccuVol", "cmbAccuVol", yesNo},
      {"Opening", "cmbOpening", yesNo},
      {"Closing", "cmbClosing", yesNo},
      {"CloseSim", "cmbCloseSim", yesNo},
      {"Func",
       "cmbFunc",
       {"Res_Algo_Func_Config", "Res_Algo_Func_Native", "Res_Algo_Func_Simualted", "Res_NA"}},
      {"AllInAuc", "cmbAllInAuc", yesNo},
      {"Iceberg", "cmbIceberg", yesNo},
      {"Ref",
       "cmbRef",
       {"OrderSide", "Opposite", "Last", "Bid", "Ask", "Low", "High", "VWAP", "Mid", "Bid2", "Bid3", "Bid4",
        "Bid5", "Ask2", "Ask3", "Ask4", "Ask5", "N\\A"}},
      {"Join", "cmbJoin", yesNo},
      {"Type",
       "cmbMType",
       {"Res_OrderType_Limit", "Res_OrderType_Market", "Res_OrderType_StopMarket", "Res_OrderType_StopLimit",
        "Res_OrderType_AO", "Res_OrderType_ALO", "Res_OrderType_ELO", "Res_OrderType_MOO",
        "Res_OrderType_MOC", "Res_OrderType_LOC"}},
      {"OrderType",
       "cmbOrderType",
       {"Res_Algo_OrderType_TVOL", "Res_Algo_OrderType_TVOLTH", "Res_Algo_OrderType_TWAP",
        "Res_Algo_OrderType_VWAP", "Res_Algo_OrderType_CLOSE", "Res_Algo_OrderType_OPEN",
        "Res_Algo_OrderType_ICEBERG", "Res_Algo_OrderType_STOP", "Res_Algo_OrderType_PEG",
        "Res_Algo_OrderType_MOC", "Res_Algo_OrderType_SNIPER", "Res_Algo_OrderType_SHORTSELL"}},
      {"Exchange", "cmbExch", {"HK", "US"}},
  };
  std::vector<std::string_view> names;
  for (const TRow& row : rows) names.emplace_back(row.combo);
  ExpectNamesEvery(names, [](const auto& row) { return row.kind == views::entry::TFieldKind::Combo; });
  for (const TRow& row : rows) {
    const std::string start = std::string(row.key) + "=";
    for (std::size_t i = 0; i < row.entries.size(); ++i) {
      FFrame.SetLayoutData(start + row.entries[i]);
      EXPECT_EQ(Combo(FFrame, row.combo).Index(), static_cast<std::int32_t>(i)) << start << row.entries[i];
      // Neither the place nor another name chooses anything.
      for (const char* unknown : {"0", "Res_Unknown", "", "-1"}) {
        FFrame.SetLayoutData(start + unknown);
        EXPECT_EQ(Combo(FFrame, row.combo).Index(), static_cast<std::int32_t>(i)) << start << unknown;
      }
    }
  }
  EXPECT_TRUE(Told().empty());
}

TEST_F(LayoutReading, TakesTheTimesAsTheyStand) {
  for (const char* key : {"STime", "ETime"}) {
    const std::string control = std::string("de") + key;
    FFrame.SetLayoutData("\"" + std::string(key) + "=2024-01-15 09:30:00\"");
    EXPECT_EQ(Text(control), "2024-01-15 09:30:00") << key;
    FFrame.SetLayoutData(std::string(key) + "=");
    EXPECT_EQ(Text(control), "2024-01-15 09:30:00") << key;
    FFrame.SetLayoutData(std::string(key) + "=2024-02-29");
    EXPECT_EQ(Text(control), "2024-02-29 00:00:00") << key;
    FFrame.SetLayoutData(std::string(key) + "=tomorrow");
    EXPECT_EQ(Text(control), "") << key;
  }
}

}  // namespace
}  // namespace algo::tests
