#pragma once

// The instruments of the paper market and their exchanges, as plain values read from a folder of tables:
// exchanges.csv, spreads.csv and instruments.csv.

#include <chrono>
#include <cstddef>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "terminal/paper/spread_table.h"

namespace algo::terminal::paper {

/// A name in the terminal's three languages.
struct TPaperName {
  std::string english;
  std::string traditional;
  std::string simplified;
};

struct TPaperExchange {
  std::string code;
  TPaperName name;
  std::vector<std::string> algoTypes;   ///< codes of the algo types offered, in order
  std::vector<std::string> orderTypes;  ///< codes of the order types offered, in order
  std::chrono::seconds open{};          ///< time of day
  std::chrono::seconds close{};         ///< time of day, later than `open`
};

struct TPaperInstrument {
  std::string symbol;
  std::string exchange;
  TPaperName name;
  double lot = 0;  ///< board lot in shares, a whole number
  std::string spreadCode;
  double previousClose = 0;    ///< on the grid of its spread table
  double dailyVolatility = 0;  ///< standard deviation of a day's return, 0.02 for two percent
  double dailyVolume = 0;      ///< shares
  double multiplier = 1;       ///< the shown price is the market's times this
};

struct TMarketTables {
  std::vector<TPaperExchange> exchanges;
  std::map<std::string, TSpreadTable, std::less<>> spreads;  ///< by spread code
  std::vector<TPaperInstrument> instruments;

  /// The index of the instrument; nothing if there is none with that symbol.
  std::optional<std::size_t> IndexOf(std::string_view symbol) const;
  /// The spread table of an instrument of these tables.
  const TSpreadTable& SpreadOf(const TPaperInstrument& instrument) const;
  /// The exchange of an instrument of these tables.
  const TPaperExchange& ExchangeOf(const TPaperInstrument& instrument) const;
};

/// Reads the tables of the folder. Throws EPaperError at the first unusable entry.
TMarketTables LoadMarketTables(const std::filesystem::path& folder);

}  // namespace algo::terminal::paper
