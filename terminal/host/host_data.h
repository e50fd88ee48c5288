#pragma once

// What the host knows, as plain values. Whoever drives the host may edit them at any time; the services read
// them afresh at each call.

#include <chrono>
#include <cstdint>
#include <functional>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "forms/control.h"
#include "forms/step_grid.h"
#include "plugin/host_contract/market_data.h"
#include "terminal/host/faults.h"

namespace algo::terminal {

/// Texts by key, and such tables by section or tag.
using TTextTable = std::map<std::string, std::string, std::less<>>;
using TTextTables = std::map<std::string, TTextTable, std::less<>>;

/// The user of the terminal.
struct TProfile {
  std::int32_t kind = 0;
  bool flag = false;
  std::string account;
  std::string user;
};

/// The grid that the editors of prices, or of quantities, step along for a symbol; empty where none is known.
using TStepGridOf = std::function<forms::TStepGrid(std::string_view symbol)>;
/// The section of the settings of the whole terminal.
inline constexpr std::string_view PlatformSection = "VANTORIX_PLATFORM";

struct THostData {
  std::string section = "USER";  ///< the section of the user's own settings
  TTextTables config;            ///< settings by section and key
  TTextTables texts;             ///< texts by tag and id
  std::set<std::string, std::less<>> rights = {"AlgoTabOrderEntry"};
  TProfile profile;
  std::set<std::string, std::less<>> accounts;                         ///< the known account codes
  std::map<std::string, std::vector<std::string>, std::less<>> lists;  ///< list-valued settings
  std::map<std::string, host::TInstrument, std::less<>> instruments;   ///< known instruments by symbol
  std::map<std::int32_t, forms::TColor> colors;                        ///< skin colours by index
  bool accept = true;                                                  ///< whether order actions are accepted
  /// Whether the host works the orders itself. What it filled while a change was made on a copy is then
  /// retained instead of being replaced by the copy's figures.
  bool worksOrders = false;
  TStepGridOf priceGrid;     ///< without it, price editors step as they are set up
  TStepGridOf quantityGrid;  ///< the same for quantity editors
  /// The toolkit's day, where the host has no clock of its own.
  std::chrono::local_days today{std::chrono::year(2024) / 1 / 15};
  TFaults faults;

  /// The setting with that key; empty if there is none.
  std::string Setting(std::string_view wantedSection, std::string_view key) const;
};

}  // namespace algo::terminal
