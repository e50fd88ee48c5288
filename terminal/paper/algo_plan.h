#pragma once

// An order's algo parameter text, "TMLO:AlgoId=TVOL,STime=20261120-09:35:00,VolPct=20;", parsed once so that
// the engine need not parse texts while the market moves.

#include <optional>
#include <string>
#include <string_view>

#include "text/date_text.h"

namespace algo::terminal::paper {

/// A figure that the text does not give is 0, which means the same as not giving it.
struct TAlgoPlan {
  std::string algo;  ///< the algorithm's code
  std::optional<text::TDateTime> start;
  std::optional<text::TDateTime> end;
  double volPct = 0;     ///< percent of the traded volume to take
  double maxVolPct = 0;  ///< upper limit of the part to take, in percent of the traded volume
  double limit = 0;      ///< a price limit in addition to the order's own
  double openPct = 0;
  double closePct = 0;
  double waves = 0;  ///< number of slices
  double thresholdPrice1 = 0;
  double thresholdPct1 = 0;
  double thresholdPrice2 = 0;
  double thresholdPct2 = 0;
  double showQty = 0;  ///< shares on display at a time
  double maxShowQty = 0;
  double randPct = 0;  ///< by what percentage the quantity on display varies, up or down
  double stopPrice = 0;
  double stopQty = 0;
  double ref = 0;       ///< code of a reference price
  double tickDiff = 0;  ///< ticks to add to the reference price
  double diffPct = 0;   ///< percent of the reference price to add to it
  double minQty = 0;    ///< shares that must be on offer
  double servePct = 0;  ///< percent of what is on offer to take
};

/// Reads the parameter text; nothing if it is not one. Keys that this engine does not use are ignored, and of
/// a key that occurs twice the last value counts.
std::optional<TAlgoPlan> ReadAlgoPlan(std::string_view text);

}  // namespace algo::terminal::paper
