#include "model/algos.h"

#include <algorithm>

#include "model/pieces.h"
#include "model/rule_tables.h"
#include "text/text.h"

namespace algo::model {

namespace {

// What each algorithm shows and hides of the form. Groups that an algorithm does not name stay hidden; items
// that it does not name stay shown.
constexpr std::array<std::string_view, 6> TVOLGroups{"lgTrading", "lgVol",      "lgWOrder",
                                                     "lgAuc",     "lgMinOrder", "lgStyle"};
constexpr std::array<std::string_view, 4> TVOLHidden{"liAccuVol", "liMaxVolPct", "liOpenPct", "liClosePct"};
constexpr std::array<std::string_view, 7> TVOLThresholdGroups{"lgVol",   "lgWOrder",  "lgAuc",   "lgMinOrder",
                                                              "lgStyle", "lgTrading", "lgTVOLth"};
constexpr std::array<std::string_view, 4> TVOLThresholdHidden{"liMaxVolPct", "liOpenPct", "liClosePct",
                                                              "liAccuVol"};
constexpr std::array<std::string_view, 7> WAPGroups{"lgTrading", "lgVol",    "lgWOrder", "lgMinOrder",
                                                    "lgStyle",   "lgSlices", "lgAuc"};
constexpr std::array<std::string_view, 5> TWAPHidden{"liAccuVol", "liVolPct", "liCloseSim", "liOpenPct",
                                                     "liClosePct"};
constexpr std::array<std::string_view, 3> VWAPHidden{"liAccuVol", "liVolPct", "liCloseSim"};
constexpr std::array<std::string_view, 6> ICEBERGGroups{"lgTrading", "lgAuc",    "lgMinOrder",
                                                        "lgICEBERG", "lgWOrder", "lgStyle"};
constexpr std::array<std::string_view, 4> ICEBERGHidden{"liIceberg", "liAllInAuc", "liOpenPct", "liClosePct"};
constexpr std::array<std::string_view, 2> STOPGroups{"lgTrading", "lgSTOP"};
constexpr std::array<std::string_view, 10> PEGGroups{"lgTrading",  "lgPEG", "lgRef",   "lgTime",
                                                     "lgICEBERG",  "lgVol", "lgStyle", "lgWOrder",
                                                     "lgMinOrder", "lgAuc"};
constexpr std::array<std::string_view, 7> PEGHidden{"lgExc",    "liOpenPct", "liClosePct", "liAccuVol",
                                                    "liVolPct", "liOpening", "liCloseSim"};
constexpr std::array<std::string_view, 7> MOCGroups{"lgTrading",  "lgVol",     "lgAuc",  "lgWOrder",
                                                    "lgMinOrder", "lgICEBERG", "lgStyle"};
constexpr std::array<std::string_view, 8> MOCHidden{"liAccuVol", "liVolPct",   "liOpening", "liOpenPct",
                                                    "liClosing", "liCloseSim", "lgExc",     "liIceberg"};
constexpr std::array<std::string_view, 4> SNIPERGroups{"lgTrading", "lgSNIPER", "lgTime", "lgStyle"};
constexpr std::array<std::string_view, 1> SNIPERHidden{"liRandTimeOut"};
constexpr std::array<std::string_view, 2> SHORTSELLGroups{"lgTrading", "lgRef"};
constexpr std::array<std::string_view, 2> SHORTSELLHidden{"liTickDiff", "liDiffPct"};

// The maximum of the volume percent differs between the algorithms, and stays where the last one that names
// it put it.
constexpr std::array<TAlgoRow, AlgoCount> Rows{{
    {.algo = TAlgo::TVOL,
     .code = "TVOL",
     .resourceId = "Res_Algo_OrderType_TVOL",
     .groups = TVOLGroups,
     .hiddenItems = TVOLHidden,
     .refillsStyle = true,
     .pieces = PiecesOf(TAlgo::TVOL),
     .rules = RulesOf(TAlgo::TVOL)},
    {.algo = TAlgo::TVOLThreshold,
     .code = "TVOL Threshold",
     .resourceId = "Res_Algo_OrderType_TVOLTH",
     .groups = TVOLThresholdGroups,
     .hiddenItems = TVOLThresholdHidden,
     .refillsStyle = true,
     .pieces = PiecesOf(TAlgo::TVOLThreshold),
     .rules = RulesOf(TAlgo::TVOLThreshold)},
    {.algo = TAlgo::TWAP,
     .code = "TWAP",
     .resourceId = "Res_Algo_OrderType_TWAP",
     .groups = WAPGroups,
     .hiddenItems = TWAPHidden,
     .maxVolPctMaximum = 75,
     .refillsStyle = true,
     .pieces = PiecesOf(TAlgo::TWAP),
     .rules = RulesOf(TAlgo::TWAP)},
    {.algo = TAlgo::VWAP,
     .code = "VWAP",
     .resourceId = "Res_Algo_OrderType_VWAP",
     .groups = WAPGroups,
     .hiddenItems = VWAPHidden,
     .maxVolPctMaximum = 75,
     .closingNotSet = true,
     .refillsStyle = true,
     .pieces = PiecesOf(TAlgo::VWAP),
     .rules = RulesOf(TAlgo::VWAP)},
    {.algo = TAlgo::CLOSE, .code = "CLOSE", .resourceId = "Res_Algo_OrderType_CLOSE"},
    {.algo = TAlgo::OPEN, .code = "OPEN", .resourceId = "Res_Algo_OrderType_OPEN"},
    {.algo = TAlgo::ICEBERG,
     .code = "ICEBERG",
     .resourceId = "Res_Algo_OrderType_ICEBERG",
     .groups = ICEBERGGroups,
     .hiddenItems = ICEBERGHidden,
     .refillsStyle = true,
     .pieces = PiecesOf(TAlgo::ICEBERG),
     .rules = RulesOf(TAlgo::ICEBERG)},
    {.algo = TAlgo::STOP,
     .code = "STOP",
     .resourceId = "Res_Algo_OrderType_STOP",
     .groups = STOPGroups,
     .pieces = PiecesOf(TAlgo::STOP),
     .rules = RulesOf(TAlgo::STOP)},
    {.algo = TAlgo::PEG,
     .code = "PEG",
     .resourceId = "Res_Algo_OrderType_PEG",
     .groups = PEGGroups,
     .hiddenItems = PEGHidden,
     .maxVolPctMaximum = 80,
     .groupsInRightColumn = true,
     .refillsStyle = true,
     .pieces = PiecesOf(TAlgo::PEG),
     .rules = RulesOf(TAlgo::PEG)},
    {.algo = TAlgo::MOC,
     .code = "MOC",
     .resourceId = "Res_Algo_OrderType_MOC",
     .groups = MOCGroups,
     .hiddenItems = MOCHidden,
     .maxVolPctMaximum = 80,
     .refillsStyle = true,
     .pieces = PiecesOf(TAlgo::MOC),
     .rules = RulesOf(TAlgo::MOC)},
    {.algo = TAlgo::SNIPER,
     .code = "SNIPER",
     .resourceId = "Res_Algo_OrderType_SNIPER",
     .groups = SNIPERGroups,
     .hiddenItems = SNIPERHidden,
     .refillsStyle = true,
     .pieces = PiecesOf(TAlgo::SNIPER),
     .rules = RulesOf(TAlgo::SNIPER)},
    {.algo = TAlgo::SHORTSELL,
     .code = "SHORT SELL",
     .resourceId = "Res_Algo_OrderType_SHORTSELL",
     .groups = SHORTSELLGroups,
     .hiddenItems = SHORTSELLHidden,
     .pieces = PiecesOf(TAlgo::SHORTSELL)},
}};

constexpr bool InOrderAndUnique() {
  for (std::size_t i = 0; i < Rows.size(); ++i) {
    if (static_cast<std::size_t>(Rows[i].algo) != i) return false;
    for (std::size_t j = i + 1; j < Rows.size(); ++j) {
      if (Rows[i].code == Rows[j].code || Rows[i].resourceId == Rows[j].resourceId) return false;
    }
  }
  return true;
}

// A group that an algorithm shows must be one that is hidden before the next one is applied.
constexpr bool ShownGroupsAreReset() {
  for (const TAlgoRow& row : Rows) {
    for (const std::string_view group : row.groups) {
      if (std::find(AllAlgoGroups.begin(), AllAlgoGroups.end(), group) == AllAlgoGroups.end()) return false;
    }
  }
  return true;
}

static_assert(InOrderAndUnique() && ShownGroupsAreReset());

const TAlgoRow* FindBy(std::string_view TAlgoRow::*name, std::string_view wanted) {
  const auto found = std::find_if(Rows.begin(), Rows.end(),
                                  [&](const TAlgoRow& row) { return text::EqualNoCase(row.*name, wanted); });
  return found == Rows.end() ? nullptr : &*found;
}

}  // namespace

std::span<const TAlgoRow> AlgoRows() { return Rows; }

const TAlgoRow* FindAlgoByCode(std::string_view code) { return FindBy(&TAlgoRow::code, code); }

const TAlgoRow* FindAlgoById(std::string_view resourceId) {
  return FindBy(&TAlgoRow::resourceId, resourceId);
}

}  // namespace algo::model
