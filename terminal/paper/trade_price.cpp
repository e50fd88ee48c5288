#include "terminal/paper/trade_price.h"

#include <algorithm>

namespace algo::terminal::paper {

namespace {

bool IsWithin(bool buy, double price, double limit) {
  if (limit <= 0) return true;
  return buy ? price <= limit : price >= limit;
}

double ReferencePrice(double code, bool buy, const TQuote& quote) {
  const double own = buy ? quote.bid : quote.ask;
  const bool mayBeKnown = code >= 1 && code <= 20;
  switch (mayBeKnown ? static_cast<int>(code) : 0) {
    case 2:
      return buy ? quote.ask : quote.bid;
    case 3:
      return quote.last;
    case 4:
      return quote.bid;
    case 5:
      return quote.ask;
    case 8:
      return quote.low > 0 ? quote.low : own;
    case 9:
      return quote.high > 0 ? quote.high : own;
    case 11:
      return (quote.bid + quote.ask) / 2;
    default:
      return own;
  }
}

// The price at which the order rests; 0 for none. Rounded away from the other side, so that rounding never
// costs the order anything.
double RestingPrice(const TAlgoPlan& plan, bool buy, double limit, const TQuote& quote,
                    const TSpreadTable& spread) {
  const double reference = ReferencePrice(plan.ref, buy, quote);
  const double difference = plan.tickDiff * TickAt(spread, reference) + reference * plan.diffPct / 100;
  const double wanted = reference + difference;
  if (wanted <= 0 && buy) return 0;  // nobody sells for nothing
  const double price = StricterLimit(buy, std::max(wanted, TickAt(spread, 0)), limit);
  return buy ? RoundDownToTick(spread, price) : RoundUpToTick(spread, price);
}

}  // namespace

double StricterLimit(bool buy, double left, double right) {
  if (left <= 0) return right;
  if (right <= 0) return left;
  return buy ? std::min(left, right) : std::max(left, right);
}

std::optional<double> TradePrice(TPricing pricing, const TAlgoPlan& plan, bool buy, double limit,
                                 const TQuote& quote, const TSpreadTable& spread) {
  const double other = buy ? quote.ask : quote.bid;
  if (other <= 0) return std::nullopt;
  if (pricing == TPricing::Take) {
    if (!IsWithin(buy, other, limit)) return std::nullopt;
    return other;
  }
  const double resting = RestingPrice(plan, buy, limit, quote, spread);
  if (resting <= 0) return std::nullopt;
  if (IsWithin(buy, other, resting)) return other;
  const bool tradedThere = quote.stepVolume > 0 && IsWithin(buy, quote.last, resting);
  if (!tradedThere) return std::nullopt;
  return resting;
}

}  // namespace algo::terminal::paper
