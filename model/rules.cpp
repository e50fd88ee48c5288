#include "model/rules.h"

#include <algorithm>
#include <array>

namespace algo::model {

namespace {

struct TCommonRule {
  bool (*fails)(const TNewOrder& order);
  TComplaint complaint;
};

constexpr std::array CommonRules{
    TCommonRule{[](const TNewOrder& order) { return order.side != 0 && order.side != 1; },
                {TTold::Resource, "Res_BuySellMiss"}},
    TCommonRule{[](const TNewOrder& order) { return order.account.empty(); },
                {TTold::HostCode, "DC10013001"}},
    TCommonRule{[](const TNewOrder& order) { return !order.accountKnown(order.account); },
                {TTold::HostCode, "DC10013002"}},
    TCommonRule{[](const TNewOrder& order) { return order.symbol.empty() || !order.hasInstrument; },
                {TTold::HostCode, "DC1000001"}},
    TCommonRule{[](const TNewOrder& order) { return order.quantity < 1; }, {TTold::HostCode, "DC1004001"}},
    TCommonRule{[](const TNewOrder& order) { return !order.algoChosen; },
                {TTold::Resource, "Res_MarketMiss"}},
};

// A test on nothing never holds.
bool Holds(const TTest& test, std::optional<double> value) {
  if (!value) return false;
  switch (test.comparison) {
    case TComparison::Equal:
      return *value == test.bound;
    case TComparison::Below:
      return *value < test.bound;
    case TComparison::AtMost:
      return *value <= test.bound;
    case TComparison::AtLeast:
      return *value >= test.bound;
  }
  return false;
}

}  // namespace

std::optional<TComplaint> CheckCommonRules(const TNewOrder& order) {
  const auto failed = std::find_if(CommonRules.begin(), CommonRules.end(),
                                   [&order](const TCommonRule& rule) { return rule.fails(order); });
  return failed == CommonRules.end() ? std::nullopt : std::optional(failed->complaint);
}

std::optional<TComplaint> CheckTimes(const TParamValues& values) {
  const auto start = values.Time(TParam::STime);
  const auto end = values.Time(TParam::ETime);
  if (start && end && *start > *end) return TComplaint{TTold::Resource, "Res_DateFalse"};
  return std::nullopt;
}

std::optional<TComplaint> CheckAlgoRules(const TAlgoRow& algo, const TParamValues& values) {
  for (const TRule& rule : algo.rules) {
    const auto value = values.Number(rule.param);
    if (Holds(rule.first, value) || (rule.second && Holds(*rule.second, value))) {
      return TComplaint{TTold::Resource, rule.message};
    }
  }
  return std::nullopt;
}

}  // namespace algo::model
