#pragma once

// Generated prices: the price of each instrument is a random walk with about the daily volatility and the
// daily volume of its tables. The same seed gives the same prices on any machine.

#include <cstdint>
#include <vector>

#include "terminal/paper/market_tables.h"
#include "terminal/paper/price_source.h"
#include "terminal/paper/random.h"

namespace algo::terminal::paper {

class TGeneratedPrices final : public TPriceSource {
 public:
  /// `tables` outlive the source.
  TGeneratedPrices(const TMarketTables& tables, std::uint64_t seed);

  void Advance(double seconds, std::span<TQuote> quotes) override;

 private:
  // The random walk of one instrument.
  struct TWalk {
    const TSpreadTable& spread;
    const TPaperInstrument& instrument;
    double sessionSeconds;  ///< from open to close, in which a day's volume trades
    double fair;            ///< the price before it is rounded to a tick
    double untraded = 0;    ///< volume that did not fill a lot yet
  };

  void Move(TWalk& walk, double seconds);
  void Trade(TWalk& walk, double seconds, TQuote& quote);
  double SizeOf(const TWalk& walk);

  TRandom FRandom;
  std::vector<TWalk> FWalks;
};

}  // namespace algo::terminal::paper
