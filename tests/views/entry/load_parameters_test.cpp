// A parameter list loaded back into the form, key by key.

#include <optional>
#include <string>
#include <vector>

#include "tests/views/table_coverage.h"
#include "tests/views/terminal_fixture.h"
#include "text/errors.h"

namespace algo::tests {
namespace {

using TTexts = std::vector<std::string>;

class LoadParameters : public TTerminalTest {
 protected:
  /// Loads "key=value" lines under the algorithm's name.
  static void Load(views::entry::TAlgoOrderEntryFrame& frame, std::string_view algo, const TTexts& lines) {
    frame.InitializeConfirmView(algo, std::vector<std::string_view>(lines.begin(), lines.end()));
  }

  std::string DateText(forms::TFrame& frame, std::string_view control) const {
    return Named(frame, control).Text();
  }

  std::string AlgoShown(forms::TFrame& frame) const { return Combo(frame, "cmbOrderType").Text(); }
};

struct TNumberRow {
  const char* key;
  const char* editor;
};

const std::vector<TNumberRow> Numbers{
    {"Timeout", "edtTimeOut"},       {"VolPct", "edtVolPct"},
    {"MinOrdAmt", "edtMinOrdAmt"},   {"WPx", "edtWPx"},
    {"ThrPx1", "edtThrPx1"},         {"ThrPx2", "edtThrPx2"},
    {"ThrVolPct1", "edtThrVolPct1"}, {"ThrVolPct2", "edtThrVolPct2"},
    {"Waves", "edtSlices"},          {"MaxVolPct", "edtMaxVolPct"},
    {"OpenPct", "edtOpenPct"},       {"ClosePct", "edtClosePct"},
    {"ShowQty", "edtShowQty"},       {"MaxShowQty", "edtMaxShowQty"},
    {"RandPct", "edtRandPct"},       {"ReloadPct", "edtReloadPct"},
    {"StopLossPx", "edtStopLossPx"}, {"StopQty", "edtStopQty"},
    {"TickDiff", "edtTickDiff"},     {"JoinThr", "edtJoinThr"},
    {"JoinQty", "edtJoinQty"},       {"RandTimeout", "edtRandTimeOut"},
    {"DiffPct", "edtDiffPct"},       {"ServePct", "edtServePct"},
    {"MinQty", "edtMinQty"},
};

TEST_F(LoadParameters, TheTableNamesEveryNumber) {
  std::vector<std::string_view> names;
  for (const TNumberRow& row : Numbers) names.emplace_back(row.editor);
  ExpectNamesEvery(names, HoldsNumber);
}

TEST_F(LoadParameters, PutsEachNumberIntoItsEditorAsItIs) {
  struct TValue {
    const char* text;
    std::optional<double> value;
  };
  // A value out of range is shown, and is for the rules to refuse; a text that is no number is 0; nothing
  // leaves what is there.
  const std::vector<TValue> values{{"12", 12}, {"12.5", 12.5}, {"-3", -3}, {"1000", 1000}, {"0", 0},
                                   {"abc", 0}, {"12x", 0},     {"1,5", 0}, {"", 7}};
  auto& frame = OpenFilled();
  for (const TNumberRow& row : Numbers) {
    for (const TValue& value : values) {
      Spin(frame, row.editor).SetValue(7);
      Load(frame, "TVOL", {std::string(row.key) + "=" + value.text});
      EXPECT_EQ(Spin(frame, row.editor).Value(), value.value) << row.key << "=" << value.text;
    }
    Spin(frame, row.editor).SetValue(7);
    Load(frame, "TVOL", {});
    EXPECT_EQ(Spin(frame, row.editor).Value(), 7) << row.key;
  }
}

TEST_F(LoadParameters, ReadsEachNumberUnderItsOwnKeyAlone) {
  auto& frame = OpenFilled();
  for (const TNumberRow& row : Numbers) {
    for (const TNumberRow& other : Numbers) Spin(frame, other.editor).SetValue(7);
    Load(frame, "TVOL", {std::string(row.key) + "=12"});
    for (const TNumberRow& other : Numbers) {
      EXPECT_EQ(Spin(frame, other.editor).Value(), other.key == std::string(row.key) ? 12 : 7)
          << row.key << " in " << other.editor;
    }
  }
}

TEST_F(LoadParameters, ReadsTimesInTheirCompactForm) {
  auto& frame = OpenFilled();
  Load(frame, "TVOL", {"STime=20240115-09:30:00", "ETime=20241231-23:59:59"});
  EXPECT_EQ(DateText(frame, "deSTime"), "2024-01-15 09:30:00");
  EXPECT_EQ(DateText(frame, "deETime"), "2024-12-31 23:59:59");
  Load(frame, "TVOL", {"STime="});
  EXPECT_EQ(DateText(frame, "deSTime"), "2024-01-15 09:30:00");
  EXPECT_EQ(DateText(frame, "deETime"), "2024-12-31 23:59:59");
}

TEST_F(LoadParameters, ReadsALoneDateAndABlankBeforeTheTime) {
  auto& frame = OpenFilled();
  Load(frame, "TVOL", {"STime=20240115", "ETime=20240115 15:00:00"});
  EXPECT_EQ(DateText(frame, "deSTime"), "2024-01-15 00:00:00");
  EXPECT_EQ(DateText(frame, "deETime"), "2024-01-15 15:00:00");
}

TEST_F(LoadParameters, EndsAtATimeThatCannotBeRead) {
  auto& frame = OpenFilled();
  for (const char* time : {"x", "20240230-09:30:00", "20240115-25:00:00", "2024011", "2024-01-15 09:30:00"}) {
    ChooseAlgo(frame, "TVOL");
    Load(frame, "TVOL", {"STime=20240115-09:30:00", "VolPct=10"});
    EXPECT_THROW(Load(frame, "TVOL", {"VolPct=20", "STime=" + std::string(time)}), EConversionError) << time;
    EXPECT_EQ(DateText(frame, "deSTime"), "2024-01-15 09:30:00") << time;
    EXPECT_EQ(Spin(frame, "edtVolPct").Value(), 10) << time;

    EXPECT_THROW(Load(frame, "TVOL", {"VolPct=20", "ETime=" + std::string(time), "STime=20240116-09:30:00"}),
                 EConversionError);
    EXPECT_EQ(DateText(frame, "deSTime"), "2024-01-16 09:30:00") << time;
    EXPECT_EQ(DateText(frame, "deETime"), "") << time;
    EXPECT_EQ(Spin(frame, "edtVolPct").Value(), 10) << time;
    Spin(frame, "edtVolPct").SetValue(std::nullopt);
  }
}

struct TChoiceRow {
  const char* key;
  const char* combo;
  const char* text;
  std::int32_t index;  ///< -1: the choice stays what it was
};

const std::vector<TChoiceRow> Choices{
    {"AccuVol", "cmbAccuVol", "N", 0},
    {"AccuVol", "cmbAccuVol", "Y", 1},
    {"AccuVol", "cmbAccuVol", "n", -1},
    {"AccuVol", "cmbAccuVol", "0", -1},
    {"AccuVol", "cmbAccuVol", "Yes", -1},
    {"AccuVol", "cmbAccuVol", "", -1},
    {"Opening", "cmbOpening", "0", 0},
    {"Opening", "cmbOpening", "1", 1},
    {"Opening", "cmbOpening", "2", -1},
    {"Opening", "cmbOpening", "-1", -1},
    {"Opening", "cmbOpening", "x", -1},
    {"Opening", "cmbOpening", "", -1},
    {"Closing", "cmbClosing", "0", 0},
    {"Closing", "cmbClosing", "1", 1},
    {"Closing", "cmbClosing", "2", -1},
    {"Closing", "cmbClosing", "x", -1},
    {"Closing", "cmbClosing", "", 2},
    {"Style", "cmbStyle", "3", 0},
    {"Style", "cmbStyle", "5", 1},
    {"Style", "cmbStyle", "1", 2},
    {"Style", "cmbStyle", "0", -1},
    {"Style", "cmbStyle", "2", -1},
    {"Style", "cmbStyle", "4", -1},
    {"Style", "cmbStyle", "x", -1},
    {"CloseSim", "cmbCloseSim", "0", 0},
    {"CloseSim", "cmbCloseSim", "1", 1},
    {"CloseSim", "cmbCloseSim", "2", -1},
    {"Func", "cmbFunc", "0", 0},
    {"Func", "cmbFunc", "1", 1},
    {"Func", "cmbFunc", "2", 2},
    {"Func", "cmbFunc", "3", -1},
    {"Func", "cmbFunc", "x", -1},
    {"AllInAuc", "cmbAllInAuc", "0", 0},
    {"AllInAuc", "cmbAllInAuc", "1", 1},
    {"AllInAuc", "cmbAllInAuc", "2", -1},
    {"Iceberg", "cmbIceberg", "0", 0},
    {"Iceberg", "cmbIceberg", "1", 1},
    {"Iceberg", "cmbIceberg", "2", -1},
    {"Join", "cmbJoin", "0", 0},
    {"Join", "cmbJoin", "1", 1},
    {"Join", "cmbJoin", "2", -1},
    {"Ref", "cmbRef", "1", 0},
    {"Ref", "cmbRef", "2", 1},
    {"Ref", "cmbRef", "3", 2},
    {"Ref", "cmbRef", "4", 3},
    {"Ref", "cmbRef", "5", 4},
    {"Ref", "cmbRef", "8", 5},
    {"Ref", "cmbRef", "9", 6},
    {"Ref", "cmbRef", "10", 7},
    {"Ref", "cmbRef", "11", 8},
    {"Ref", "cmbRef", "13", 9},
    {"Ref", "cmbRef", "14", 10},
    {"Ref", "cmbRef", "15", 11},
    {"Ref", "cmbRef", "16", 12},
    {"Ref", "cmbRef", "17", 13},
    {"Ref", "cmbRef", "18", 14},
    {"Ref", "cmbRef", "19", 15},
    {"Ref", "cmbRef", "20", 16},
    {"Ref", "cmbRef", "0", -1},
    {"Ref", "cmbRef", "6", -1},
    {"Ref", "cmbRef", "7", -1},
    {"Ref", "cmbRef", "12", -1},
    {"Ref", "cmbRef", "21", -1},
    {"Ref", "cmbRef", "Last", -1},
};

TEST_F(LoadParameters, PicksTheItemThatAValueStandsFor) {
  auto& frame = OpenFilled();
  ChooseAlgo(frame, "TVOL");
  for (const TChoiceRow& row : Choices) {
    for (const std::int32_t before : {0, 1}) {
      Combo(frame, row.combo).SetIndex(before);
      Load(frame, "TVOL", {std::string(row.key) + "=" + row.text});
      EXPECT_EQ(Combo(frame, row.combo).Index(), row.index < 0 ? before : row.index)
          << row.key << "=" << row.text << " over " << before;
    }
  }
}

TEST_F(LoadParameters, PicksTheLastItemOfClosingAloneWhereAKeyIsMissing) {
  auto& frame = OpenFilled();
  ChooseAlgo(frame, "TVOL");
  const TTexts others{"cmbAccuVol",  "cmbOpening", "cmbStyle", "cmbCloseSim", "cmbFunc",
                      "cmbAllInAuc", "cmbIceberg", "cmbRef",   "cmbJoin"};
  for (const std::string& name : others) Combo(frame, name).SetIndex(1);
  Combo(frame, "cmbClosing").SetIndex(1);
  Load(frame, "TVOL", {"VolPct=20"});
  EXPECT_EQ(Combo(frame, "cmbClosing").Index(), 2);
  for (const std::string& name : others) EXPECT_EQ(Combo(frame, name).Index(), 1) << name;
}

TEST_F(LoadParameters, PassesOverLinesThatItDoesNotKnow) {
  auto& frame = OpenFilled();
  ChooseAlgo(frame, "TVOL");
  Spin(frame, "edtVolPct").SetValue(7);
  Load(frame, "TVOL",
       {"TMLO:AlgoId=TVOL", "Unknown=1", "VolPct", "=5", "", "volpct=9", "VolPctX=8", "XVolPct=6"});
  EXPECT_EQ(Spin(frame, "edtVolPct").Value(), 7);
  EXPECT_EQ(Told(), TTexts{});
}

TEST_F(LoadParameters, ChoosesTheAlgorithmBeforeTheValues) {
  auto& frame = OpenFilled();
  for (const char* name : {"SNIPER", "sniper", "Sniper"}) {
    ChooseAlgo(frame, "TVOL");
    Load(frame, name, {"Timeout=60", "ServePct=40", "Style=5"});
    EXPECT_EQ(AlgoShown(frame), "Res_Algo_OrderType_SNIPER") << name;
    EXPECT_TRUE(Spin(frame, "edtServePct").Showing()) << name;
    EXPECT_EQ(Spin(frame, "edtTimeOut").Value(), 60) << name;
    EXPECT_EQ(Spin(frame, "edtServePct").Value(), 40) << name;
    EXPECT_EQ(Combo(frame, "cmbStyle").Index(), 1) << name;
  }
}

TEST_F(LoadParameters, KeepsAnAlgorithmThatIsLockedOrNotOffered) {
  auto& frame = OpenFilled();
  ChooseAlgo(frame, "TVOL");
  for (const char* name : {"NOSUCH", ""}) {
    Load(frame, name, {"VolPct=20"});
    EXPECT_EQ(AlgoShown(frame), "Res_Algo_OrderType_TVOL") << name;
    EXPECT_EQ(Spin(frame, "edtVolPct").Value(), 20) << name;
  }
  Click(frame, "cbLockOrderType");
  Load(frame, "VWAP", {"VolPct=30"});
  EXPECT_EQ(AlgoShown(frame), "Res_Algo_OrderType_TVOL");
  EXPECT_EQ(Spin(frame, "edtVolPct").Value(), 30);
}

}  // namespace
}  // namespace algo::tests
