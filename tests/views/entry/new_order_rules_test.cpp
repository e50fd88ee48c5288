// Every rule of a new order through the form: what fails tells the trader once and sends nothing, what lies
// just inside is sent.

#include <optional>
#include <string>
#include <vector>

#include "tests/views/terminal_fixture.h"

namespace algo::tests {
namespace {

using TTexts = std::vector<std::string>;

class NewOrderRules : public TTerminalTest {
 protected:
  NewOrderRules() {
    // Straight to the order action manager, so that each order that passes is one action.
    Data().config["USER"]["ConfirmationPlaceOrd"] = "N";
  }

  /// Presses Submit; the messages that came of it.
  TTexts Submit(forms::TFrame& frame) {
    Forget();
    Click(frame, "btnSubmit");
    return Told();
  }

  /// Whether anything went to the host since the last submit.
  bool Sent() const {
    return !Seen("take_action").empty() || !Seen("post").empty() || !Seen("show_modal").empty();
  }
};

struct TRule {
  const char* algo;
  const char* editor;
  std::vector<double> fail;
  const char* message;
  std::vector<double> pass;
};

const std::vector<TRule> Rules{
    {"TVOL", "edtVolPct", {0}, "Res_VolPctMiss", {}},
    {"TVOL", "edtVolPct", {-0.001, -1, 80, 80.5}, "Res_VolumePctFalse", {0.001, 79, 79.999}},
    {"TVOL", "edtWPx", {0, -0.001}, "Res_WpxFalse", {0.001}},
    {"TVOL", "edtMinOrdAmt", {0, -1}, "Res_MinordamtFalse", {1}},
    {"TVOL Threshold", "edtVolPct", {0}, "Res_VolPctMiss", {}},
    {"TVOL Threshold", "edtVolPct", {-0.001, 80}, "Res_VolumePctFalse", {0.001, 79.999}},
    {"TVOL Threshold", "edtWPx", {-0.001}, "Res_WpxFalse", {0, 0.001}},
    {"TVOL Threshold", "edtMinOrdAmt", {-1}, "Res_MinordamtFalse", {0, 1}},
    {"TVOL Threshold", "edtThrPx1", {0}, "Res_ThrPx1Miss", {}},
    {"TVOL Threshold", "edtThrPx1", {-0.001}, "Res_ThrPx1False", {0.001}},
    {"TVOL Threshold", "edtThrVolPct1", {0}, "Res_ThrVolPct1Miss", {}},
    {"TVOL Threshold", "edtThrVolPct1", {-0.001, 100}, "Res_ThrVolPct1False", {0.001, 99.999}},
    {"TVOL Threshold", "edtThrPx2", {-0.001}, "Res_Thrpx2False", {0, 0.001}},
    {"TVOL Threshold", "edtThrVolPct2", {-0.001, 100}, "Res_ThrVolPct2False", {0, 99.999}},
    {"VWAP", "edtWPx", {0, -0.001}, "Res_WpxFalse", {0.001}},
    {"TWAP", "edtWPx", {0, -0.001}, "Res_WpxFalse", {0.001}},
    {"VWAP", "edtMinOrdAmt", {0, -1}, "Res_MinordamtFalse", {1}},
    {"TWAP", "edtMinOrdAmt", {0, -1}, "Res_MinordamtFalse", {1}},
    {"VWAP", "edtMaxVolPct", {0, -0.001, 75, 80}, "Res_MaxVolPctFalse", {0.001, 74.999}},
    {"TWAP", "edtMaxVolPct", {0, -0.001, 75, 80}, "Res_MaxVolPctFalse", {0.001, 74.999}},
    {"VWAP", "edtOpenPct", {0, -0.001, 100}, "Res_OpenPctFalse", {0.001, 99.999}},
    {"TWAP", "edtOpenPct", {}, "", {0, -1, 100}},
    {"VWAP", "edtClosePct", {0, -0.001, 100}, "Res_ClosePctFalse", {0.001, 99.999}},
    {"TWAP", "edtClosePct", {}, "", {0, -1, 100}},
    {"VWAP", "edtSlices", {0, -1}, "Res_SlicesFalse", {1}},
    {"TWAP", "edtSlices", {0, -1}, "Res_SlicesFalse", {1}},
    {"ICEBERG", "edtMinOrdAmt", {0, -1}, "Res_MinordamtFalse", {1}},
    {"ICEBERG", "edtShowQty", {0, -0.001}, "Res_ShowQtyFalse", {0.001}},
    {"ICEBERG", "edtMaxShowQty", {0, -1}, "Res_MaxShowQtyFalse", {1}},
    {"ICEBERG", "edtRandPct", {0, -0.001, 100}, "Res_RandPctFalse", {0.001, 99.999}},
    {"ICEBERG", "edtReloadPct", {0, -0.001, 100}, "Res_ReloadPctFalse", {0.001, 99.999}},
    {"ICEBERG", "edtWPx", {0, -0.001}, "Res_WpxFalse", {0.001}},
    {"STOP", "edtStopLossPx", {0}, "Res_StopLossPxMiss", {}},
    {"STOP", "edtStopLossPx", {-0.001}, "Res_StopLossFalse", {0.001}},
    {"STOP", "edtStopQty", {-1}, "Res_StopQtyFalse", {0, 1}},
    {"PEG", "edtMaxVolPct", {0, -0.001, 80}, "Res_MaxVolPctFalse", {0.001, 75, 79.999}},
    {"PEG", "edtJoinThr", {0, -0.001}, "Res_JoinThrFalse", {0.001}},
    {"PEG", "edtShowQty", {0, -0.001}, "Res_ShowQtyFalse", {0.001}},
    {"PEG", "edtRandTimeOut", {0, -0.001, 100}, "Res_RandTimeoutFalse", {0.001, 99.999}},
    {"PEG", "edtJoinQty", {0, -1}, "Res_JoinQtyFalse", {1}},
    {"PEG", "edtDiffPct", {-100, 100, -101}, "Res_DiffPctFalse", {-99.999, -99, 0, 99.999}},
    {"PEG", "edtTickDiff", {-500, 500, 501}, "Res_TickDiffFalse", {-499, 0, 499}},
    {"PEG", "edtTimeOut", {0, -1}, "Res_TimeoutFalse", {1}},
    {"PEG", "edtWPx", {0, -0.001}, "Res_WpxFalse", {0.001}},
    {"PEG", "edtMinOrdAmt", {0, -1}, "Res_MinordamtFalse", {1}},
    {"MOC", "edtMaxVolPct", {0, -0.001, 80}, "Res_MaxVolPctFalse", {0.001, 75, 79.999}},
    {"MOC", "edtWPx", {0, -0.001}, "Res_WpxFalse", {0.001}},
    {"MOC", "edtMinOrdAmt", {0, -1}, "Res_MinordamtFalse", {1}},
    {"MOC", "edtClosePct", {0, -0.001, 100}, "Res_ClosePctFalse", {0.001, 99.999}},
    {"MOC", "edtShowQty", {0, -0.001}, "Res_ShowQtyFalse", {0.001}},
    {"SNIPER", "edtTimeOut", {0, -1}, "Res_TimeoutFalse", {1}},
    {"SNIPER", "edtMinQty", {0, -0.001}, "Res_MinQtyFalse", {0.001}},
    {"SNIPER", "edtServePct", {0, -0.001, 100}, "Res_ServePctFalse", {0.001, 99.999}},
};

TEST_F(NewOrderRules, FailAtTheirBoundWithOneMessageAndSendNothing) {
  auto& frame = OpenFilled();
  for (const TRule& rule : Rules) {
    ChooseAlgo(frame, rule.algo);
    for (const double value : rule.fail) {
      Spin(frame, rule.editor).SetValue(value);
      EXPECT_EQ(Submit(frame), TTexts{rule.message}) << rule.algo << " " << rule.editor << " at " << value;
      EXPECT_FALSE(Sent()) << rule.algo << " " << rule.editor << " at " << value;
      EXPECT_EQ(Spin(frame, rule.editor).Value(), value) << rule.algo << " " << rule.editor;
    }
    Spin(frame, rule.editor).SetValue(std::nullopt);
  }
}

TEST_F(NewOrderRules, PassJustInsideAndWhereNothingIsGiven) {
  auto& frame = OpenFilled();
  for (const TRule& rule : Rules) {
    ChooseAlgo(frame, rule.algo);
    std::vector<std::optional<double>> values{std::nullopt};
    values.insert(values.end(), rule.pass.begin(), rule.pass.end());
    for (const auto& value : values) {
      Spin(frame, rule.editor).SetValue(value);
      EXPECT_EQ(Submit(frame), TTexts{}) << rule.algo << " " << rule.editor << " at " << value.value_or(-999);
      EXPECT_EQ(Seen("take_action").size(), 1U)
          << rule.algo << " " << rule.editor << " at " << value.value_or(-999);
    }
    Spin(frame, rule.editor).SetValue(std::nullopt);
  }
}

TEST_F(NewOrderRules, LeaveTheOrderUntouchedWhenOneFails) {
  auto& frame = OpenFilled();
  ChooseAlgo(frame, "TVOL");
  Spin(frame, "edtVolPct").SetValue(80);
  host::TCustomClientOrder order;
  order.account = "kept";
  order.symbol = "kept";
  order.exchange = "kept";
  order.quantity = 7;
  order.side = 9;
  order.price = 7;
  EXPECT_FALSE(frame.GetOrder(order));
  EXPECT_EQ(order.account, "kept");
  EXPECT_EQ(order.symbol, "kept");
  EXPECT_EQ(order.exchange, "kept");
  EXPECT_EQ(order.quantity, 7);
  EXPECT_EQ(order.side, 9);
  EXPECT_EQ(order.price, 7);
  EXPECT_EQ(Told(), TTexts{"Res_VolumePctFalse"});
}

TEST_F(NewOrderRules, TellTheFirstThatFailsAlone) {
  // Each algorithm's editors all wrong at once, mended one after the other in the order of the rules.
  struct TStep {
    const char* editor;
    double wrong;
    const char* message;
  };
  struct TCase {
    const char* algo;
    std::vector<TStep> steps;
  };
  const std::vector<TCase> cases{
      {"TVOL",
       {{"edtVolPct", 80, "Res_VolumePctFalse"},
        {"edtWPx", 0, "Res_WpxFalse"},
        {"edtMinOrdAmt", 0, "Res_MinordamtFalse"}}},
      {"TVOL Threshold",
       {{"edtVolPct", 0, "Res_VolPctMiss"},
        {"edtWPx", -1, "Res_WpxFalse"},
        {"edtMinOrdAmt", -1, "Res_MinordamtFalse"},
        {"edtThrPx1", 0, "Res_ThrPx1Miss"},
        {"edtThrVolPct1", 0, "Res_ThrVolPct1Miss"},
        {"edtThrPx2", -1, "Res_Thrpx2False"},
        {"edtThrVolPct2", 100, "Res_ThrVolPct2False"}}},
      {"VWAP",
       {{"edtWPx", 0, "Res_WpxFalse"},
        {"edtMinOrdAmt", 0, "Res_MinordamtFalse"},
        {"edtMaxVolPct", 75, "Res_MaxVolPctFalse"},
        {"edtOpenPct", 100, "Res_OpenPctFalse"},
        {"edtClosePct", 100, "Res_ClosePctFalse"},
        {"edtSlices", 0, "Res_SlicesFalse"}}},
      {"TWAP",
       {{"edtWPx", 0, "Res_WpxFalse"},
        {"edtMinOrdAmt", 0, "Res_MinordamtFalse"},
        {"edtMaxVolPct", 75, "Res_MaxVolPctFalse"},
        {"edtSlices", 0, "Res_SlicesFalse"}}},
      {"ICEBERG",
       {{"edtMinOrdAmt", 0, "Res_MinordamtFalse"},
        {"edtShowQty", 0, "Res_ShowQtyFalse"},
        {"edtMaxShowQty", 0, "Res_MaxShowQtyFalse"},
        {"edtRandPct", 0, "Res_RandPctFalse"},
        {"edtReloadPct", 0, "Res_ReloadPctFalse"},
        {"edtWPx", 0, "Res_WpxFalse"}}},
      {"STOP", {{"edtStopLossPx", 0, "Res_StopLossPxMiss"}, {"edtStopQty", -1, "Res_StopQtyFalse"}}},
      {"PEG",
       {{"edtMaxVolPct", 80, "Res_MaxVolPctFalse"},
        {"edtJoinThr", 0, "Res_JoinThrFalse"},
        {"edtShowQty", 0, "Res_ShowQtyFalse"},
        {"edtRandTimeOut", 100, "Res_RandTimeoutFalse"},
        {"edtJoinQty", 0, "Res_JoinQtyFalse"},
        {"edtDiffPct", -100, "Res_DiffPctFalse"},
        {"edtTickDiff", 500, "Res_TickDiffFalse"},
        {"edtTimeOut", 0, "Res_TimeoutFalse"},
        {"edtWPx", 0, "Res_WpxFalse"},
        {"edtMinOrdAmt", 0, "Res_MinordamtFalse"}}},
      {"MOC",
       {{"edtMaxVolPct", 80, "Res_MaxVolPctFalse"},
        {"edtWPx", 0, "Res_WpxFalse"},
        {"edtMinOrdAmt", 0, "Res_MinordamtFalse"},
        {"edtClosePct", 100, "Res_ClosePctFalse"},
        {"edtShowQty", 0, "Res_ShowQtyFalse"}}},
      {"SNIPER",
       {{"edtTimeOut", 0, "Res_TimeoutFalse"},
        {"edtMinQty", 0, "Res_MinQtyFalse"},
        {"edtServePct", 100, "Res_ServePctFalse"}}},
  };
  auto& frame = OpenFilled();
  for (const TCase& each : cases) {
    ChooseAlgo(frame, each.algo);
    for (const TStep& step : each.steps) Spin(frame, step.editor).SetValue(step.wrong);
    for (const TStep& step : each.steps) {
      EXPECT_EQ(Submit(frame), TTexts{step.message}) << each.algo;
      EXPECT_FALSE(Sent()) << each.algo;
      Spin(frame, step.editor).SetValue(std::nullopt);
    }
    EXPECT_EQ(Submit(frame), TTexts{}) << each.algo;
    EXPECT_TRUE(Sent()) << each.algo;
  }
}

TEST_F(NewOrderRules, LetCloseOpenAndShortSellPassWhateverTheFieldsHold) {
  auto& frame = OpenFilled();
  for (const char* algo : {"CLOSE", "OPEN", "SHORT SELL"}) {
    ChooseAlgo(frame, algo);
    for (const TRule& rule : Rules) Spin(frame, rule.editor).SetValue(-1000);
    EXPECT_EQ(Submit(frame), TTexts{}) << algo;
    EXPECT_EQ(Seen("take_action").size(), 1U) << algo;
  }
}

}  // namespace
}  // namespace algo::tests
