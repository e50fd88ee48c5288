#include "views/entry/price_multiplier.h"

#include <cmath>

#include "model/order_types.h"
#include "text/errors.h"
#include "text/number_text.h"

namespace algo::views::entry {

std::optional<double> PriceMultiplier(const host::TMarketDataItem* item) {
  if (item == nullptr || item->State() != host::ItemLive || !item->HasField(host::PriceMultiplierField)) {
    return std::nullopt;
  }
  return text::NumberOr(item->FieldText(host::PriceMultiplierField), 1.0);
}

double PriceToShow(double raw, const host::TMarketDataItem* item) {
  return raw * PriceMultiplier(item).value_or(1.0);
}

double PriceForOrder(double shown, const host::TMarketDataItem* item) {
  const double multiplier = PriceMultiplier(item).value_or(1.0);
  const double price = std::abs(multiplier) > model::PriceEpsilon ? shown / multiplier : shown;
  if (!std::isfinite(price)) throw EConversionError(text::PlainNumber(shown), "a price");
  return price;
}

}  // namespace algo::views::entry
