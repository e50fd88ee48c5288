#include "model/rules.h"

#include <algorithm>
#include <array>

namespace algo::model {

namespace {

struct TCommonRule {
  bool (*fails)(const TNewOrder& order);
  TRuleFailure failure;
};

constexpr std::array CommonRules{
    TCommonRule{[](const TNewOrder& order) { return order.side != 0 && order.side != 1; },
                {TMessageSource::Resource, "Res_BuySellMiss"}},
    TCommonRule{[](const TNewOrder& order) { return order.account.empty(); },
                {TMessageSource::HostCode, "DC10013001"}},
    TCommonRule{[](const TNewOrder& order) { return !order.accountKnown(order.account); },
                {TMessageSource::HostCode, "DC10013002"}},
    TCommonRule{[](const TNewOrder& order) { return order.symbol.empty() || !order.hasInstrument; },
                {TMessageSource::HostCode, "DC1000001"}},
    TCommonRule{[](const TNewOrder& order) { return order.quantity < 1; },
                {TMessageSource::HostCode, "DC1004001"}},
    TCommonRule{[](const TNewOrder& order) { return !order.algoChosen; },
                {TMessageSource::Resource, "Res_MarketMiss"}},
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
    case TComparison::Above:
      return *value > test.bound;
  }
  return false;
}

}  // namespace

std::optional<TRuleFailure> CheckCommonRules(const TNewOrder& order) {
  const auto failed = std::find_if(CommonRules.begin(), CommonRules.end(),
                                   [&order](const TCommonRule& rule) { return rule.fails(order); });
  return failed == CommonRules.end() ? std::nullopt : std::optional(failed->failure);
}

std::optional<TRuleFailure> CheckTimes(const TParamValues& values) {
  const auto start = values.Time(TParam::STime);
  const auto end = values.Time(TParam::ETime);
  if (start && end && *start > *end) return TRuleFailure{TMessageSource::Resource, "Res_DateFalse"};
  return std::nullopt;
}

std::optional<TRuleFailure> CheckAlgoRules(const TAlgoRow& algo, const TParamValues& values) {
  for (const TRule& rule : algo.rules) {
    const auto value = values.Number(rule.param);
    if (Holds(rule.first, value) || (rule.second && Holds(*rule.second, value))) {
      return TRuleFailure{TMessageSource::Resource, rule.message};
    }
  }
  return std::nullopt;
}

}  // namespace algo::model
