#pragma once

// The paper engine's record of one order: what it read from the order, and what it did with it. This record
// and not the order says what is filled, since a trader changes an order on a copy that may be outdated.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "plugin/host_contract/orders.h"
#include "terminal/paper/algo_plan.h"
#include "terminal/paper/order_window.h"
#include "terminal/paper/paper_algos.h"

namespace algo::terminal::paper {

/// How much of an order is filled, for how much, and its status.
struct TOutcome {
  double filled = 0;
  double value = 0;  ///< the sum of quantity times price of what is filled
  std::int32_t status = 0;

  /// The average price; 0 while nothing is filled.
  double Average() const;
  /// The same with that status.
  TOutcome WithStatus(std::int32_t newStatus) const;
  /// The same with the status that follows from what is filled of an order of that quantity. The status stays
  /// if the order is done or nothing is filled.
  TOutcome WithProgress(double quantity) const;
};

/// The part of an order that the trader decides; the engine reads the order again if it differs.
struct TTerms {
  std::string text;
  std::string symbol;
  std::int32_t side = 0;
  double quantity = 0;
  double price = 0;

  bool Match(const host::TCustomClientOrder& order) const;
};

struct TPaperOrder {
  /// Takes over the order's outcome so far. `storedOrder` is in the store, and so outlives the record.
  explicit TPaperOrder(const host::TCustomClientOrder& storedOrder);

  bool IsParent() const;
  bool IsChildOf(const TPaperOrder& parent) const;
  /// Whether the engine decides the order's outcome: an algo order or a parent.
  bool IsWorkedHere() const;
  bool IsBuy() const { return order.side == host::SideBuy; }

  /// The outcome according to the stored order.
  TOutcome StoredOutcome() const;
  /// Whether the stored order shows a different outcome.
  bool DiffersFromStored() const;

  const host::TCustomClientOrder& order;
  TOutcome outcome;
  bool changed = true;  ///< the order was added or changed, and was not processed since

  std::optional<TTerms> terms;  ///< the terms from which the following was read
  TAlgoPlan plan;
  const TPaperAlgo* algo = nullptr;  ///< nullptr if the order is not worked
  std::size_t instrument = 0;
  TWindow window{};

  double filledBefore = 0;  ///< the quantity filled when the terms were read
  double mayTake = 0;       ///< allowance of less than a lot, carried over to the next step
  double onDisplay = 0;     ///< what remains of the quantity on display
};

}  // namespace algo::terminal::paper
