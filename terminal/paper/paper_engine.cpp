#include "terminal/paper/paper_engine.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "terminal/host/order_status.h"
#include "terminal/paper/trade_price.h"
#include "text/number_text.h"

namespace algo::terminal {

namespace {

constexpr std::string_view Engine = "paper";

TOrderEvent Event(std::string_view what, std::string_view answer) {
  return {std::string(Engine), std::string(what), std::string(answer)};
}

TOutcome WithStatus(TOutcome outcome, std::int32_t status) {
  outcome.status = status;
  return outcome;
}

// The status of an order of which so much is filled; what has ended stays so.
TOutcome Progress(TOutcome outcome, double quantity) {
  if (IsDone(outcome.status) || outcome.filled <= 0) return outcome;
  outcome.status = outcome.filled >= quantity ? status::Filled : status::PartlyFilled;
  return outcome;
}

double WholeLots(double quantity, double lot) {
  // What arithmetic takes off a whole number of lots must not cost one.
  constexpr double Slack = 1e-9;
  return std::max(0.0, std::floor(quantity / lot + Slack) * lot);
}

double PartOfStep(TMoment begin, TMoment now, double seconds) {
  const double inside = (now - begin).count();
  return inside >= seconds ? 1 : inside / seconds;
}

}  // namespace

TPaperEngine::TPaperEngine(TMemoryHost& host, TPaperMarket& market, std::uint64_t seed)
    : FHost(host), FMarket(market), FRandom(seed) {
  for (const auto& order : FHost.Orders().All()) Notice(*order);
  FHost.Ledger().Listeners().Add([this](const host::TCustomClientOrder& order) { Notice(order); }, this);
}

TPaperEngine::~TPaperEngine() { FHost.Ledger().Listeners().Remove(this); }

// Only noted here: whoever records an order is in the middle of something, and must not fail for what the
// engine then has to report.
void TPaperEngine::Notice(const host::TCustomClientOrder& order) {
  if (const auto known = FByKey.find(order.key); known != FByKey.end()) {
    known->second->told = true;
    return;
  }
  FOrders.push_back(std::make_unique<TPaperOrder>(order));
  FByKey.emplace(order.key, FOrders.back().get());
}

void TPaperEngine::Advance(text::TDateTime now, double seconds) {
  const TMoment end(now);
  const TMoment begin = end - std::chrono::duration<double>(seconds);
  // By index and up to a fixed count: whoever is told of a report may add orders.
  const std::size_t count = FOrders.size();
  for (std::size_t i = 0; i < count; ++i) {
    TPaperOrder& order = *FOrders[i];
    if (order.IsParent()) continue;
    if (order.told) Settle(order, begin);
    Work(order, end, seconds);
  }
  for (std::size_t i = 0; i < count; ++i) {
    TPaperOrder& order = *FOrders[i];
    if (order.IsParent() && order.told) SumUp(order);
  }
}

bool TPaperEngine::Cancel(std::string_view key, std::string_view who) {
  const auto found = FByKey.find(key);
  if (found == FByKey.end()) return false;
  TPaperOrder& order = *found->second;
  if (!order.IsWorkedHere()) order.outcome = order.ShownOutcome();
  if (IsDone(order.outcome.status)) {
    FHost.Ledger().Note({std::string(who), "cancel", "refused"}, order.order);
    return false;
  }
  const TOrderEvent event{std::string(who), "cancel", "accepted"};
  for (std::size_t i = 0; i < FOrders.size(); ++i) {
    TPaperOrder& child = *FOrders[i];
    if (!child.IsChildOf(order) || IsDone(child.outcome.status)) continue;
    Report(child, event, WithStatus(child.outcome, status::Cancelled));
  }
  Report(order, event, WithStatus(order.outcome, status::Cancelled));
  return true;
}

// Brings books and order together after the order came or was changed.
void TPaperEngine::Settle(TPaperOrder& order, TMoment stepBegin) {
  if (!order.IsWorkedHere()) {
    order.outcome = order.ShownOutcome();
    NoticeParentOf(order);
  } else if (TakeTerms(order, stepBegin)) {
    const TOutcome outcome = Progress(order.outcome, order.order.quantity);
    if (outcome.status != order.outcome.status || order.ShowsAnotherOutcome()) {
      Report(order, Event("status", "as filled"), outcome);
    }
  }
  order.told = false;
}

// Reads the order's terms where they are new; false when the order was rejected for them.
bool TPaperEngine::TakeTerms(TPaperOrder& order, TMoment stepBegin) {
  const bool ended = IsDone(Progress(order.outcome, order.order.quantity).status);
  if (ended || (order.terms && order.terms->Match(order.order))) return true;
  const std::string_view problem = ReadTerms(order, stepBegin);
  if (!problem.empty()) {
    order.algo = nullptr;
    Report(order, Event("reject", problem), WithStatus(order.outcome, status::Rejected));
    return false;
  }
  const host::TCustomClientOrder& read = order.order;
  order.terms = {read.TextProperty(host::AlgoTextProperty), read.symbol, read.side, read.quantity,
                 read.price};
  return true;
}

// What is wrong with the terms; empty when they were read.
std::string_view TPaperEngine::ReadTerms(TPaperOrder& order, TMoment stepBegin) const {
  auto plan = ReadAlgoPlan(order.order.TextProperty(host::AlgoTextProperty));
  if (!plan) return "the algo parameters cannot be read";
  const TPaperAlgo* algo = FindPaperAlgo(plan->algo);
  if (algo == nullptr) return "the algorithm is unknown here";
  const auto instrument = FMarket.Tables().IndexOf(order.order.symbol);
  if (!instrument) return "the symbol is unknown here";
  if (!(order.order.quantity > 0)) return "the quantity is not above 0";
  if (ParentIsDone(order)) return "the parent order is done";

  const TMarketTables& tables = FMarket.Tables();
  order.window = WindowOf(algo->phase, tables.ExchangeOf(tables.instruments[*instrument]), *plan, stepBegin);
  order.plan = *std::move(plan);
  order.algo = algo;
  order.instrument = *instrument;
  order.filledBefore = order.outcome.filled;
  order.mayTake = 0;
  order.onDisplay = 0;
  return {};
}

bool TPaperEngine::ParentIsDone(const TPaperOrder& order) const {
  return std::any_of(FOrders.begin(), FOrders.end(), [&](const auto& other) {
    return order.IsChildOf(*other) && IsDone(other->outcome.status);
  });
}

void TPaperEngine::Work(TPaperOrder& order, TMoment now, double seconds) {
  if (order.algo == nullptr || IsDone(order.outcome.status)) return;
  if (now > order.window.end) {
    return Report(order, Event("expire", "end time reached"), WithStatus(order.outcome, status::Expired));
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
    Report(order, Event("start", "working"), WithStatus(order.outcome, status::Working));
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
  double quantity = std::min({view.quantity - view.filled, order.algo->wants(view), mayTake});
  if (order.plan.showQty > 0) {
    if (order.onDisplay < lot) {
      const double varied = order.plan.showQty * (1 + order.plan.randPct / 100 * (2 * FRandom.Uniform() - 1));
      const double most = order.plan.maxShowQty > 0 ? std::min(varied, order.plan.maxShowQty) : varied;
      order.onDisplay = std::max(lot, WholeLots(most, lot));
    }
    quantity = std::min(quantity, order.onDisplay);
  }
  quantity = WholeLots(quantity, lot);

  // A part of a lot adds up over the steps; whole lots that were not taken are gone with their trades.
  order.mayTake = std::fmod(mayTake - quantity, lot);
  if (quantity <= 0) return;
  TOutcome outcome = order.outcome;
  outcome.filled += quantity;
  outcome.value += quantity * *price;
  Report(order, Event("fill", text::PlainNumber(quantity) + " at " + text::PlainNumber(*price)),
         Progress(outcome, view.quantity));
  order.onDisplay -= quantity;
}

void TPaperEngine::SumUp(TPaperOrder& parent) {
  TOutcome sum{0, 0, parent.outcome.status};
  for (const auto& child : FOrders) {
    if (!child->IsChildOf(parent)) continue;
    sum.filled += child->outcome.filled;
    sum.value += child->outcome.value;
  }
  sum = Progress(sum, parent.order.quantity);
  const bool news = sum.filled != parent.outcome.filled || sum.value != parent.outcome.value ||
                    sum.status != parent.outcome.status;
  if (news || parent.ShowsAnotherOutcome()) Report(parent, Event("fill", "sum of the children"), sum);
  parent.told = false;
}

// The order is recorded first: books that ran ahead of the ledger would say what nobody can prove.
void TPaperEngine::Report(TPaperOrder& order, const TOrderEvent& event, const TOutcome& outcome) {
  host::TCustomClientOrder next(order.order);
  next.filled = outcome.filled;
  next.quantity = std::max(next.quantity, outcome.filled);
  next.status = outcome.status;
  next.SetNamedText(AveragePriceProperty, outcome.filled > 0 ? text::PlainNumber(outcome.Average()) : "");
  FHost.Ledger().Record(event, next);
  order.outcome = outcome;
  NoticeParentOf(order);
}

void TPaperEngine::NoticeParentOf(const TPaperOrder& order) {
  if (order.order.parentNo.empty()) return;
  for (const auto& parent : FOrders) {
    if (order.IsChildOf(*parent)) parent->told = true;
  }
}

}  // namespace algo::terminal
