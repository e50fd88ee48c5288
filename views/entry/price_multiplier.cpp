#include "views/entry/price_multiplier.h"

#include <cmath>

#include "model/order_types.h"
#include "text/errors.h"
#include "text/number_text.h"

namespace algo::views::entry {

namespace {

constexpr int PriceDigits = 15;

double Rounded(double price) { return text::RoundToDigits(price, PriceDigits); }

}  // namespace

std::optional<double> PriceMultiplier(const host::TMarketDataItem* item) {
  if (item == nullptr || item->State() != host::ItemLive || !item->HasField(host::PriceMultiplierField)) {
    return std::nullopt;
  }
  return text::NumberOr(item->FieldText(host::PriceMultiplierField), 1.0);
}

std::optional<double> PriceDivisor(const host::TMarketDataItem* item) {
  const auto multiplier = PriceMultiplier(item);
  return multiplier && std::abs(*multiplier) > model::PriceEpsilon ? multiplier : std::nullopt;
}

double PriceToShow(double raw, std::optional<double> multiplier) {
  return multiplier ? Rounded(raw * *multiplier) : raw;
}

double PriceForOrder(double shown, std::optional<double> divisor) {
  double price = shown;
  if (divisor) {
    price = shown / *divisor;
    if (const double rounded = Rounded(price); Rounded(rounded * *divisor) == shown) price = rounded;
  }
  if (!std::isfinite(price)) throw EConversionError(text::PlainNumber(shown), "a price");
  return price;
}

}  // namespace algo::views::entry
