#include "terminal/paper/paper_engine.h"

#include <algorithm>
#include <utility>

#include "terminal/host/order_status.h"
#include "text/number_text.h"

namespace algo::terminal::paper {

TPaperEngine::TPaperEngine(TMemoryHost& host, TPaperMarket& market, std::uint64_t seed)
    : FHost(host), FMarket(market), FRandom(seed) {
  for (const auto& order : FHost.Orders().All()) MarkChanged(*order);
  FHost.Journal().Listeners().Add([this](const host::TCustomClientOrder& order) { MarkChanged(order); },
                                  this);
}

TPaperEngine::~TPaperEngine() { FHost.Journal().Listeners().Remove(this); }

// Only marks the order: the caller is in the middle of recording it, and must not fail because of what the
// engine has to report about it.
void TPaperEngine::MarkChanged(const host::TCustomClientOrder& order) {
  if (const auto known = FByKey.find(order.key); known != FByKey.end()) {
    known->second->changed = true;
    return;
  }
  FOrders.push_back(std::make_unique<TPaperOrder>(order));
  FByKey.emplace(order.key, FOrders.back().get());
}

void TPaperEngine::Advance(text::TDateTime now, double seconds) {
  const TMoment end(now);
  const TMoment begin = end - std::chrono::duration<double>(seconds);
  // By index and up to a fixed count: a listener may add orders.
  const std::size_t count = FOrders.size();
  for (std::size_t i = 0; i < count; ++i) {
    TPaperOrder& order = *FOrders[i];
    if (order.IsParent()) continue;
    if (order.changed) Settle(order, begin);
    Work(order, end, seconds);
  }
  for (std::size_t i = 0; i < count; ++i) {
    TPaperOrder& order = *FOrders[i];
    if (order.IsParent() && order.changed) SumUp(order);
  }
}

bool TPaperEngine::Cancel(std::string_view key, std::string_view who) {
  const auto found = FByKey.find(key);
  if (found == FByKey.end()) return false;
  TPaperOrder& order = *found->second;
  if (!order.IsWorkedHere()) order.outcome = order.StoredOutcome();
  if (IsDone(order.outcome.status)) {
    FHost.Journal().Note({std::string(who), "cancel", "refused"}, order.order);
    return false;
  }
  const TOrderEvent event{std::string(who), "cancel", "accepted"};
  const std::size_t count = FOrders.size();
  for (std::size_t i = 0; i < count; ++i) {
    TPaperOrder& child = *FOrders[i];
    if (!child.IsChildOf(order) || IsDone(child.outcome.status)) continue;
    Record(child, event, child.outcome.WithStatus(status::Cancelled));
  }
  Record(order, event, order.outcome.WithStatus(status::Cancelled));
  return true;
}

// Reconciles the engine's record with the order after the order was added or changed.
void TPaperEngine::Settle(TPaperOrder& order, TMoment stepBegin) {
  if (!order.IsWorkedHere()) {
    order.outcome = order.StoredOutcome();
    MarkParentChanged(order);
  } else if (TakeTerms(order, stepBegin)) {
    const TOutcome outcome = order.outcome.WithProgress(order.order.quantity);
    if (outcome.status != order.outcome.status || order.DiffersFromStored()) {
      Report(order, "status", "as filled", outcome);
    }
  }
  order.changed = false;
}

// Reads the order's terms if they changed. Returns false if the order was rejected because of them.
bool TPaperEngine::TakeTerms(TPaperOrder& order, TMoment stepBegin) {
  const bool ended = IsDone(order.outcome.WithProgress(order.order.quantity).status);
  if (ended || (order.terms && order.terms->Match(order.order))) return true;
  const std::string_view problem = ReadTerms(order, stepBegin);
  if (!problem.empty()) {
    order.algo = nullptr;
    Report(order, "reject", problem, order.outcome.WithStatus(status::Rejected));
    return false;
  }
  const host::TCustomClientOrder& read = order.order;
  order.terms = {read.TextProperty(host::AlgoTextProperty), read.symbol, read.side, read.quantity,
                 read.price};
  return true;
}

// Reads the terms. Returns what is wrong with them; empty if nothing is.
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

void TPaperEngine::SumUp(TPaperOrder& parent) {
  TOutcome sum{0, 0, parent.outcome.status};
  for (const auto& child : FOrders) {
    if (!child->IsChildOf(parent)) continue;
    sum.filled += child->outcome.filled;
    sum.value += child->outcome.value;
  }
  sum = sum.WithProgress(parent.order.quantity);
  const bool differs = sum.filled != parent.outcome.filled || sum.value != parent.outcome.value ||
                       sum.status != parent.outcome.status;
  if (differs || parent.DiffersFromStored()) Report(parent, "fill", "sum of the children", sum);
  parent.changed = false;
}

void TPaperEngine::Report(TPaperOrder& order, std::string_view what, std::string_view answer,
                          const TOutcome& outcome) {
  Record(order, {"paper", std::string(what), std::string(answer)}, outcome);
}

// The journal first: the engine's record must not show anything that is not in the journal.
void TPaperEngine::Record(TPaperOrder& order, const TOrderEvent& event, const TOutcome& outcome) {
  host::TCustomClientOrder next(order.order);
  next.filled = outcome.filled;
  next.quantity = std::max(next.quantity, outcome.filled);
  next.status = outcome.status;
  next.SetNamedText(AveragePriceProperty, outcome.filled > 0 ? text::PlainNumber(outcome.Average()) : "");
  FHost.Journal().Record(event, next);
  order.outcome = outcome;
  MarkParentChanged(order);
}

void TPaperEngine::MarkParentChanged(const TPaperOrder& order) {
  if (order.order.parentNo.empty()) return;
  for (const auto& parent : FOrders) {
    if (order.IsChildOf(*parent)) parent->changed = true;
  }
}

}  // namespace algo::terminal::paper
