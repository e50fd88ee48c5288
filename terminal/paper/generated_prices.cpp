#include "terminal/paper/generated_prices.h"

#include <algorithm>
#include <cassert>
#include <cmath>

namespace algo::terminal::paper {

TGeneratedPrices::TGeneratedPrices(const TMarketTables& tables, std::uint64_t seed) : FRandom(seed) {
  FWalks.reserve(tables.instruments.size());
  for (const TPaperInstrument& instrument : tables.instruments) {
    const TPaperExchange& exchange = tables.ExchangeOf(instrument);
    const double session = std::chrono::duration<double>(exchange.close - exchange.open).count();
    FWalks.push_back({tables.SpreadOf(instrument), instrument, session, instrument.previousClose});
  }
}

void TGeneratedPrices::Advance(double seconds, std::span<TQuote> quotes) {
  assert(quotes.size() == FWalks.size());
  for (std::size_t i = 0; i < FWalks.size(); ++i) {
    TWalk& walk = FWalks[i];
    TQuote& quote = quotes[i];
    Move(walk, seconds);
    const double bid = MoveTicks(walk.spread, RoundDownToTick(walk.spread, walk.fair), 0);
    const bool moved = bid != quote.bid;
    quote.bid = bid;
    quote.ask = MoveTicks(walk.spread, bid, 1);
    Trade(walk, seconds, quote);
    if (moved || quote.stepVolume > 0) {
      quote.bidSize = SizeOf(walk);
      quote.askSize = SizeOf(walk);
    }
  }
}

void TGeneratedPrices::Move(TWalk& walk, double seconds) {
  const double deviation = walk.instrument.dailyVolatility * std::sqrt(seconds / walk.sessionSeconds);
  // A sample that lost or gained more than this in a day would look broken.
  constexpr double Least = 0.5;
  constexpr double Most = 2;
  const double close = walk.instrument.previousClose;
  walk.fair = std::clamp(walk.fair * (1 + deviation * FRandom.Normal()), close * Least, close * Most);
}

void TGeneratedPrices::Trade(TWalk& walk, double seconds, TQuote& quote) {
  // Twice a number between 0 and 1 is 1 on average, so that the steps of a day add up to the daily volume.
  walk.untraded += walk.instrument.dailyVolume * seconds / walk.sessionSeconds * 2 * FRandom.Uniform();
  const bool buyer = FRandom.Uniform() < 0.5;
  const double lots = std::floor(walk.untraded / walk.instrument.lot);
  if (lots < 1) return;
  quote.stepVolume = lots * walk.instrument.lot;
  walk.untraded -= quote.stepVolume;
  quote.last = buyer ? quote.ask : quote.bid;
}

double TGeneratedPrices::SizeOf(const TWalk& walk) {
  constexpr double MostLots = 50;
  return walk.instrument.lot * (1 + std::floor(MostLots * FRandom.Uniform()));
}

}  // namespace algo::terminal::paper
