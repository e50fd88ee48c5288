// What the editors of the entry form accept, how they show it, and what leaving them and clicking into them
// does, one row for each editor.

#include <gtest/gtest.h>

#include <array>
#include <chrono>
#include <limits>
#include <optional>
#include <string>
#include <utility>

#include "tests/views/shown_form.h"
#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

enum class TAccepts { Whole, Decimal };
enum class TLeaves { Nothing, Zero, ZeroOrMax, Bounds };

constexpr std::optional<double> No;

struct TEditorRow {
  const char* name;
  TAccepts accepts;
  std::optional<double> min;
  std::optional<double> max;
  double step;
  TLeaves leaves;
  bool clickSelects;
  const char* shown;  ///< 1234567.123456789, or as a whole number 1234567, as the editor shows it
};

constexpr const char* Grouped7 = "1,234,567.1234568";
constexpr const char* GroupedAll = "1,234,567.123456789";
constexpr const char* GroupedWhole = "1,234,567";
constexpr const char* Plain = "1234567.123456789";

using enum TAccepts;

constexpr std::array Rows{
    TEditorRow{"edtPrice", Decimal, No, No, 1, TLeaves::Nothing, false, GroupedAll},
    TEditorRow{"edtQty", Decimal, No, No, 1, TLeaves::Nothing, false, GroupedAll},
    TEditorRow{"edtVolPct", Decimal, 0, 80, 1, TLeaves::ZeroOrMax, true, Plain},
    TEditorRow{"edtMaxVolPct", Decimal, 0, 100, 1, TLeaves::ZeroOrMax, true, Plain},
    TEditorRow{"edtThrPx1", Decimal, 0, No, 1, TLeaves::Zero, false, Grouped7},
    TEditorRow{"edtThrVolPct1", Decimal, 0, 100, 1, TLeaves::ZeroOrMax, true, Plain},
    TEditorRow{"edtThrPx2", Decimal, 0, No, 1, TLeaves::Zero, false, Grouped7},
    TEditorRow{"edtThrVolPct2", Decimal, 0, 100, 1, TLeaves::ZeroOrMax, true, Plain},
    TEditorRow{"edtJoinThr", Decimal, 0, No, 1, TLeaves::Zero, true, Grouped7},
    TEditorRow{"edtJoinQty", Whole, 0, No, 1, TLeaves::Zero, false, GroupedWhole},
    TEditorRow{"edtDiffPct", Decimal, -100, 100, 1, TLeaves::Bounds, true, Plain},
    TEditorRow{"edtTickDiff", Whole, -500, 500, 1, TLeaves::Bounds, true, GroupedWhole},
    TEditorRow{"edtMinQty", Decimal, 0, No, 1, TLeaves::Zero, false, GroupedAll},
    TEditorRow{"edtServePct", Decimal, 0, 100, 1, TLeaves::ZeroOrMax, true, Plain},
    TEditorRow{"edtTimeOut", Whole, 0, No, 1, TLeaves::Zero, true, GroupedWhole},
    TEditorRow{"edtRandTimeOut", Decimal, 0, 100, 0.01, TLeaves::ZeroOrMax, true, Grouped7},
    TEditorRow{"edtShowQty", Decimal, 0, No, 1, TLeaves::Zero, false, Grouped7},
    TEditorRow{"edtMaxShowQty", Whole, 0, No, 1, TLeaves::Zero, false, GroupedWhole},
    TEditorRow{"edtRandPct", Decimal, 0, 100, 0.01, TLeaves::ZeroOrMax, true, Plain},
    TEditorRow{"edtReloadPct", Decimal, 0, 100, 0.01, TLeaves::ZeroOrMax, true, Plain},
    TEditorRow{"edtMinOrdAmt", Whole, 0, No, 1, TLeaves::Zero, true, GroupedWhole},
    TEditorRow{"edtWPx", Decimal, 0, No, 1, TLeaves::Zero, false, Grouped7},
    TEditorRow{"edtOpenPct", Decimal, 0, 100, 1, TLeaves::ZeroOrMax, true, Plain},
    TEditorRow{"edtClosePct", Decimal, 0, 100, 1, TLeaves::ZeroOrMax, true, Plain},
    TEditorRow{"edtSlices", Whole, 0, No, 1, TLeaves::Zero, true, GroupedWhole},
    TEditorRow{"edtStopLossPx", Decimal, 0, No, 1, TLeaves::Zero, false, Grouped7},
    TEditorRow{"edtStopQty", Whole, 0, No, 1, TLeaves::Zero, false, GroupedWhole},
};

class FieldRules : public TTerminalTest {
 protected:
  FieldRules() : FFrame(Open()) { ShowWholeForm(FFrame); }

  /// What the editor holds once `text` was typed and the editor left.
  std::optional<double> Typed(const char* name, std::string_view text) {
    Type(FFrame, name, text);
    Leave(FFrame);
    return Spin(FFrame, name).Value();
  }

  views::entry::TAlgoOrderEntryFrame& FFrame;
};

TEST_F(FieldRules, AreStatedForEverySpinEditOfTheForm) {
  std::size_t spins = 0;
  for (const auto& control : FFrame.Controls()) {
    if (control->Kind() == forms::TControlKind::Spin) ++spins;
  }
  EXPECT_EQ(spins, Rows.size());
}

TEST_F(FieldRules, GiveEachEditorItsBoundsAndItsIncrement) {
  for (const TEditorRow& row : Rows) {
    EXPECT_EQ(Spin(FFrame, row.name).Min(), row.min) << row.name;
    EXPECT_EQ(Spin(FFrame, row.name).Max(), row.max) << row.name;
    EXPECT_EQ(Spin(FFrame, row.name).Step(), row.step) << row.name;
  }
}

TEST_F(FieldRules, ShowEachValueInItsEditorsFormat) {
  for (const TEditorRow& row : Rows) {
    Spin(FFrame, row.name).SetValue(row.accepts == Whole ? 1234567 : 1234567.123456789);
    EXPECT_EQ(Spin(FFrame, row.name).Text(), row.shown) << row.name;
  }
}

TEST_F(FieldRules, LetAPointIntoDecimalEditorsAlone) {
  for (const TEditorRow& row : Rows) {
    EXPECT_EQ(Typed(row.name, "1.5"), row.accepts == Whole ? 15 : 1.5) << row.name;
    EXPECT_EQ(Typed(row.name, "2..5"), row.accepts == Whole ? 25 : 2.5) << row.name;
  }
}

TEST_F(FieldRules, LetAMinusInOnlyWhereNumbersBelowZeroMayBe) {
  for (const TEditorRow& row : Rows) {
    const bool belowZero = !row.min || *row.min < 0;
    EXPECT_EQ(Typed(row.name, "-5"), belowZero ? -5 : 5) << row.name;
    EXPECT_EQ(Typed(row.name, "6-7"), 67) << row.name;
  }
}

TEST_F(FieldRules, PassOverLettersAndTakeCommasBetweenGroupsOfThreeDigits) {
  for (const TEditorRow& row : Rows) {
    EXPECT_EQ(Typed(row.name, "x1 e2+"), 12) << row.name;
    EXPECT_EQ(Typed(row.name, "1,234"), 1234) << row.name;
    // No number, so what stood there comes back.
    Spin(FFrame, row.name).SetValue(7);
    EXPECT_EQ(Typed(row.name, "60,5"), 7) << row.name;
  }
}

TEST_F(FieldRules, LeaveWhatIsTypedBeyondABoundToBeSeenAndRefused) {
  for (const TEditorRow& row : Rows) EXPECT_EQ(Typed(row.name, "987654321"), 987654321) << row.name;
  Spin(FFrame, "edtMaxVolPct").SetMax(75);
  EXPECT_EQ(Typed("edtMaxVolPct", "74"), 74);
  EXPECT_EQ(Typed("edtMaxVolPct", "76"), 76);
  EXPECT_EQ(Typed("edtMaxVolPct", "75"), No) << "the bound itself stands for a parameter that is not given";
}

TEST_F(FieldRules, EmptyAnEditorWhoseTextIsDeleted) {
  for (const TEditorRow& row : Rows) {
    Spin(FFrame, row.name).SetValue(7);
    EXPECT_EQ(Typed(row.name, ""), No) << row.name;
    EXPECT_EQ(Spin(FFrame, row.name).Text(), "") << row.name;
  }
}

TEST_F(FieldRules, TurnAZeroIntoNothingWhereZeroMeansNotGiven) {
  for (const TEditorRow& row : Rows) {
    const bool keepsZero = row.leaves == TLeaves::Nothing || row.leaves == TLeaves::Bounds;
    EXPECT_EQ(Typed(row.name, "0"), keepsZero ? std::optional<double>(0) : No) << row.name;
    EXPECT_EQ(Spin(FFrame, row.name).Text(), keepsZero ? "0" : "") << row.name;
    Spin(FFrame, row.name).SetValue(0);
    EXPECT_EQ(Typed(row.name, "0.0"), keepsZero ? std::optional<double>(0) : No) << row.name;
  }
}

TEST_F(FieldRules, TurnTheMaximumIntoNothingWhereItMeansNotGiven) {
  for (const TEditorRow& row : Rows) {
    if (!row.max) continue;
    EXPECT_EQ(Typed(row.name, std::to_string(static_cast<int>(*row.max))), No) << row.name;
    const double below = *row.max - 1;
    EXPECT_EQ(Typed(row.name, std::to_string(static_cast<int>(below))), below) << row.name;
  }
  EXPECT_EQ(Typed("edtVolPct", "79.5"), 79.5);
}

TEST_F(FieldRules, TurnTheLowerBoundOfADifferenceIntoNothing) {
  EXPECT_EQ(Typed("edtDiffPct", "-100"), No);
  EXPECT_EQ(Typed("edtDiffPct", "-99.5"), -99.5);
  EXPECT_EQ(Typed("edtTickDiff", "-500"), No);
  EXPECT_EQ(Typed("edtTickDiff", "-499"), -499);
}

TEST_F(FieldRules, GoByTheMaximumThatTheEditorHasAtTheTime) {
  ChooseAlgo(FFrame, "TWAP");
  EXPECT_EQ(Typed("edtMaxVolPct", "75"), No);
  ChooseAlgo(FFrame, "MOC");
  EXPECT_EQ(Typed("edtMaxVolPct", "75"), 75);
  EXPECT_EQ(Typed("edtMaxVolPct", "80"), No);
}

TEST_F(FieldRules, LeaveAValueOutsideTheBoundsThatNobodyTyped) {
  for (const TEditorRow& row : Rows) {
    Spin(FFrame, row.name).SetValue(-7777);
    Click(FFrame, row.name);
    Leave(FFrame);
    EXPECT_EQ(Spin(FFrame, row.name).Value(), -7777) << row.name;
  }
}

TEST_F(FieldRules, RunWhenTheCommitNotificationComes) {
  for (const TEditorRow& row : Rows) {
    Spin(FFrame, row.name).SetValue(0);
    Spin(FFrame, row.name).Commit();
    const bool keepsZero = row.leaves == TLeaves::Nothing || row.leaves == TLeaves::Bounds;
    EXPECT_EQ(Spin(FFrame, row.name).Value().has_value(), keepsZero) << row.name;
  }
}

TEST_F(FieldRules, NeverShowANumberThatIsNotFinite) {
  for (const TEditorRow& row : Rows) {
    for (const double value :
         {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
          std::numeric_limits<double>::quiet_NaN()}) {
      Spin(FFrame, row.name).SetValue(3);
      Spin(FFrame, row.name).SetValue(value);
      EXPECT_EQ(Spin(FFrame, row.name).Value(), No) << row.name;
      EXPECT_EQ(Spin(FFrame, row.name).Text(), "") << row.name;
    }
  }
}

TEST_F(FieldRules, SelectTheWholeTextOnAClickOnlyWhereTypingIsToReplaceIt) {
  for (const TEditorRow& row : Rows) {
    Spin(FFrame, row.name).SetValue(12);
    Click(FFrame, row.name);
    EXPECT_EQ(Spin(FFrame, row.name).SelectedText(), row.clickSelects ? "12" : "") << row.name;
  }
  for (const char* name : {"deSTime", "deETime"}) {
    auto& date = dynamic_cast<forms::TDateEdit&>(Named(FFrame, name));
    date.SetText("2024-01-15 09:30:00");
    Click(FFrame, name);
    EXPECT_EQ(date.SelectedText(), "2024-01-15 09:30:00") << name;
  }
  for (const char* name : {"edtAccount", "edtSymbol"}) {
    auto& edit = dynamic_cast<forms::TTextEdit&>(Named(FFrame, name));
    edit.SetText("0005");
    Click(FFrame, name);
    EXPECT_EQ(edit.SelectedText(), "") << name;
  }
}

TEST_F(FieldRules, LetTheDateEditsHoldADateAndATime) {
  for (const char* name : {"deSTime", "deETime"}) {
    auto& date = dynamic_cast<forms::TDateEdit&>(Named(FFrame, name));
    const auto typed = [&](std::string_view text) {
      Type(FFrame, name, text);
      Leave(FFrame);
      return date.Text();
    };
    EXPECT_EQ(typed("2024-01-15 14:05:09"), "2024-01-15 14:05:09") << name;
    EXPECT_EQ(typed("2024-02-29"), "2024-02-29 00:00:00") << name;
    EXPECT_EQ(typed("2023-02-29 10:00:00"), "2024-02-29 00:00:00") << name;
    EXPECT_EQ(typed("10:00:00"), "2024-01-15 10:00:00") << name;
    EXPECT_EQ(typed("0"), "2024-01-15 10:00:00") << name;
    EXPECT_EQ(typed(""), "") << name;
  }
}

TEST_F(FieldRules, KeepTheTimeOfDayOfTheStartWithADayThatIsPickedAndDropThatOfTheEnd) {
  for (const auto& [name, picked] :
       {std::pair{"deSTime", "2024-03-07 09:30:00"}, std::pair{"deETime", "2024-03-07 00:00:00"}}) {
    auto& date = dynamic_cast<forms::TDateEdit&>(Named(FFrame, name));
    date.SetText("2024-01-15 09:30:00");
    FFrame.InputPickDay(date, std::chrono::local_days(std::chrono::year(2024) / 3 / 7));
    FFrame.InputLeave();
    EXPECT_EQ(date.Text(), picked) << name;
  }
}

TEST_F(FieldRules, LetNobodyTypeIntoAFixedList) {
  for (const char* name :
       {"cmbExch", "cmbMType", "cmbOrderType", "cmbAccuVol", "cmbOpening", "cmbClosing", "cmbCloseSim",
        "cmbFunc", "cmbAllInAuc", "cmbIceberg", "cmbRef", "cmbJoin", "cmbStyle"}) {
    auto& combo = Combo(FFrame, name);
    const std::int32_t before = combo.Index();
    EXPECT_EQ(FFrame.InputText(combo, "x"), forms::TInputResult::Unsuited) << name;
    EXPECT_EQ(combo.Index(), before) << name;
  }
}

}  // namespace
}  // namespace algo::tests
