#pragma once

// When an order is worked. The paper market itself never closes; the exchange's hours only say what "at the
// open", "at the close" and "for the day" mean, and every day is a trading day.

#include <chrono>

#include "terminal/paper/algo_plan.h"
#include "terminal/paper/market_tables.h"

namespace algo::terminal::paper {

/// A moment in the trader's local time, finer than a second.
using TMoment = std::chrono::local_time<std::chrono::duration<double>>;

/// The part of the trading day in which an algorithm works.
enum class TPhase { Day, Opening, Closing };

/// How long the opening and the closing phase last, from the open and up to the close.
inline constexpr std::chrono::minutes AuctionTime{5};

/// From after `begin` up to and including `end`; empty if `end` is not after `begin`.
struct TWindow {
  TMoment begin;
  TMoment end;

  /// The part of the window that has passed, from 0 to 1.
  double Passed(TMoment now) const;
};

/// The window of an order that arrived at `seen`: the next occurrence of the phase, restricted by the order's
/// own start and end time. Without an end time it ends with the phase, so that a day order ends at the next
/// close.
TWindow WindowOf(TPhase phase, const TPaperExchange& exchange, const TAlgoPlan& plan, TMoment seen);

}  // namespace algo::terminal::paper
