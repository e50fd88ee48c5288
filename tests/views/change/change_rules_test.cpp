// The check of a changed order: every rule of the algorithms' fields, and none of the rules about the order's
// identity.

#include <cstdint>

#include "tests/views/order_dialogs.h"
#include "text/errors.h"

namespace algo::tests {
namespace {

using host::TCustomClientOrder;
using views::entry::TField;

class ChangeRules : public TOrderDialogTest {
 protected:
  /// What the trader is told when the side button is pressed with the field holding the value; empty when the
  /// order goes out.
  std::string ToldFor(const char* algo, const char* control, double value) {
    TCustomClientOrder order = OrderWith("TMLO:AlgoId=" + std::string(algo) + ";");
    Forget();
    Change(order, [&](forms::TDialogForm& form, TChangeFrame& frame) {
      Spin(frame, control).SetValue(value);
      Click(frame, "btnBuy");
      EXPECT_EQ(frame.Focused(), &Named(frame, "btnBuy"));
      const bool told = !Told().empty();
      EXPECT_EQ(form.ModalResult(), told ? forms::ModalNone : forms::ModalOk);
      EXPECT_EQ(Spin(frame, control).Value(), value);
    });
    EXPECT_EQ(Seen("take_action").size(), Told().empty() ? 1U : 0U);
    EXPECT_LE(Told().size(), 1U);
    return Told().empty() ? std::string() : Told().front();
  }
};

struct TRuleRow {
  const char* algo;
  const char* control;
  double refused;
  double passed;
  const char* message;
};

// One line a bound, with the nearest value that passes.
constexpr TRuleRow Rules[] = {
    {"TVOL", "edtVolPct", 0, 0.5, "Res_VolPctMiss"},
    {"TVOL", "edtVolPct", -1, 1, "Res_VolumePctFalse"},
    {"TVOL", "edtVolPct", 80, 79, "Res_VolumePctFalse"},
    {"TVOL", "edtWPx", 0, 0.1, "Res_WpxFalse"},
    {"TVOL", "edtMinOrdAmt", 0, 1, "Res_MinordamtFalse"},
    {"TVOL Threshold", "edtVolPct", 0, 0.5, "Res_VolPctMiss"},
    {"TVOL Threshold", "edtVolPct", -1, 1, "Res_VolumePctFalse"},
    {"TVOL Threshold", "edtVolPct", 80, 79, "Res_VolumePctFalse"},
    {"TVOL Threshold", "edtWPx", -0.1, 0, "Res_WpxFalse"},
    {"TVOL Threshold", "edtMinOrdAmt", -1, 0, "Res_MinordamtFalse"},
    {"TVOL Threshold", "edtThrPx1", 0, 0.1, "Res_ThrPx1Miss"},
    {"TVOL Threshold", "edtThrPx1", -0.1, 1, "Res_ThrPx1False"},
    {"TVOL Threshold", "edtThrVolPct1", 0, 0.5, "Res_ThrVolPct1Miss"},
    {"TVOL Threshold", "edtThrVolPct1", -1, 1, "Res_ThrVolPct1False"},
    {"TVOL Threshold", "edtThrVolPct1", 100, 99, "Res_ThrVolPct1False"},
    {"TVOL Threshold", "edtThrPx2", -0.1, 0, "Res_Thrpx2False"},
    {"TVOL Threshold", "edtThrVolPct2", -1, 0, "Res_ThrVolPct2False"},
    {"TVOL Threshold", "edtThrVolPct2", 100, 99, "Res_ThrVolPct2False"},
    {"VWAP", "edtWPx", 0, 0.1, "Res_WpxFalse"},
    {"VWAP", "edtMinOrdAmt", 0, 1, "Res_MinordamtFalse"},
    {"VWAP", "edtMaxVolPct", 0, 1, "Res_MaxVolPctFalse"},
    {"VWAP", "edtMaxVolPct", 75, 74, "Res_MaxVolPctFalse"},
    {"VWAP", "edtOpenPct", 0, 1, "Res_OpenPctFalse"},
    {"VWAP", "edtOpenPct", 100, 99, "Res_OpenPctFalse"},
    {"VWAP", "edtClosePct", 0, 1, "Res_ClosePctFalse"},
    {"VWAP", "edtClosePct", 100, 99, "Res_ClosePctFalse"},
    {"VWAP", "edtSlices", 0, 1, "Res_SlicesFalse"},
    {"TWAP", "edtWPx", 0, 0.1, "Res_WpxFalse"},
    {"TWAP", "edtMinOrdAmt", 0, 1, "Res_MinordamtFalse"},
    {"TWAP", "edtMaxVolPct", 0, 1, "Res_MaxVolPctFalse"},
    {"TWAP", "edtMaxVolPct", 75, 74, "Res_MaxVolPctFalse"},
    {"TWAP", "edtSlices", 0, 1, "Res_SlicesFalse"},
    {"ICEBERG", "edtMinOrdAmt", 0, 1, "Res_MinordamtFalse"},
    {"ICEBERG", "edtShowQty", 0, 1, "Res_ShowQtyFalse"},
    {"ICEBERG", "edtMaxShowQty", 0, 1, "Res_MaxShowQtyFalse"},
    {"ICEBERG", "edtRandPct", 100, 99, "Res_RandPctFalse"},
    {"ICEBERG", "edtRandPct", 0, 1, "Res_RandPctFalse"},
    {"ICEBERG", "edtReloadPct", 0, 1, "Res_ReloadPctFalse"},
    {"ICEBERG", "edtReloadPct", 100, 99, "Res_ReloadPctFalse"},
    {"ICEBERG", "edtWPx", 0, 0.1, "Res_WpxFalse"},
    {"STOP", "edtStopLossPx", 0, 0.1, "Res_StopLossPxMiss"},
    {"STOP", "edtStopLossPx", -0.1, 1, "Res_StopLossFalse"},
    {"STOP", "edtStopQty", -1, 0, "Res_StopQtyFalse"},
    {"PEG", "edtMaxVolPct", 0, 1, "Res_MaxVolPctFalse"},
    {"PEG", "edtMaxVolPct", 80, 79, "Res_MaxVolPctFalse"},
    {"PEG", "edtJoinThr", 0, 0.1, "Res_JoinThrFalse"},
    {"PEG", "edtShowQty", 0, 1, "Res_ShowQtyFalse"},
    {"PEG", "edtRandTimeOut", 100, 99, "Res_RandTimeoutFalse"},
    {"PEG", "edtRandTimeOut", 0, 1, "Res_RandTimeoutFalse"},
    {"PEG", "edtJoinQty", 0, 1, "Res_JoinQtyFalse"},
    {"PEG", "edtDiffPct", -100, -99, "Res_DiffPctFalse"},
    {"PEG", "edtDiffPct", 100, 99, "Res_DiffPctFalse"},
    {"PEG", "edtTickDiff", -500, -499, "Res_TickDiffFalse"},
    {"PEG", "edtTickDiff", 500, 499, "Res_TickDiffFalse"},
    {"PEG", "edtTimeOut", 0, 1, "Res_TimeoutFalse"},
    {"PEG", "edtWPx", 0, 0.1, "Res_WpxFalse"},
    {"PEG", "edtMinOrdAmt", 0, 1, "Res_MinordamtFalse"},
    {"MOC", "edtMaxVolPct", 0, 1, "Res_MaxVolPctFalse"},
    {"MOC", "edtMaxVolPct", 80, 79, "Res_MaxVolPctFalse"},
    {"MOC", "edtWPx", 0, 0.1, "Res_WpxFalse"},
    {"MOC", "edtMinOrdAmt", 0, 1, "Res_MinordamtFalse"},
    {"MOC", "edtClosePct", 0, 1, "Res_ClosePctFalse"},
    {"MOC", "edtClosePct", 100, 99, "Res_ClosePctFalse"},
    {"MOC", "edtShowQty", 0, 1, "Res_ShowQtyFalse"},
    {"SNIPER", "edtTimeOut", 0, 1, "Res_TimeoutFalse"},
    {"SNIPER", "edtMinQty", 0, 1, "Res_MinQtyFalse"},
    {"SNIPER", "edtServePct", 0, 1, "Res_ServePctFalse"},
    {"SNIPER", "edtServePct", 100, 99, "Res_ServePctFalse"},
};

TEST_F(ChangeRules, RefuseEachBoundOfEachAlgorithmAndPassTheValueBesideIt) {
  for (const TRuleRow& row : Rules) {
    EXPECT_EQ(ToldFor(row.algo, row.control, row.refused), row.message)
        << row.algo << " " << row.control << " " << row.refused;
    EXPECT_EQ(ToldFor(row.algo, row.control, row.passed), "")
        << row.algo << " " << row.control << " " << row.passed;
  }
}

TEST_F(ChangeRules, LookAtNoFieldOfAnotherAlgorithm) {
  struct TRow {
    const char* algo;
    const char* control;
  };
  for (const TRow& row : {TRow{"TVOL", "edtMaxVolPct"},
                          {"TVOL Threshold", "edtMaxVolPct"},
                          {"TWAP", "edtOpenPct"},
                          {"TWAP", "edtClosePct"},
                          {"VWAP", "edtVolPct"},
                          {"ICEBERG", "edtMaxVolPct"},
                          {"STOP", "edtWPx"},
                          {"PEG", "edtMaxShowQty"},
                          {"MOC", "edtOpenPct"},
                          {"SNIPER", "edtWPx"},
                          {"SNIPER", "edtRandTimeOut"}}) {
    EXPECT_EQ(ToldFor(row.algo, row.control, -7), "") << row.algo << " " << row.control;
  }
}

TEST_F(ChangeRules, PassCloseOpenAndShortSellWhateverTheFieldsHold) {
  for (const char* text : {"TMLO:AlgoId=CLOSE;", "TMLO:AlgoId=OPEN;", "TMLO:AlgoId=SHORT SELL;"}) {
    TCustomClientOrder order = OrderWith(text);
    Forget();
    Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
      for (const auto& control : frame.Controls()) {
        auto* spin = dynamic_cast<forms::TSpinEdit*>(control.get());
        if (spin != nullptr) spin->SetValue(-1000);
      }
      Click(frame, "btnBuy");
    });
    EXPECT_TRUE(Told().empty()) << text;
    EXPECT_EQ(TakenOrder().TextProperty(440), text);
  }
}

TEST_F(ChangeRules, PassEveryAlgorithmWithEmptyFields) {
  for (const char* algo : {"TVOL", "TVOL Threshold", "TWAP", "VWAP", "CLOSE", "OPEN", "ICEBERG", "STOP",
                           "PEG", "MOC", "SNIPER", "SHORT SELL"}) {
    TCustomClientOrder order = OrderWith("TMLO:AlgoId=" + std::string(algo) + ";");
    Forget();
    Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
      EXPECT_EQ(Named(frame, "edtStopLossPx").Text(), "");
      Click(frame, "btnBuy");
    });
    EXPECT_TRUE(Told().empty()) << algo;
    EXPECT_EQ(Seen("take_action").size(), 1U) << algo;
  }
}

TEST_F(ChangeRules, LookAtTheTimesBeforeAnyFieldOfTheAlgorithm) {
  struct TRow {
    const char* start;
    const char* end;
    const char* told;
  };
  for (const TRow& row : {TRow{"2024-01-15 09:30:00", "2024-01-15 09:29:59", "Res_DateFalse"},
                          {"2024-01-15 09:30:00", "2024-01-15 09:30:00", "Res_VolumePctFalse"},
                          {"2024-01-15 09:30:00", "2024-01-15 09:30:01", "Res_VolumePctFalse"},
                          {"2024-01-15 09:30:00", "", "Res_VolumePctFalse"},
                          {"", "2024-01-15 09:30:00", "Res_VolumePctFalse"}}) {
    TCustomClientOrder order = OrderWith("TMLO:AlgoId=TVOL,STime=20240115-09:30:00,ETime=20240115-15:00:00;");
    Forget();
    Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
      Type(frame, "deSTime", row.start);
      Type(frame, "deETime", row.end);
      Leave(frame);
      Spin(frame, "edtVolPct").SetValue(80);
      Click(frame, "btnBuy");
    });
    EXPECT_EQ(Told(), std::vector<std::string>{row.told}) << row.start << " " << row.end;
  }
}

TEST_F(ChangeRules, TellTheFirstFailureAlone) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=PEG;");
  Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
    for (const char* control : {"edtMinOrdAmt", "edtWPx", "edtTimeOut", "edtJoinThr"}) {
      Spin(frame, control).SetValue(0);
    }
    Click(frame, "btnBuy");
    Spin(frame, "edtJoinThr").SetValue(1);
    Click(frame, "btnBuy");
    Spin(frame, "edtTimeOut").SetValue(1);
    Click(frame, "btnBuy");
  });
  EXPECT_EQ(Told(), (std::vector<std::string>{"Res_JoinThrFalse", "Res_TimeoutFalse", "Res_WpxFalse"}));
}

TEST_F(ChangeRules, NeverAskAgainForWhatIdentifiesTheOrder) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=TVOL;");
  order.account = "";
  order.symbol = "";
  order.quantity = 0;
  Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) { Click(frame, "btnBuy"); });
  EXPECT_TRUE(Told().empty());
  Forget();
  order = OrderWith("TMLO:AlgoId=TVOL;");
  order.account = "nobody's";
  Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
    Type(frame, "edtQty", "");
    Click(frame, "btnBuy");
  });
  EXPECT_TRUE(Told().empty());
  EXPECT_EQ(TakenOrder().quantity, 0);
}

TEST_F(ChangeRules, WriteNothingAndLeaveTheFormAsItIs) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=TVOL,VolPct=20;");
  const std::string before = Facts(order);
  Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
    Type(frame, "edtQty", "70");
    Leave(frame);
    EXPECT_TRUE(frame.CheckOrderValid());
    Spin(frame, "edtVolPct").SetValue(80);
    EXPECT_FALSE(frame.CheckOrderValid());
    EXPECT_EQ(Spin(frame, "edtVolPct").Value(), 80.0);
    EXPECT_EQ(Spin(frame, "edtQty").Value(), 70.0);
    EXPECT_EQ(frame.Focused(), nullptr);
  });
  EXPECT_EQ(Facts(order), before);
}

TEST_F(ChangeRules, FailAtTheAlgorithmJustBehindTheListAndPassThoseBeyond) {
  TCustomClientOrder order = OrderWith("TMLO:AlgoId=TVOL;");
  Change(order, [&](forms::TDialogForm&, TChangeFrame& frame) {
    auto& algos = Combo(frame, "cmbOrderType");
    std::vector<std::string> items = algos.Items();
    const auto behind = static_cast<std::int32_t>(items.size());
    items.insert(items.end(), {"behind", "beyond"});
    algos.Refill(items, behind);
    EXPECT_THROW(frame.CheckOrderValid(), EListIndexError);
    algos.Refill(items, behind + 1);
    EXPECT_TRUE(frame.CheckOrderValid());
    algos.Refill(items, -1);
    EXPECT_TRUE(frame.CheckOrderValid());
  });
}

}  // namespace
}  // namespace algo::tests
