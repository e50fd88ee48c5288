#pragma once

// The check of an order's entries: rules in a fixed order, of which the first that fails is told to the
// trader.

#include <cstdint>
#include <optional>
#include <string_view>

#include "model/algos.h"
#include "model/values.h"

namespace algo::model {

/// How the trader is told: a text of the module's resources, or the host's own text for an error code.
enum class TMessageSource : std::uint8_t { Resource, HostCode };

/// What a failed rule says.
struct TRuleFailure {
  TMessageSource source;
  std::string_view id;

  bool operator==(const TRuleFailure&) const = default;
};

/// What the rules that every new order has to satisfy read.
struct TNewOrder {
  std::int32_t side;  ///< 0 buy, 1 sell, anything else not chosen
  std::string_view account;
  bool (*accountKnown)(std::string_view account);  ///< asked only when the account's turn comes
  std::string_view symbol;
  bool hasInstrument;
  std::int64_t quantity;
  bool algoChosen;
};

// Each check returns what the first failed rule says, nothing when all pass. None allocates.

/// Side, account, symbol, quantity and algorithm.
std::optional<TRuleFailure> CheckCommonRules(const TNewOrder& order);

/// Start before end, where both are given; equal times pass.
std::optional<TRuleFailure> CheckTimes(const TParamValues& values);

/// The algorithm's own rules.
std::optional<TRuleFailure> CheckAlgoRules(const TAlgoRow& algo, const TParamValues& values);

}  // namespace algo::model
