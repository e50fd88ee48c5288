// The part of the engine that works one order in one step.

#include <algorithm>
#include <cmath>
#include <limits>

#include "terminal/host/order_status.h"
#include "terminal/paper/paper_engine.h"
#include "terminal/paper/trade_price.h"
#include "text/number_text.h"

namespace algo::terminal::paper {

namespace {

double WholeLots(double quantity, double lot) {
  // A rounding error below a whole number of lots must not cost a lot.
  constexpr double Slack = 1e-9;
  return std::max(0.0, std::floor(quantity / lot + Slack) * lot);
}

// The part of a step that ended at `now` that lies after `begin`, from 0 to 1.
double PartOfStep(TMoment begin, TMoment now, double seconds) {
  const double inside = (now - begin).count();
  return inside >= seconds ? 1 : inside / seconds;
}

}  // namespace

void TPaperEngine::Work(TPaperOrder& order, TMoment now, double seconds) {
  if (order.algo == nullptr || IsDone(order.outcome.status)) return;
  if (now > order.window.end) {
    return Report(order, "expire", "end time reached", order.outcome.WithStatus(status::Expired));
  }
  if (now <= order.window.begin) return;

  const TQuote& quote = FMarket.Quote(order.instrument);
  const TStepView view{order.plan,
                       quote,
                       order.IsBuy(),
                       order.order.quantity,
                       order.outcome.filled,
                       order.filledBefore,
                       order.window.Passed(now),
                       quote.stepVolume * PartOfStep(order.window.begin, now, seconds)};
  if (order.outcome.status == status::Accepted) {
    if (!order.algo->begins(view)) return;
    Report(order, "start", "working", order.outcome.WithStatus(status::Working));
  }
  Fill(order, view);
}

void TPaperEngine::Fill(TPaperOrder& order, const TStepView& view) {
  const TMarketTables& tables = FMarket.Tables();
  const TPaperInstrument& instrument = tables.instruments[order.instrument];
  const double limit = StricterLimit(view.buy, order.order.price, order.plan.limit);
  const auto price =
      TradePrice(order.algo->pricing, order.plan, view.buy, limit, view.quote, tables.SpreadOf(instrument));
  if (!price) return;

  const double lot = instrument.lot;
  const double mayTake = order.mayTake + order.algo->mayTake(view, order.algo->percent);
  const double onDisplay = OnDisplay(order, lot);
  const double quantity =
      WholeLots(std::min({view.quantity - view.filled, order.algo->wants(view), mayTake, onDisplay}), lot);

  // Parts of a lot add up over the steps; whole lots that were not taken are lost with their trades.
  order.mayTake = std::fmod(mayTake - quantity, lot);
  order.onDisplay = onDisplay;
  if (quantity <= 0) return;
  TOutcome outcome = order.outcome;
  outcome.filled += quantity;
  outcome.value += quantity * *price;
  Report(order, "fill", text::PlainNumber(quantity) + " at " + text::PlainNumber(*price),
         outcome.WithProgress(view.quantity));
  order.onDisplay -= quantity;
}

// The quantity on display: what remains of it, or the next portion if it is used up.
double TPaperEngine::OnDisplay(const TPaperOrder& order, double lot) {
  const TAlgoPlan& plan = order.plan;
  if (plan.showQty <= 0) return std::numeric_limits<double>::infinity();
  if (order.onDisplay >= lot) return order.onDisplay;
  const double varied = plan.showQty * (1 + plan.randPct / 100 * (2 * FRandom.Uniform() - 1));
  const double bounded = plan.maxShowQty > 0 ? std::min(varied, plan.maxShowQty) : varied;
  return std::max(lot, WholeLots(bounded, lot));
}

}  // namespace algo::terminal::paper
