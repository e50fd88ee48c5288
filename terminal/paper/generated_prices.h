#pragma once

// Made-up prices: each instrument walks at random about as widely, and trades about as much, in a day as its
// tables say. The same seed gives the same prices on any machine.

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
  // One instrument under way.
  struct TWalk {
    const TSpreadTable& spread;
    const TPaperInstrument& instrument;
    double sessionSeconds;  ///< from open to close, in which a day's volume trades
    double fair;            ///< where the price would be without a grid
    double untraded = 0;    ///< volume that was too little for a lot
  };

  void Move(TWalk& walk, double seconds);
  void Trade(TWalk& walk, double seconds, TQuote& quote);
  double SizeOf(const TWalk& walk);

  TRandom FRandom;
  std::vector<TWalk> FWalks;
};

}  // namespace algo::terminal::paper
