// The parameter text that the form gives: filled in by the trader's hand, and composed of what the editors
// hold.

#include <string>
#include <utility>
#include <vector>

#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

using TTexts = std::vector<std::string>;
/// Controls with what is typed, or the place of the item that is picked.
using TEntries = std::vector<std::pair<std::string, std::string>>;

class ParameterTextOfTheForm : public TTerminalTest {
 protected:
  void EnterAll(forms::TFrame& frame, const TEntries& entries) {
    for (const auto& [control, text] : entries) {
      if (control.starts_with("cmb")) {
        EXPECT_EQ(frame.InputPick(Named(frame, control), std::stoi(text)), forms::TInputResult::Taken)
            << control;
      } else {
        Type(frame, control, text);
      }
    }
    Leave(frame);
  }

  static std::string Compose(const views::entry::TAlgoOrderEntryFrame& frame) {
    host::TCustomClientOrder order;
    frame.SetOrderAlgo(order);
    return order.TextProperty(440);
  }

  /// The text with one editor or choice set by the program, everything else not given.
  std::string With(views::entry::TAlgoOrderEntryFrame& frame, const char* algo, const char* spin,
                   double value) {
    Combo(frame, "cmbOrderType").SetIndex(-1);
    ChooseAlgo(frame, algo);
    Combo(frame, "cmbClosing").SelectLast();
    Combo(frame, "cmbFunc").SelectLast();
    Spin(frame, spin).SetValue(value);
    return Compose(frame);
  }
};

struct TExample {
  const char* algo;
  const char* orderType;
  TEntries entries;
  const char* text;
};

const std::vector<TExample> Examples{
    {"TVOL",
     "Res_OrderType_Limit",
     {{"deSTime", "2024-01-15 09:30:00"},
      {"deETime", "2024-01-15 15:00:00"},
      {"edtVolPct", "20"},
      {"edtWPx", "10.5"},
      {"cmbOpening", "1"},
      {"cmbClosing", "0"},
      {"edtMinOrdAmt", "50000"},
      {"cmbStyle", "1"}},
     "TMLO:AlgoId=TVOL,STime=20240115-09:30:00,ETime=20240115-15:00:00,VolPct=20,WPx=10.5,Opening=1,"
     "Closing=0,MinOrdAmt=50000,Style=5;"},
    {"TVOL Threshold",
     "Res_OrderType_Limit",
     {{"edtThrPx1", "10.2"},
      {"edtThrVolPct1", "30"},
      {"deSTime", "2024-01-15 09:30:00"},
      {"deETime", "2024-01-15 15:00:00"},
      {"edtVolPct", "15"},
      {"cmbClosing", "2"},
      {"cmbStyle", "0"},
      {"edtThrPx2", "10.8"},
      {"edtThrVolPct2", "5"}},
     "TMLO:AlgoId=TVOL Threshold,ThrPx1=10.2,ThrVolPct1=30,STime=20240115-09:30:00,"
     "ETime=20240115-15:00:00,VolPct=15,Style=3,ThrPx2=10.8,ThrVolPct2=5;"},
    {"TWAP",
     "Res_OrderType_Limit",
     {{"deSTime", "2024-01-15 09:30:00"},
      {"deETime", "2024-01-15 15:00:00"},
      {"edtWPx", "10.50"},
      {"cmbClosing", "2"},
      {"cmbStyle", "2"},
      {"edtMaxVolPct", "25"}},
     "TMLO:AlgoId=TWAP,STime=20240115-09:30:00,ETime=20240115-15:00:00,WPx=10.5,Style=1,MaxVolPct=25;"},
    {"VWAP",
     "Res_OrderType_Market",
     {{"deSTime", "2024-01-15 09:30:00"},
      {"deETime", "2024-01-15 15:00:00"},
      {"edtMinOrdAmt", "20,000"},
      {"edtMaxVolPct", "25"},
      {"edtOpenPct", "10"},
      {"edtClosePct", "10"},
      {"edtSlices", "12"}},
     "TMMO:AlgoId=VWAP,STime=20240115-09:30:00,ETime=20240115-15:00:00,MinOrdAmt=20000,MaxVolPct=25,"
     "OpenPct=10,ClosePct=10,Waves=12;"},
    {"ICEBERG",
     "Res_OrderType_Limit",
     {{"cmbOpening", "0"},
      {"cmbClosing", "0"},
      {"cmbFunc", "1"},
      {"edtShowQty", "2000"},
      {"edtMaxShowQty", "5000"},
      {"edtRandPct", "20"},
      {"edtReloadPct", "50"},
      {"cmbStyle", "0"},
      {"edtWPx", "10.5"}},
     "TMLO:AlgoId=ICEBERG,Opening=0,Closing=0,Func=1,ShowQty=2000,MaxShowQty=5000,RandPct=20,ReloadPct=50,"
     "Style=3,WPx=10.5;"},
    {"STOP",
     "Res_OrderType_Limit",
     {{"deSTime", "2024-01-15 09:30:00"}, {"edtStopLossPx", "9.8"}, {"edtStopQty", "4000"}},
     "TMLO:AlgoId=STOP,STime=20240115-09:30:00,StopLossPx=9.8,StopQty=4000;"},
    {"PEG",
     "Res_OrderType_Limit",
     {{"deSTime", "2024-01-15 09:30:00"},
      {"deETime", "2024-01-15 15:00:00"},
      {"cmbClosing", "1"},
      {"edtJoinThr", "1000"},
      {"cmbJoin", "1"},
      {"cmbIceberg", "0"},
      {"edtShowQty", "500"},
      {"edtRandTimeOut", "30"},
      {"edtJoinQty", "200"},
      {"edtDiffPct", "-5"},
      {"edtTickDiff", "2"},
      {"edtTimeOut", "60"},
      {"cmbRef", "1"},
      {"edtMaxVolPct", "20"},
      {"edtWPx", "10.5"}},
     "TMLO:AlgoId=PEG,STime=20240115-09:30:00,ETime=20240115-15:00:00,Closing=1,JoinThr=1000,Join=1,"
     "Iceberg=0,ShowQty=500,RandTimeout=30,JoinQty=200,DiffPct=-5,TickDiff=2,Timeout=60,Ref=2,"
     "MaxVolPct=20,Closing=1,WPx=10.5;"},
    {"MOC",
     "Res_OrderType_Limit",
     {{"edtMaxVolPct", "20"}, {"edtClosePct", "50"}, {"cmbStyle", "1"}, {"edtShowQty", "1000"}},
     "TMLO:AlgoId=MOC,MaxVolPct=20,ClosePct=50,Style=5,ShowQty=1000;"},
    {"SNIPER",
     "Res_OrderType_Limit",
     {{"deSTime", "2024-01-15 09:30:00"},
      {"edtTimeOut", "120"},
      {"edtMinQty", "1000"},
      {"edtServePct", "40"},
      {"cmbStyle", "0"}},
     "TMLO:AlgoId=SNIPER,STime=20240115-09:30:00,Timeout=120,MinQty=1000,ServePct=40,Style=3;"},
    {"SHORT SELL",
     "Res_OrderType_Limit",
     {{"deSTime", "2024-01-15 09:30:00"}, {"deETime", "2024-01-15 15:00:00"}, {"cmbRef", "0"}},
     "TMLO:AlgoId=SHORT SELL,STime=20240115-09:30:00,ETime=20240115-15:00:00,Ref=1;"},
    {"CLOSE", "Res_OrderType_Limit", {}, "TMLO:AlgoId=CLOSE;"},
    {"OPEN", "Res_OrderType_Limit", {}, "TMLO:AlgoId=OPEN;"},
};

TEST_F(ParameterTextOfTheForm, CarriesWhatTheTraderFilledIn) {
  auto& frame = OpenFilled();
  for (const TExample& example : Examples) {
    ChooseAlgo(frame, example.algo);
    Pick(frame, "cmbMType", example.orderType);
    EnterAll(frame, example.entries);
    EXPECT_EQ(Compose(frame), example.text);
    Forget();
    Click(frame, "btnSubmit");
    EXPECT_EQ(TakenOrder().TextProperty(440), example.text);
    EXPECT_EQ(Told(), TTexts{}) << example.algo;
  }
}

TEST_F(ParameterTextOfTheForm, IsPrefixAndIdAloneWhereNothingIsGiven) {
  auto& frame = OpenFilled();
  for (const char* algo : {"TVOL", "TVOL Threshold", "TWAP", "VWAP", "CLOSE", "OPEN", "ICEBERG", "STOP",
                           "PEG", "MOC", "SNIPER", "SHORT SELL"}) {
    ChooseAlgo(frame, algo);
    Combo(frame, "cmbClosing").SelectLast();
    Combo(frame, "cmbFunc").SelectLast();
    EXPECT_EQ(Compose(frame), std::string("TMLO:AlgoId=") + algo + ";");
    for (const char* choice :
         {"cmbClosing", "cmbFunc", "cmbOpening", "cmbJoin", "cmbIceberg", "cmbStyle", "cmbRef"}) {
      Combo(frame, choice).SetIndex(-1);
    }
    EXPECT_EQ(Compose(frame), std::string("TMLO:AlgoId=") + algo + ";");
  }
}

TEST_F(ParameterTextOfTheForm, AnnouncesMarketChildrenForTheMarketTypeAlone) {
  auto& frame = OpenFilled();
  ChooseAlgo(frame, "CLOSE");
  for (const char* type : {"Limit", "StopMarket", "StopLimit", "AO", "ALO", "ELO", "MOO", "MOC", "LOC"}) {
    Pick(frame, "cmbMType", std::string("Res_OrderType_") + type);
    EXPECT_EQ(Compose(frame), "TMLO:AlgoId=CLOSE;") << type;
  }
  Pick(frame, "cmbMType", "Res_OrderType_Market");
  EXPECT_EQ(Compose(frame), "TMMO:AlgoId=CLOSE;");
  Combo(frame, "cmbMType").SetIndex(-1);
  EXPECT_EQ(Compose(frame), "TMLO:AlgoId=CLOSE;");
}

TEST_F(ParameterTextOfTheForm, LeavesOutWhatLiesOnOrBeyondABound) {
  struct TRow {
    const char* algo;
    const char* spin;
    double value;
    const char* piece;
  };
  const std::vector<TRow> rows{
      {"TVOL", "edtVolPct", 80, ""},
      {"TVOL", "edtVolPct", 79, ",VolPct=79"},
      {"TVOL", "edtVolPct", 0, ""},
      {"TVOL", "edtVolPct", -1, ""},
      {"TWAP", "edtMaxVolPct", 75, ""},
      {"VWAP", "edtMaxVolPct", 75, ""},
      {"VWAP", "edtMaxVolPct", 74.5, ",MaxVolPct=74.5"},
      {"PEG", "edtMaxVolPct", 75, ",MaxVolPct=75"},
      {"MOC", "edtMaxVolPct", 75, ",MaxVolPct=75"},
      {"PEG", "edtMaxVolPct", 80, ""},
      {"PEG", "edtDiffPct", -100, ""},
      {"PEG", "edtDiffPct", 100, ""},
      {"PEG", "edtDiffPct", -99, ",DiffPct=-99"},
      {"PEG", "edtDiffPct", 0, ",DiffPct=0"},
      {"PEG", "edtTickDiff", -500, ""},
      {"PEG", "edtTickDiff", 500, ""},
      {"PEG", "edtTickDiff", 499, ",TickDiff=499"},
      {"SNIPER", "edtServePct", 100, ""},
      {"TWAP", "edtOpenPct", 10, ""},
      {"TWAP", "edtClosePct", 10, ""},
      {"TWAP", "edtSlices", 10, ""},
      {"CLOSE", "edtVolPct", 20, ""},
      {"OPEN", "edtWPx", 20, ""},
      {"TVOL", "edtWPx", 1234567.25, ",WPx=1234567.25"},
  };
  auto& frame = OpenFilled();
  for (const TRow& row : rows) {
    EXPECT_EQ(With(frame, row.algo, row.spin, row.value),
              std::string("TMLO:AlgoId=") + row.algo + row.piece + ";")
        << row.spin << " " << row.value;
  }
}

}  // namespace
}  // namespace algo::tests
