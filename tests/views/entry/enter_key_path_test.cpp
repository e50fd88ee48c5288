// Where Enter leads from each field. The lists are irregular on purpose, so they are stated here field by
// field and each entry of each list is looked at by itself.

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/views/shown_form.h"
#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

using TNames = std::vector<std::string>;

const TNames& MainOrder() {
  static const TNames order{
      "edtAccount",    "edtSymbol",     "edtPrice",     "edtQty",       "cmbExch",        "cmbMType",
      "cmbOrderType",  "edtVolPct",     "edtMaxVolPct", "edtThrPx1",    "edtThrVolPct1",  "edtThrPx2",
      "edtThrVolPct2", "cmbJoin",       "edtJoinThr",   "edtJoinQty",   "cmbRef",         "edtDiffPct",
      "edtTickDiff",   "edtMinQty",     "edtServePct",  "edtTimeOut",   "edtRandTimeOut", "cmbIceberg",
      "edtShowQty",    "edtMaxShowQty", "edtRandPct",   "edtReloadPct", "cmbFunc",        "edtMinOrdAmt",
      "edtWPx",        "cmbOpening",    "edtOpenPct",   "cmbClosing",   "edtClosePct",    "cmbStyle",
      "edtStopLossPx", "edtStopQty",    "deSTime",      "deETime",      "btnBuy",
  };
  return order;
}

/// The main order from `first` to `last`.
TNames Run(const std::string& first, const std::string& last) {
  const auto& order = MainOrder();
  const auto from = std::find(order.begin(), order.end(), first);
  const auto to = std::find(from, order.end(), last);
  return {from, to + 1};
}

TNames Before(TNames names, const TNames& rest) {
  names.insert(names.end(), rest.begin(), rest.end());
  return names;
}

struct TRow {
  std::string field;
  TNames candidates;
};

const std::vector<TRow>& Rows() {
  static const TNames fromAccuVol{
      "edtMaxVolPct",  "edtMinOrdAmt", "edtWPx",        "cmbOpening", "cmbClosing", "edtThrPx1",
      "edtThrVolPct1", "edtThrPx2",    "edtThrVolPct2", "edtSlices",  "edtOpenPct", "cmbCloseSim",
      "edtClosePct",   "cmbStyle",     "edtStopLossPx", "edtStopQty", "cmbStyle"};
  static const std::vector<TRow> rows{
      {"edtAccount", Run("edtSymbol", "btnBuy")},
      {"edtSymbol", Run("edtPrice", "btnBuy")},
      {"edtPrice", Run("edtQty", "btnBuy")},
      {"edtQty", Run("cmbExch", "btnBuy")},
      {"cmbExch", Run("cmbMType", "btnBuy")},
      {"cmbMType", Before({"cmbOrderType", "edtSlices"}, Run("edtVolPct", "btnBuy"))},
      {"cmbOrderType", Before({"edtSlices"}, Run("edtVolPct", "btnBuy"))},
      {"edtSlices", Run("edtVolPct", "btnBuy")},
      {"edtVolPct", Run("edtMaxVolPct", "deETime")},
      {"edtMaxVolPct", Run("edtThrPx1", "deETime")},
      {"edtThrPx1", Run("edtThrVolPct1", "deETime")},
      {"edtThrVolPct1", Run("edtThrPx2", "deETime")},
      {"edtThrPx2", Run("edtThrVolPct2", "deETime")},
      {"edtThrVolPct2", Run("cmbJoin", "deETime")},
      {"cmbJoin", Run("edtJoinThr", "deETime")},
      {"edtJoinThr", Run("edtJoinQty", "deETime")},
      {"edtJoinQty", Run("cmbRef", "deETime")},
      {"cmbRef", Run("edtDiffPct", "deETime")},
      {"edtDiffPct", Run("edtTickDiff", "deETime")},
      {"edtTickDiff", Run("edtMinQty", "deETime")},
      {"edtMinQty", Run("edtServePct", "deETime")},
      {"edtServePct", Run("edtTimeOut", "deETime")},
      {"edtTimeOut", Run("edtRandTimeOut", "deETime")},
      {"edtRandTimeOut", Run("cmbIceberg", "deETime")},
      {"cmbIceberg", Run("edtShowQty", "deETime")},
      {"edtShowQty", Run("edtMaxShowQty", "deETime")},
      {"edtMaxShowQty", Run("edtRandPct", "deETime")},
      {"edtRandPct", Run("edtReloadPct", "deETime")},
      {"edtReloadPct", Run("cmbFunc", "deETime")},
      {"cmbFunc", Run("edtMinOrdAmt", "deETime")},
      {"edtMinOrdAmt", Run("edtWPx", "deETime")},
      {"edtWPx", Run("cmbOpening", "deETime")},
      {"cmbOpening", Run("edtOpenPct", "deETime")},
      {"edtOpenPct", Run("cmbClosing", "deETime")},
      {"cmbClosing", {"edtClosePct", "cmbStyle", "edtStopLossPx", "edtStopQty", "deSTime", "deETime"}},
      {"edtClosePct", Run("cmbStyle", "deETime")},
      {"cmbStyle", Run("edtStopLossPx", "deETime")},
      {"edtStopLossPx", Run("edtStopQty", "deETime")},
      {"edtStopQty", {"deSTime", "deETime"}},
      {"deSTime", {"deETime"}},
      {"deETime", {"btnBuy"}},
      {"cmbAccuVol", fromAccuVol},
      {"cmbAllInAuc", Before({"edtVolPct", "cmbAccuVol"}, fromAccuVol)},
      {"cmbCloseSim", {"edtClosePct", "edtStopLossPx", "edtStopQty", "cmbStyle"}},
  };
  return rows;
}

enum class TTakenAway { Enabled, Visible, ItemVisible };

class EnterOrder : public TTerminalTest {
 protected:
  EnterOrder() : FFrame(Open()) { ShowWholeForm(FFrame); }

  /// Lets the controls take the focus, or takes it away from them.
  void Let(const TNames& names, TTakenAway way, bool take) {
    for (const std::string& name : names) {
      auto& control = Named(FFrame, name);
      if (way == TTakenAway::Enabled) control.SetEnabled(take);
      if (way == TTakenAway::Visible) control.SetVisible(take);
      if (way == TTakenAway::ItemVisible) control.Item()->SetVisible(take);
    }
  }

  views::entry::TAlgoOrderEntryFrame& FFrame;
};

TEST_F(EnterOrder, IsStatedForEveryEditorDateEditAndComboBox) {
  std::size_t fields = 0;
  for (const auto& control : FFrame.Controls()) {
    const auto kind = control->Kind();
    if (kind == forms::TControlKind::Check || kind == forms::TControlKind::Button) continue;
    ++fields;
    EXPECT_EQ(std::count_if(Rows().begin(), Rows().end(),
                            [&](const TRow& row) { return row.field == control->Name(); }),
              1)
        << control->Name();
  }
  EXPECT_EQ(fields, Rows().size());
}

TEST_F(EnterOrder, GoesToTheOnlyCandidateThatIsThere) {
  for (const auto way : {TTakenAway::Enabled, TTakenAway::Visible, TTakenAway::ItemVisible}) {
    for (const TRow& row : Rows()) {
      Let(row.candidates, way, false);
      for (const std::string& candidate : row.candidates) {
        Let({candidate}, way, true);
        ASSERT_EQ(Enter(FFrame, row.field), candidate) << "from " << row.field;
        Let({candidate}, way, false);
      }
      Let(row.candidates, way, true);
    }
  }
}

TEST_F(EnterOrder, GoesToTheFirstOfTheCandidatesThatAreLeft) {
  for (const TRow& row : Rows()) {
    TNames left = row.candidates;
    while (!left.empty()) {
      // A name that stands twice goes with its first place.
      ASSERT_EQ(Enter(FFrame, row.field), left.front()) << "from " << row.field;
      const std::string reached = left.front();
      Let({reached}, TTakenAway::Enabled, false);
      std::erase(left, reached);
    }
    Let(row.candidates, TTakenAway::Enabled, true);
  }
}

TEST_F(EnterOrder, LeavesTheFocusWhereItIsWithoutACandidate) {
  for (const auto way : {TTakenAway::Enabled, TTakenAway::Visible, TTakenAway::ItemVisible}) {
    for (const TRow& row : Rows()) {
      // All the other controls of the form would take the focus.
      Let(row.candidates, way, false);
      EXPECT_EQ(Enter(FFrame, row.field), row.field);
      Let(row.candidates, way, true);
    }
  }
}

TEST_F(EnterOrder, PassesOverWhatStandsInAGroupThatIsHiddenOrDisabled) {
  Element(FFrame, "lgTrading").SetVisible(false);
  EXPECT_EQ(Enter(FFrame, "edtStopQty"), "edtStopQty");
  Element(FFrame, "lgTrading").SetVisible(true);
  EXPECT_EQ(Enter(FFrame, "edtStopQty"), "deSTime");
  Element(FFrame, "lgTrading").SetEnabled(false);
  EXPECT_EQ(Enter(FFrame, "edtStopQty"), "edtStopQty");
  Element(FFrame, "lgAlgo").SetVisible(false);
  EXPECT_EQ(Enter(FFrame, "cmbOrderType"), "btnBuy");
  Element(FFrame, "lgOrder").SetEnabled(false);
  EXPECT_EQ(FFrame.InputEnter(Named(FFrame, "cmbOrderType")), forms::TInputResult::Disabled);
}

TEST_F(EnterOrder, SkipsTheHiddenParametersOfAnAlgorithm) {
  ChooseAlgo(FFrame, "STOP");
  EXPECT_EQ(Enter(FFrame, "cmbOrderType"), "edtStopLossPx");
  ChooseAlgo(FFrame, "SHORT SELL");
  EXPECT_EQ(Enter(FFrame, "cmbOrderType"), "cmbRef");
  EXPECT_EQ(Enter(FFrame, "cmbRef"), "deSTime");
  ChooseAlgo(FFrame, "CLOSE");
  EXPECT_EQ(Enter(FFrame, "cmbOrderType"), "btnBuy");
}

TEST_F(EnterOrder, ReachesTheStartTimeFromTheQuantityWhenEverythingBetweenIsLockedOrHidden) {
  ChooseAlgo(FFrame, "CLOSE");
  Element(FFrame, "lgTrading").SetVisible(true);
  for (const char* lock : {"cbLockExch", "cbLockMOrder", "cbLockOrderType"}) Click(FFrame, lock);
  EXPECT_EQ(Enter(FFrame, "edtQty"), "deSTime");
  EXPECT_EQ(Enter(FFrame, "deSTime"), "deETime");
  EXPECT_EQ(Enter(FFrame, "deETime"), "btnBuy");
}

TEST_F(EnterOrder, DoesWhatLeavingTheFieldDoes) {
  Type(FFrame, "edtJoinQty", "0");
  EXPECT_EQ(Enter(FFrame, "edtJoinQty"), "cmbRef");
  EXPECT_EQ(Spin(FFrame, "edtJoinQty").Value(), std::nullopt);
}

TEST_F(EnterOrder, PressesAButtonInsteadOfLeavingIt) {
  EXPECT_EQ(Enter(FFrame, "btnSell"), "btnSell");
  EXPECT_TRUE(FFrame.SideButton(views::entry::TField::btnSell).Pressed());
}

}  // namespace
}  // namespace algo::tests
