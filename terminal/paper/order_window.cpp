#include "terminal/paper/order_window.h"

#include <algorithm>

namespace algo::terminal::paper {

namespace {

// The next occurrence of that time of day after `from`.
TMoment NextTime(TMoment from, std::chrono::seconds timeOfDay) {
  const TMoment today = std::chrono::floor<std::chrono::days>(from) + timeOfDay;
  return today > from ? today : today + std::chrono::days(1);
}

TWindow PhaseAfter(TPhase phase, const TPaperExchange& exchange, TMoment from) {
  if (phase == TPhase::Opening) {
    const TMoment end = NextTime(from, exchange.open + AuctionTime);
    return {end - AuctionTime, end};
  }
  const TMoment close = NextTime(from, exchange.close);
  return {phase == TPhase::Closing ? close - AuctionTime : from, close};
}

}  // namespace

double TWindow::Passed(TMoment now) const {
  if (end <= begin) return now > end ? 1 : 0;
  return std::clamp((now - begin) / (end - begin), 0.0, 1.0);
}

TWindow WindowOf(TPhase phase, const TPaperExchange& exchange, const TAlgoPlan& plan, TMoment seen) {
  const TMoment from = plan.start ? std::max(seen, TMoment(*plan.start)) : seen;
  TWindow window = PhaseAfter(phase, exchange, from);
  window.begin = std::max(window.begin, from);
  // A day order may go on past the close if its end time says so.
  if (plan.end)
    window.end = phase == TPhase::Day ? TMoment(*plan.end) : std::min(window.end, TMoment(*plan.end));
  return window;
}

}  // namespace algo::terminal::paper
