#include "model/algos.h"

#include <algorithm>

#include "model/parameter_table.h"
#include "model/pieces.h"
#include "model/rule_tables.h"
#include "model/visibility.h"
#include "text/text.h"

namespace algo::model {

namespace {

// The maximum of the volume percent differs between the algorithms, and stays where the last one that names
// it put it.
constexpr std::array<TAlgoRow, AlgoCount> Rows{{
    {.algo = TAlgo::TVOL,
     .code = "TVOL",
     .resourceId = "Res_Algo_OrderType_TVOL",
     .groups = visibility::TVOLGroups,
     .hiddenItems = visibility::TVOLHidden,
     .refillsStyle = true,
     .pieces = pieces::TVOL,
     .rules = rule_tables::TVOL},
    {.algo = TAlgo::TVOLThreshold,
     .code = "TVOL Threshold",
     .resourceId = "Res_Algo_OrderType_TVOLTH",
     .groups = visibility::TVOLThresholdGroups,
     .hiddenItems = visibility::TVOLThresholdHidden,
     .refillsStyle = true,
     .pieces = pieces::TVOLThreshold,
     .rules = rule_tables::TVOLThreshold},
    {.algo = TAlgo::TWAP,
     .code = "TWAP",
     .resourceId = "Res_Algo_OrderType_TWAP",
     .groups = visibility::WAPGroups,
     .hiddenItems = visibility::TWAPHidden,
     .maxVolPctMaximum = 75,
     .refillsStyle = true,
     .pieces = pieces::TWAP,
     .rules = rule_tables::TWAP},
    {.algo = TAlgo::VWAP,
     .code = "VWAP",
     .resourceId = "Res_Algo_OrderType_VWAP",
     .groups = visibility::WAPGroups,
     .hiddenItems = visibility::VWAPHidden,
     .maxVolPctMaximum = 75,
     .closingNotSet = true,
     .refillsStyle = true,
     .pieces = pieces::VWAP,
     .rules = rule_tables::VWAP},
    {.algo = TAlgo::CLOSE, .code = "CLOSE", .resourceId = "Res_Algo_OrderType_CLOSE"},
    {.algo = TAlgo::OPEN, .code = "OPEN", .resourceId = "Res_Algo_OrderType_OPEN"},
    {.algo = TAlgo::ICEBERG,
     .code = "ICEBERG",
     .resourceId = "Res_Algo_OrderType_ICEBERG",
     .groups = visibility::ICEBERGGroups,
     .hiddenItems = visibility::ICEBERGHidden,
     .refillsStyle = true,
     .pieces = pieces::ICEBERG,
     .rules = rule_tables::ICEBERG},
    {.algo = TAlgo::STOP,
     .code = "STOP",
     .resourceId = "Res_Algo_OrderType_STOP",
     .groups = visibility::STOPGroups,
     .pieces = pieces::STOP,
     .rules = rule_tables::STOP},
    {.algo = TAlgo::PEG,
     .code = "PEG",
     .resourceId = "Res_Algo_OrderType_PEG",
     .groups = visibility::PEGGroups,
     .hiddenItems = visibility::PEGHidden,
     .maxVolPctMaximum = 80,
     .groupsInRightColumn = true,
     .refillsStyle = true,
     .pieces = pieces::PEG,
     .rules = rule_tables::PEG},
    {.algo = TAlgo::MOC,
     .code = "MOC",
     .resourceId = "Res_Algo_OrderType_MOC",
     .groups = visibility::MOCGroups,
     .hiddenItems = visibility::MOCHidden,
     .maxVolPctMaximum = 80,
     .refillsStyle = true,
     .pieces = pieces::MOC,
     .rules = rule_tables::MOC},
    {.algo = TAlgo::SNIPER,
     .code = "SNIPER",
     .resourceId = "Res_Algo_OrderType_SNIPER",
     .groups = visibility::SNIPERGroups,
     .hiddenItems = visibility::SNIPERHidden,
     .refillsStyle = true,
     .pieces = pieces::SNIPER,
     .rules = rule_tables::SNIPER},
    {.algo = TAlgo::SHORTSELL,
     .code = "SHORT SELL",
     .resourceId = "Res_Algo_OrderType_SHORTSELL",
     .groups = visibility::SHORTSELLGroups,
     .hiddenItems = visibility::SHORTSELLHidden,
     .pieces = pieces::SHORTSELL},
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

// Bounds belong to numbers, and every number that is written has at least a lower one.
constexpr bool BoundsFitTheKind(const TPiece& piece) {
  constexpr double None = std::numeric_limits<double>::infinity();
  const bool number = ParamTable[IndexOf(piece.param)].kind == TValueKind::Number;
  return number ? piece.above > -None && piece.above < piece.below
                : piece.above == -None && piece.below == None;
}

constexpr bool PiecesAreSound() {
  return std::all_of(Rows.begin(), Rows.end(), [](const TAlgoRow& row) {
    return row.pieces.size() <= MaxPieces &&
           std::all_of(row.pieces.begin(), row.pieces.end(), BoundsFitTheKind);
  });
}

constexpr bool RulesAreOnNumbers() {
  return std::all_of(Rows.begin(), Rows.end(), [](const TAlgoRow& row) {
    return std::all_of(row.rules.begin(), row.rules.end(), [](const TRule& rule) {
      return ParamTable[IndexOf(rule.param)].kind == TValueKind::Number && !rule.message.empty();
    });
  });
}

static_assert(InOrderAndUnique() && ShownGroupsAreReset() && PiecesAreSound() && RulesAreOnNumbers());

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
