#include "terminal/desk/session/market_lists.h"

namespace algo::terminal::desk {

void FillMarketLists(THostData& data, const paper::TMarketTables& tables) {
  auto& exchanges = data.lists["ALGO/Exchange"];
  exchanges.clear();
  for (const auto& exchange : tables.exchanges) {
    exchanges.push_back(exchange.code);
    data.lists["ALGO/ALGOType/" + exchange.code] = exchange.algoTypes;
    data.lists["ALGO/OrderType/" + exchange.code] = exchange.orderTypes;
  }
}

}  // namespace algo::terminal::desk
