#pragma once

// The paper engine's books of one order: what it read from the order, and what it did with it. What was
// filled is told by the books and not by the order, since whoever changes an order does so on a copy that may
// be old.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "plugin/host_contract/orders.h"
#include "terminal/paper/algo_plan.h"
#include "terminal/paper/order_window.h"
#include "terminal/paper/paper_algos.h"

namespace algo::terminal::paper {

/// How far an order has come.
struct TOutcome {
  double filled = 0;
  double value = 0;  ///< what was paid for it: the sum of quantity times price
  std::int32_t status = 0;

  /// The average price; 0 while nothing is filled.
  double Average() const;
  /// The same with that status.
  TOutcome WithStatus(std::int32_t newStatus) const;
  /// The same with the status of an order of that quantity of which so much is filled; what is done stays so,
  /// and what is not filled has the status that it has.
  TOutcome WithProgress(double quantity) const;
};

/// What of an order the trader decides; the engine reads the order anew when it differs.
struct TTerms {
  std::string text;
  std::string symbol;
  std::int32_t side = 0;
  double quantity = 0;
  double price = 0;

  bool Match(const host::TCustomClientOrder& order) const;
};

struct TPaperOrder {
  /// Takes over how far the order has come by itself. `order` is in the store, and so outlives the books.
  explicit TPaperOrder(const host::TCustomClientOrder& storedOrder);

  bool IsParent() const;
  bool IsChildOf(const TPaperOrder& parent) const;
  /// Whether the engine decides how far the order comes: an algorithm's order, or a parent.
  bool IsWorkedHere() const;
  bool IsBuy() const { return order.side == host::SideBuy; }

  /// How far the order has come by what the stored order says.
  TOutcome ShownOutcome() const;
  /// Whether the stored order shows another outcome than the books.
  bool ShowsAnotherOutcome() const;

  const host::TCustomClientOrder& order;
  TOutcome outcome;
  bool told = true;  ///< the order came or changed, and was not looked at since

  std::optional<TTerms> terms;  ///< what the following was read from
  TAlgoPlan plan;
  const TPaperAlgo* algo = nullptr;  ///< none when the order is not worked by itself
  std::size_t instrument = 0;
  TWindow window{};

  double filledBefore = 0;  ///< what was filled when the terms were read
  double mayTake = 0;       ///< part of a lot that was too little to take
  double onDisplay = 0;     ///< what is left of the quantity shown
};

}  // namespace algo::terminal::paper
