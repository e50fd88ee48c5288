#pragma once

// Two instruments for tests without a market: one in dollars, one in thousandths.

#include "terminal/paper/market_tables.h"

namespace algo::terminal::desk::tests {

inline paper::TMarketTables SampleTables() {
  paper::TMarketTables tables;
  tables.spreads["01"] = {{0, 0.001}, {0.25, 0.005}, {20, 0.05}, {100, 0.1}};
  auto& bank = tables.instruments.emplace_back();
  bank.symbol = "0005";
  bank.exchange = "HKG";
  bank.name = {"Harbour Bank", "海港銀行", "海港银行"};
  bank.lot = 400;
  bank.spreadCode = "01";
  auto& unit = tables.instruments.emplace_back(bank);
  unit.symbol = "1050";
  unit.name = {"Thousandths", "千分", "千分"};
  unit.lot = 10;
  unit.multiplier = 0.001;
  return tables;
}

}  // namespace algo::terminal::desk::tests
