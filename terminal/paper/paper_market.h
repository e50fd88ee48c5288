#pragma once

// A simulated market: it stands in for a market-data feed, so that the terminal has prices to show and the
// paper engine prices at which to fill orders. The prices are generated or recorded; nobody trades here.

#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "terminal/host/memory_host.h"
#include "terminal/paper/market_tables.h"
#include "terminal/paper/price_source.h"

namespace algo::terminal::paper {

class TPaperMarket {
 public:
  /// Adds the instruments of the tables to the data of the host, which outlives the market, publishes an item
  /// for each at its previous close, and generates prices from then on.
  TPaperMarket(TMemoryHost& host, TMarketTables tables, std::uint64_t seed);
  /// The same with prices from `prices`, which was created for these tables.
  TPaperMarket(TMemoryHost& host, TMarketTables tables, std::unique_ptr<TPriceSource> prices);
  TPaperMarket(const TPaperMarket&) = delete;
  TPaperMarket& operator=(const TPaperMarket&) = delete;

  /// Advances by that many seconds, 0 or more, and publishes the changes. Allocates nothing beyond what the
  /// items' texts need.
  void Advance(double seconds);

  const TMarketTables& Tables() const { return FTables; }

  /// The quote of the instrument with that index in the tables.
  const TQuote& Quote(std::size_t instrument) const { return FQuotes[instrument]; }
  /// The same by symbol; nullptr if there is no such instrument.
  const TQuote* Quote(std::string_view symbol) const;

 private:
  void PublishFirst(const TPaperInstrument& instrument, const TQuote& quote);
  void PublishChanges(const TPaperInstrument& instrument, const TQuote& now, const TQuote& before);

  TMemoryHost& FHost;
  const TMarketTables FTables;
  std::unique_ptr<TPriceSource> FPrices;
  std::vector<TQuote> FQuotes;
  std::vector<TQuote> FPublished;  // what the items hold
};

}  // namespace algo::terminal::paper
