#include "terminal/desk/market_lists.h"

namespace algo::terminal {

void FillMarketLists(THostData& data, const TMarketTables& tables) {
  auto& exchanges = data.lists["ALGO/Exchange"];
  exchanges.clear();
  for (const auto& exchange : tables.exchanges) {
    exchanges.push_back(exchange.code);
    data.lists["ALGO/ALGOType/" + exchange.code] = exchange.algoTypes;
    data.lists["ALGO/OrderType/" + exchange.code] = exchange.orderTypes;
  }
}

}  // namespace algo::terminal
