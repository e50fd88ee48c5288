#include <gtest/gtest.h>

#include <optional>
#include <string_view>
#include <vector>

#include "model/rules.h"

namespace algo::model {
namespace {

using enum TParam;

std::optional<TRuleFailure> Check(std::string_view code, const TParamValues& values) {
  const TAlgoRow* row = FindAlgoByCode(code);
  EXPECT_NE(row, nullptr) << code;
  return CheckAlgoRules(*row, values);
}

std::optional<TRuleFailure> CheckOne(std::string_view code, TParam param, double value) {
  TParamValues values;
  values.SetNumber(param, value);
  return Check(code, values);
}

std::optional<TRuleFailure> Says(std::string_view message) {
  if (message.empty()) return std::nullopt;
  return TRuleFailure{TMessageSource::Resource, message};
}

// What one field alone makes each algorithm say: at the bound, just inside it, beyond it. Nothing said is "".
struct TCase {
  std::string_view code;
  TParam param;
  std::vector<std::pair<double, std::string_view>> says;
};

using TSays = std::vector<std::pair<double, std::string_view>>;

TSays AboveZero(std::string_view message) { return {{-1, message}, {0, message}, {0.001, ""}, {1e12, ""}}; }
TSays ZeroOrAbove(std::string_view message) {
  return {{-1, message}, {-0.001, message}, {0, ""}, {1e12, ""}};
}
TSays Between(double low, double high, std::string_view message) {
  return {{low - 1, message}, {low, message},  {low + 0.001, ""},  {(low + high) / 2, ""},
          {high - 0.001, ""}, {high, message}, {high + 1, message}};
}

const std::vector<TCase> AllCases{
    {"TVOL",
     VolPct,
     {{-0.001, "Res_VolumePctFalse"},
      {0, "Res_VolPctMiss"},
      {0.001, ""},
      {79, ""},
      {79.999, ""},
      {80, "Res_VolumePctFalse"},
      {81, "Res_VolumePctFalse"}}},
    {"TVOL", WPx, AboveZero("Res_WpxFalse")},
    {"TVOL", MinOrdAmt, AboveZero("Res_MinordamtFalse")},
    {"TVOL Threshold",
     VolPct,
     {{-0.001, "Res_VolumePctFalse"},
      {0, "Res_VolPctMiss"},
      {0.001, ""},
      {79.999, ""},
      {80, "Res_VolumePctFalse"},
      {81, "Res_VolumePctFalse"}}},
    {"TVOL Threshold", WPx, ZeroOrAbove("Res_WpxFalse")},
    {"TVOL Threshold", MinOrdAmt, ZeroOrAbove("Res_MinordamtFalse")},
    {"TVOL Threshold", ThrPx1, {{-0.001, "Res_ThrPx1False"}, {0, "Res_ThrPx1Miss"}, {0.001, ""}, {1e12, ""}}},
    {"TVOL Threshold",
     ThrVolPct1,
     {{-0.001, "Res_ThrVolPct1False"},
      {0, "Res_ThrVolPct1Miss"},
      {0.001, ""},
      {99.999, ""},
      {100, "Res_ThrVolPct1False"},
      {101, "Res_ThrVolPct1False"}}},
    {"TVOL Threshold", ThrPx2, ZeroOrAbove("Res_Thrpx2False")},
    {"TVOL Threshold",
     ThrVolPct2,
     {{-0.001, "Res_ThrVolPct2False"},
      {0, ""},
      {99.999, ""},
      {100, "Res_ThrVolPct2False"},
      {101, "Res_ThrVolPct2False"}}},
    {"TWAP", WPx, AboveZero("Res_WpxFalse")},
    {"TWAP", MinOrdAmt, AboveZero("Res_MinordamtFalse")},
    {"TWAP", MaxVolPct, Between(0, 75, "Res_MaxVolPctFalse")},
    {"TWAP", Slices, AboveZero("Res_SlicesFalse")},
    {"VWAP", WPx, AboveZero("Res_WpxFalse")},
    {"VWAP", MinOrdAmt, AboveZero("Res_MinordamtFalse")},
    {"VWAP", MaxVolPct, Between(0, 75, "Res_MaxVolPctFalse")},
    {"VWAP", OpenPct, Between(0, 100, "Res_OpenPctFalse")},
    {"VWAP", ClosePct, Between(0, 100, "Res_ClosePctFalse")},
    {"VWAP", Slices, AboveZero("Res_SlicesFalse")},
    {"ICEBERG", MinOrdAmt, AboveZero("Res_MinordamtFalse")},
    {"ICEBERG", ShowQty, AboveZero("Res_ShowQtyFalse")},
    {"ICEBERG", MaxShowQty, AboveZero("Res_MaxShowQtyFalse")},
    {"ICEBERG", RandPct, Between(0, 100, "Res_RandPctFalse")},
    {"ICEBERG", ReloadPct, Between(0, 100, "Res_ReloadPctFalse")},
    {"ICEBERG", WPx, AboveZero("Res_WpxFalse")},
    {"STOP", StopLossPx, {{-0.001, "Res_StopLossFalse"}, {0, "Res_StopLossPxMiss"}, {0.001, ""}, {1e12, ""}}},
    {"STOP", StopQty, ZeroOrAbove("Res_StopQtyFalse")},
    {"PEG", MaxVolPct, Between(0, 80, "Res_MaxVolPctFalse")},
    {"PEG", JoinThr, AboveZero("Res_JoinThrFalse")},
    {"PEG", ShowQty, AboveZero("Res_ShowQtyFalse")},
    {"PEG", RandTimeOut, Between(0, 100, "Res_RandTimeoutFalse")},
    {"PEG", JoinQty, AboveZero("Res_JoinQtyFalse")},
    {"PEG", DiffPct, Between(-100, 100, "Res_DiffPctFalse")},
    {"PEG", TickDiff, Between(-500, 500, "Res_TickDiffFalse")},
    {"PEG", TimeOut, AboveZero("Res_TimeoutFalse")},
    {"PEG", WPx, AboveZero("Res_WpxFalse")},
    {"PEG", MinOrdAmt, AboveZero("Res_MinordamtFalse")},
    {"MOC", MaxVolPct, Between(0, 80, "Res_MaxVolPctFalse")},
    {"MOC", WPx, AboveZero("Res_WpxFalse")},
    {"MOC", MinOrdAmt, AboveZero("Res_MinordamtFalse")},
    {"MOC", ClosePct, Between(0, 100, "Res_ClosePctFalse")},
    {"MOC", ShowQty, AboveZero("Res_ShowQtyFalse")},
    {"SNIPER", TimeOut, AboveZero("Res_TimeoutFalse")},
    {"SNIPER", MinQty, AboveZero("Res_MinQtyFalse")},
    {"SNIPER", ServePct, Between(0, 100, "Res_ServePctFalse")},
};

TEST(AlgoRules, RefuseAFieldAtItsBoundAndPassItInside) {
  for (const TCase& field : AllCases) {
    for (const auto& [value, message] : field.says) {
      EXPECT_EQ(CheckOne(field.code, field.param, value), Says(message))
          << field.code << " " << ParamRow(field.param).key << "=" << value;
    }
  }
}

TEST(AlgoRules, LookAtNoOtherField) {
  for (const TAlgoRow& row : AlgoRows()) {
    TParamValues values;
    for (const TParamRow& param : ParamRows()) {
      if (IsNumber(param.kind)) values.SetNumber(param.param, -1e9);
    }
    for (const TCase& field : AllCases) {
      if (field.code == row.code) values.SetNumber(field.param, std::nullopt);
    }
    EXPECT_EQ(CheckAlgoRules(row, values), std::nullopt) << row.code;
  }
}

TEST(AlgoRules, PassAFieldThatIsEmpty) {
  for (const TAlgoRow& row : AlgoRows()) EXPECT_EQ(CheckAlgoRules(row, {}), std::nullopt) << row.code;
}

TEST(AlgoRules, PassAnEmptyStopLossPriceButNotAPriceOfNothing) {
  TParamValues values;
  values.SetNumber(StopQty, 100);
  EXPECT_EQ(Check("STOP", values), std::nullopt);
  values.SetNumber(StopLossPx, 0);
  EXPECT_EQ(Check("STOP", values), Says("Res_StopLossPxMiss"));
}

TEST(AlgoRules, AreNoneForTheSimplestAlgorithms) {
  for (const std::string_view code : {"CLOSE", "OPEN", "SHORT SELL"}) {
    TParamValues values;
    for (const TParamRow& param : ParamRows()) {
      if (IsNumber(param.kind)) values.SetNumber(param.param, -1);
    }
    EXPECT_EQ(Check(code, values), std::nullopt) << code;
  }
}

// All rules of an algorithm in their order, each with a value that breaks it.
struct TBroken {
  TParam param;
  double value;
  std::string_view message;
};
struct TSequence {
  std::string_view code;
  std::vector<TBroken> rules;
};

const std::vector<TSequence> AllSequences{
    {"TVOL",
     {{VolPct, 0, "Res_VolPctMiss"},
      {VolPct, 80, "Res_VolumePctFalse"},
      {WPx, 0, "Res_WpxFalse"},
      {MinOrdAmt, 0, "Res_MinordamtFalse"}}},
    {"TVOL Threshold",
     {{VolPct, 0, "Res_VolPctMiss"},
      {VolPct, 80, "Res_VolumePctFalse"},
      {WPx, -1, "Res_WpxFalse"},
      {MinOrdAmt, -1, "Res_MinordamtFalse"},
      {ThrPx1, 0, "Res_ThrPx1Miss"},
      {ThrPx1, -1, "Res_ThrPx1False"},
      {ThrVolPct1, 0, "Res_ThrVolPct1Miss"},
      {ThrVolPct1, 100, "Res_ThrVolPct1False"},
      {ThrPx2, -1, "Res_Thrpx2False"},
      {ThrVolPct2, 100, "Res_ThrVolPct2False"}}},
    {"TWAP",
     {{WPx, 0, "Res_WpxFalse"},
      {MinOrdAmt, 0, "Res_MinordamtFalse"},
      {MaxVolPct, 75, "Res_MaxVolPctFalse"},
      {Slices, 0, "Res_SlicesFalse"}}},
    {"VWAP",
     {{WPx, 0, "Res_WpxFalse"},
      {MinOrdAmt, 0, "Res_MinordamtFalse"},
      {MaxVolPct, 75, "Res_MaxVolPctFalse"},
      {OpenPct, 100, "Res_OpenPctFalse"},
      {ClosePct, 100, "Res_ClosePctFalse"},
      {Slices, 0, "Res_SlicesFalse"}}},
    {"ICEBERG",
     {{MinOrdAmt, 0, "Res_MinordamtFalse"},
      {ShowQty, 0, "Res_ShowQtyFalse"},
      {MaxShowQty, 0, "Res_MaxShowQtyFalse"},
      {RandPct, 100, "Res_RandPctFalse"},
      {ReloadPct, 100, "Res_ReloadPctFalse"},
      {WPx, 0, "Res_WpxFalse"}}},
    {"STOP",
     {{StopLossPx, 0, "Res_StopLossPxMiss"},
      {StopLossPx, -1, "Res_StopLossFalse"},
      {StopQty, -1, "Res_StopQtyFalse"}}},
    {"PEG",
     {{MaxVolPct, 80, "Res_MaxVolPctFalse"},
      {JoinThr, 0, "Res_JoinThrFalse"},
      {ShowQty, 0, "Res_ShowQtyFalse"},
      {RandTimeOut, 100, "Res_RandTimeoutFalse"},
      {JoinQty, 0, "Res_JoinQtyFalse"},
      {DiffPct, -100, "Res_DiffPctFalse"},
      {TickDiff, 500, "Res_TickDiffFalse"},
      {TimeOut, 0, "Res_TimeoutFalse"},
      {WPx, 0, "Res_WpxFalse"},
      {MinOrdAmt, 0, "Res_MinordamtFalse"}}},
    {"MOC",
     {{MaxVolPct, 80, "Res_MaxVolPctFalse"},
      {WPx, 0, "Res_WpxFalse"},
      {MinOrdAmt, 0, "Res_MinordamtFalse"},
      {ClosePct, 100, "Res_ClosePctFalse"},
      {ShowQty, 0, "Res_ShowQtyFalse"}}},
    {"SNIPER",
     {{TimeOut, 0, "Res_TimeoutFalse"},
      {MinQty, 0, "Res_MinQtyFalse"},
      {ServePct, 100, "Res_ServePctFalse"}}},
};

TEST(AlgoRules, TellTheFirstBrokenRuleAlone) {
  for (const TSequence& sequence : AllSequences) {
    TParamValues values;
    for (const TBroken& rule : sequence.rules) values.SetNumber(rule.param, rule.value);
    for (const TBroken& rule : sequence.rules) {
      values.SetNumber(rule.param, rule.value);
      EXPECT_EQ(Check(sequence.code, values), Says(rule.message)) << sequence.code;
      values.SetNumber(rule.param, std::nullopt);
    }
    EXPECT_EQ(Check(sequence.code, values), std::nullopt) << sequence.code;
  }
}

TEST(AlgoRules, CanIncludeTheirUpperLimit) {
  const TAlgoRow row{
      .code = "SAMPLE",
      .resourceId = "Res_Sample",
      .rules = {{VolPct, {TComparison::AtMost, 0}, TTest{TComparison::Above, 50}, "Res_Refused"}}};
  const auto refuses = [&row](std::optional<double> value) {
    TParamValues values;
    values.SetNumber(VolPct, value);
    return CheckAlgoRules(row, values).has_value();
  };
  EXPECT_TRUE(refuses(0));
  EXPECT_FALSE(refuses(0.01));
  EXPECT_FALSE(refuses(50));
  EXPECT_TRUE(refuses(50.01));
  EXPECT_FALSE(refuses(std::nullopt));
}

TEST(AlgoRules, AreAllTestedHere) {
  std::size_t rules = 0;
  for (const TAlgoRow& row : AlgoRows()) rules += row.rules.size();
  std::size_t tested = 0;
  for (const TSequence& sequence : AllSequences) tested += sequence.rules.size();
  EXPECT_EQ(rules, tested);
}

}  // namespace
}  // namespace algo::model
