// Algo parameter texts of random forms, the same in every run: a text that is taken apart, loaded into
// another form and composed there is the same text.

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cstdint>
#include <limits>
#include <memory>
#include <random>
#include <string>
#include <string_view>

#include "model/parameter_text.h"
#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

using std::string_view;
using views::entry::TField;

constexpr std::array<string_view, 12> Codes{"TVOL",   "TVOL Threshold", "TWAP", "VWAP", "CLOSE",
                                            "OPEN",   "ICEBERG",        "STOP", "PEG",  "MOC",
                                            "SNIPER", "SHORT SELL"};

constexpr std::array Numbers{
    TField::edtVolPct,     TField::edtWPx,      TField::edtMinOrdAmt,   TField::edtThrPx1,
    TField::edtThrVolPct1, TField::edtThrPx2,   TField::edtThrVolPct2,  TField::edtMaxVolPct,
    TField::edtOpenPct,    TField::edtClosePct, TField::edtSlices,      TField::edtShowQty,
    TField::edtMaxShowQty, TField::edtRandPct,  TField::edtReloadPct,   TField::edtStopLossPx,
    TField::edtStopQty,    TField::edtJoinThr,  TField::edtRandTimeOut, TField::edtJoinQty,
    TField::edtDiffPct,    TField::edtTickDiff, TField::edtTimeOut,     TField::edtMinQty,
    TField::edtServePct,
};
constexpr std::array Choices{TField::cmbOpening, TField::cmbClosing, TField::cmbJoin,
                             TField::cmbIceberg, TField::cmbStyle,   TField::cmbRef};

class ReloadRandom : public TTerminalTest {
 protected:
  ReloadRandom()
      : FSource(std::make_shared<views::entry::TAlgoOrderEntryFrame>()),
        FTarget(std::make_shared<views::entry::TAlgoOrderEntryFrame>()) {}
  ~ReloadRandom() override {
    FSource->Detach();
    FTarget->Detach();
  }

  std::uint64_t Below(std::uint64_t bound) { return FRandom() % bound; }

  double Number() {
    switch (Below(6)) {
      case 0:
        return static_cast<double>(Below(1200)) - 600;
      case 1:
        return static_cast<double>(Below(20000)) / 100 - 100;
      case 2:
        return static_cast<double>(FRandom());
      case 3:
        return static_cast<double>(FRandom() >> 11) / 9007199254740992.0 * 100;
      case 4:
        return std::numeric_limits<double>::denorm_min() * static_cast<double>(Below(100));
      default:
        return std::bit_cast<double>(FRandom());
    }
  }

  text::TDateTime Time() {
    constexpr std::int64_t yearOne = -62135596800;
    constexpr std::uint64_t seconds = 315537897600;
    return text::TDateTime(std::chrono::seconds(yearOne + static_cast<std::int64_t>(Below(seconds))));
  }

  void FillAtRandom(views::entry::TAlgoOrderEntryFrame& frame) {
    for (const TField field : Numbers) {
      frame.Spin(field).SetValue(Below(4) == 0 ? std::nullopt : std::optional(Number()));
    }
    for (const TField field : Choices) {
      const auto count = static_cast<std::uint64_t>(frame.Combo(field).Count());
      frame.Combo(field).SetIndex(static_cast<std::int32_t>(Below(count + 1)) - 1);
    }
    // Which simulation is used always has an answer in a loaded form; see the test of its own.
    frame.Combo(TField::cmbFunc).SetIndex(static_cast<std::int32_t>(Below(3)));
    for (const TField field : {TField::deSTime, TField::deETime}) {
      frame.Date(field).SetValue(Below(4) == 0 ? std::nullopt : std::optional(Time()));
    }
  }

  static std::string Composed(const views::entry::TAlgoOrderEntryFrame& frame) {
    host::TCustomClientOrder order;
    frame.SetOrderAlgo(order);
    return order.TextProperty(440);
  }

  /// Loads the text into the target as into a form that shows another algorithm.
  void Reload(const std::string& text) {
    const model::TSplitText split = model::SplitText(text);
    const std::int32_t other = split.algoId == "OPEN" ? 4 : 5;
    FTarget->Combo(TField::cmbOrderType).SetIndex(other);
    FTarget->InitializeConfirmView(split.algoId, split.pieces);
    Forget();
  }

  std::mt19937_64 FRandom{20240117};
  std::shared_ptr<views::entry::TAlgoOrderEntryFrame> FSource;
  std::shared_ptr<views::entry::TAlgoOrderEntryFrame> FTarget;
};

TEST_F(ReloadRandom, ATextLoadedIntoAFormComposesToItself) {
  for (std::size_t algo = 0; algo < Codes.size(); ++algo) {
    FSource->Combo(TField::cmbOrderType).SetIndex(static_cast<std::int32_t>(algo));
    const std::string start = "TMLO:AlgoId=" + std::string(Codes[algo]);
    for (std::int32_t i = 0; i < 10000; ++i) {
      FillAtRandom(*FSource);
      const std::string text = Composed(*FSource);
      ASSERT_TRUE(text.starts_with(start)) << text;
      Reload(text);
      ASSERT_EQ(Composed(*FTarget), text) << i;
    }
  }
}

TEST_F(ReloadRandom, ATextLoadedTwiceIsTheSameAsLoadedOnce) {
  for (std::size_t algo = 0; algo < Codes.size(); ++algo) {
    FSource->Combo(TField::cmbOrderType).SetIndex(static_cast<std::int32_t>(algo));
    for (std::int32_t i = 0; i < 100; ++i) {
      FillAtRandom(*FSource);
      const std::string text = Composed(*FSource);
      const model::TSplitText split = model::SplitText(text);
      Reload(text);
      FTarget->InitializeConfirmView(split.algoId, split.pieces);
      ASSERT_EQ(Composed(*FTarget), text);
    }
  }
}

TEST_F(ReloadRandom, AChoiceOfSimulationThatATextLeavesOutComesBackAsTheFirstOne) {
  FSource->Combo(TField::cmbOrderType).SetIndex(6);
  FSource->Combo(TField::cmbFunc).SetIndex(3);
  FSource->Combo(TField::cmbOpening).SetIndex(1);
  FSource->Combo(TField::cmbClosing).SetIndex(2);
  FSource->Spin(TField::edtShowQty).SetValue(2000);
  const std::string text = Composed(*FSource);
  EXPECT_EQ(text, "TMLO:AlgoId=ICEBERG,Opening=1,ShowQty=2000;");
  Reload(text);
  EXPECT_EQ(Composed(*FTarget), "TMLO:AlgoId=ICEBERG,Opening=1,Func=0,ShowQty=2000;");
}

TEST_F(ReloadRandom, TheExamplesOfEveryAlgorithmComeBackAsTheyWere) {
  for (const char* text : {
           "TMLO:AlgoId=TVOL,STime=20240115-09:30:00,ETime=20240115-15:00:00,VolPct=20,WPx=10.5,Opening=1,"
           "Closing=0,MinOrdAmt=50000,Style=5;",
           "TMLO:AlgoId=TVOL Threshold,ThrPx1=10.2,ThrVolPct1=30,STime=20240115-09:30:00,"
           "ETime=20240115-15:00:00,VolPct=15,Style=3,ThrPx2=10.8,ThrVolPct2=5;",
           "TMLO:AlgoId=TWAP,STime=20240115-09:30:00,ETime=20240115-15:00:00,WPx=10.5,Style=1,MaxVolPct=25;",
           "TMLO:AlgoId=VWAP,STime=20240115-09:30:00,ETime=20240115-15:00:00,MinOrdAmt=20000,MaxVolPct=25,"
           "OpenPct=10,ClosePct=10,Waves=12;",
           "TMLO:AlgoId=ICEBERG,Opening=0,Closing=0,Func=1,ShowQty=2000,MaxShowQty=5000,RandPct=20,"
           "ReloadPct=50,Style=3,WPx=10.5;",
           "TMLO:AlgoId=STOP,STime=20240115-09:30:00,StopLossPx=9.8,StopQty=4000;",
           "TMLO:AlgoId=PEG,STime=20240115-09:30:00,ETime=20240115-15:00:00,Closing=1,JoinThr=1000,Join=1,"
           "Iceberg=0,ShowQty=500,RandTimeout=30,JoinQty=200,DiffPct=-5,TickDiff=2,Timeout=60,Ref=2,"
           "MaxVolPct=20,Closing=1,WPx=10.5;",
           "TMLO:AlgoId=MOC,MaxVolPct=20,ClosePct=50,Style=5,ShowQty=1000;",
           "TMLO:AlgoId=SNIPER,STime=20240115-09:30:00,Timeout=120,MinQty=1000,ServePct=40,Style=3;",
           "TMLO:AlgoId=SHORT SELL,STime=20240115-09:30:00,ETime=20240115-15:00:00,Ref=1;",
           "TMLO:AlgoId=CLOSE;",
           "TMLO:AlgoId=OPEN;",
       }) {
    Reload(text);
    EXPECT_EQ(Composed(*FTarget), text);
  }
}

TEST_F(ReloadRandom, ATextOfMarketChildrenComesBackInAFormOfMarketOrders) {
  FTarget->Combo(TField::cmbMType).SetIndex(1);
  const char* text = "TMMO:AlgoId=VWAP,MinOrdAmt=20000,MaxVolPct=25,OpenPct=10,ClosePct=10,Waves=12;";
  Reload(text);
  EXPECT_EQ(Composed(*FTarget), text);
}

}  // namespace
}  // namespace algo::tests
