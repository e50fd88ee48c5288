#pragma once

// A market on paper: it stands in for a market-data feed so that the terminal has something to show and the
// paper engine something to fill orders with. Its prices are made up or recorded; nobody trades in it.

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
  /// Makes the instruments of the tables known to the host, which outlives the market, publishes an item for
  /// each at its previous close, and makes up prices from then on.
  TPaperMarket(TMemoryHost& host, TMarketTables tables, std::uint64_t seed);
  /// The same with prices from `prices`, which was made for these tables.
  TPaperMarket(TMemoryHost& host, TMarketTables tables, std::unique_ptr<TPriceSource> prices);
  TPaperMarket(const TPaperMarket&) = delete;
  TPaperMarket& operator=(const TPaperMarket&) = delete;

  /// Lets so many seconds pass, 0 or more, and publishes what changed in them. Takes no memory beyond what
  /// the items' texts need.
  void Advance(double seconds);

  const TMarketTables& Tables() const { return FTables; }

  /// The quote of the instrument with that index in the tables.
  const TQuote& Quote(std::size_t instrument) const { return FQuotes[instrument]; }
  /// The same by symbol; nullptr when there is none of that symbol.
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
