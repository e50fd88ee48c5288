#pragma once

// Where the paper market has its prices from.

#include <span>

#include "terminal/paper/quote.h"

namespace algo::terminal::paper {

class TPriceSource {
 public:
  virtual ~TPriceSource();

  /// Goes on by so many seconds: gives the quotes, which stand in the order of the instruments, new bids,
  /// asks, sizes and last prices, and the volume of this step. Quotes of which there is no news keep what
  /// they have; their step volume was set to 0 before.
  virtual void Advance(double seconds, std::span<TQuote> quotes) = 0;
};

}  // namespace algo::terminal::paper
