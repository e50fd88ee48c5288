#include "terminal/desk/session/step_grids.h"

#include <optional>
#include <vector>

namespace algo::terminal::desk {

forms::TStepGrid PriceGridOf(const paper::TMarketTables& tables, std::string_view symbol) {
  const auto place = tables.IndexOf(symbol);
  if (!place) return {};
  const paper::TPaperInstrument& instrument = tables.instruments[*place];
  const double multiplier = instrument.multiplier;
  // The ticks are the market's; what is shown is the market's price times the multiplier.
  std::vector<forms::TGridRange> ranges;
  for (const paper::TSpreadStep& step : tables.SpreadOf(instrument)) {
    ranges.push_back({step.from * multiplier, step.tick * multiplier});
  }
  return forms::TStepGrid(ranges, ranges.front().from + ranges.front().width);
}

forms::TStepGrid QuantityGridOf(const paper::TMarketTables& tables, std::string_view symbol) {
  const auto place = tables.IndexOf(symbol);
  if (!place) return {};
  return forms::TStepGrid({{.from = 0, .width = tables.instruments[*place].lot}});
}

void FillStepGrids(THostData& data, const paper::TMarketTables& tables) {
  data.priceGrid = [&tables](std::string_view symbol) { return PriceGridOf(tables, symbol); };
  data.quantityGrid = [&tables](std::string_view symbol) { return QuantityGridOf(tables, symbol); };
}

}  // namespace algo::terminal::desk
