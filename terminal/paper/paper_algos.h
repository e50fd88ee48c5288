#pragma once

// How the paper engine works each algorithm: much simpler than an engine that trades would, one row each. A
// row says in which part of the day the algorithm works, at what price, when it begins, how much it wants in
// a step, and how much of the market it may take for that. What holds for every algorithm is not here: the
// limit, the lots, the quantity on display, and that nothing is filled beyond the order.
//
// Nothing here heeds the choices for auctions, style, function and joining, the least amount of a child, the
// reload percentage and the time-outs: a paper market has no queue for them to matter in.

#include <string_view>

#include "terminal/paper/algo_plan.h"
#include "terminal/paper/order_window.h"
#include "terminal/paper/quote.h"

namespace algo::terminal::paper {

/// What an algorithm sees of its order and of the market in a step.
struct TStepView {
  const TAlgoPlan& plan;
  const TQuote& quote;
  bool buy = true;
  double quantity = 0;
  double filled = 0;
  double filledBefore = 0;  ///< what was filled when the order's window began or the order was changed
  double passed = 0;        ///< how much of the order's window has passed, from 0 to 1
  double volume = 0;        ///< shares traded in the part of the step that lies in the window

  /// Shares on offer at the best price of the other side.
  double OnOffer() const { return buy ? quote.askSize : quote.bidSize; }
};

/// Takes what the other side offers, or rests at a price of its own until somebody trades there.
enum class TPricing { Take, Rest };

struct TPaperAlgo {
  std::string_view code;
  TPhase phase = TPhase::Day;
  TPricing pricing = TPricing::Take;
  double percent = 0;  ///< of the traded volume, when the order does not say
  /// Whether the order may begin; not asked again once it has.
  bool (*begins)(const TStepView& view) = nullptr;
  /// How many shares it wants in this step, beyond what is filled; the order's rest bounds it.
  double (*wants)(const TStepView& view) = nullptr;
  /// How many shares of this step it may take.
  double (*mayTake)(const TStepView& view, double percent) = nullptr;
};

/// The row of the algorithm with that code, apart from letter case; nullptr when there is none.
const TPaperAlgo* FindPaperAlgo(std::string_view code);

}  // namespace algo::terminal::paper
