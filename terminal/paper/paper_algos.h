#pragma once

// How the paper engine works each algorithm, one row each, and much simpler than a real engine. A row says in
// which part of the day the algorithm works, at what price, when it begins, how much it wants in a step, and
// how much of the market it may take. What holds for every algorithm is elsewhere: the limit, the lots, the
// quantity on display, and that nothing is filled beyond the order.
//
// The choices for auctions, style, function and joining, the minimum amount of a child, the reload percentage
// and the time-outs are ignored: a paper market has no queue in which they would matter.

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
  double filledBefore = 0;  ///< the quantity filled when the order's window began or the order was changed
  double passed = 0;        ///< the part of the order's window that has passed, from 0 to 1
  double volume = 0;        ///< shares traded in the part of the step that lies in the window

  /// Shares on offer at the best price of the other side.
  double OnOffer() const { return buy ? quote.askSize : quote.bidSize; }
};

/// Takes what the other side offers, or rests at its own price until somebody trades there.
enum class TPricing { Take, Rest };

struct TPaperAlgo {
  std::string_view code;
  TPhase phase = TPhase::Day;
  TPricing pricing = TPricing::Take;
  double percent = 0;  ///< of the traded volume, unless the order gives one
  /// Whether the order may begin; not asked again once it has.
  bool (*begins)(const TStepView& view) = nullptr;
  /// How many more shares it wants in this step; never filled beyond the order's quantity.
  double (*wants)(const TStepView& view) = nullptr;
  /// How many shares of this step it may take.
  double (*mayTake)(const TStepView& view, double percent) = nullptr;
};

/// The row of the algorithm with that code, ignoring case; nullptr if there is none.
const TPaperAlgo* FindPaperAlgo(std::string_view code);

}  // namespace algo::terminal::paper
