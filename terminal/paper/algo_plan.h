#pragma once

// What an order's algo parameter text asks for: "TMLO:AlgoId=TVOL,STime=20261120-09:35:00,VolPct=20;", read
// into figures once so that the engine need not look at texts while the market moves.

#include <optional>
#include <string>
#include <string_view>

#include "text/date_text.h"

namespace algo::terminal::paper {

/// A figure that the text does not give is 0, which says the same as not giving it.
struct TAlgoPlan {
  std::string algo;  ///< the algorithm's code
  std::optional<text::TDateTime> start;
  std::optional<text::TDateTime> end;
  double volPct = 0;     ///< percent of the traded volume to take
  double maxVolPct = 0;  ///< percent of the traded volume not to exceed
  double limit = 0;      ///< a price limit beside the order's own
  double openPct = 0;
  double closePct = 0;
  double waves = 0;  ///< number of slices
  double thresholdPrice1 = 0;
  double thresholdPct1 = 0;
  double thresholdPrice2 = 0;
  double thresholdPct2 = 0;
  double showQty = 0;  ///< shares on display at a time
  double maxShowQty = 0;
  double randPct = 0;  ///< by how much of itself what is on display varies, either way
  double stopPrice = 0;
  double stopQty = 0;
  double ref = 0;       ///< code of a reference price
  double tickDiff = 0;  ///< ticks to add to the reference price
  double diffPct = 0;   ///< percent of the reference price to add to it
  double minQty = 0;    ///< shares that must be on offer
  double servePct = 0;  ///< percent of what is on offer to take
};

/// Reads the parameter text; nothing when it is not one. Keys that this engine has no use for are passed
/// over, and of a key that comes twice the last one holds.
std::optional<TAlgoPlan> ReadAlgoPlan(std::string_view text);

}  // namespace algo::terminal::paper
