#pragma once

// Where the paper market gets its prices from.

#include <span>

#include "terminal/paper/quote.h"

namespace algo::terminal::paper {

class TPriceSource {
 public:
  virtual ~TPriceSource();

  /// Advances by that many seconds: sets bid, ask, sizes, last price and the volume of this step in the
  /// quotes, which are in the order of the instruments. A quote that does not change is left alone; its step
  /// volume was set to 0 before.
  virtual void Advance(double seconds, std::span<TQuote> quotes) = 0;
};

}  // namespace algo::terminal::paper
