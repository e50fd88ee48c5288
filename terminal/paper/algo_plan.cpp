#include "terminal/paper/algo_plan.h"

#include <algorithm>
#include <array>

#include "text/number_text.h"
#include "text/text.h"

namespace algo::terminal::paper {

namespace {

struct TFigureKey {
  std::string_view key;
  double TAlgoPlan::*figure;
};

constexpr std::array<TFigureKey, 20> FigureKeys{{
    {"VolPct", &TAlgoPlan::volPct},
    {"MaxVolPct", &TAlgoPlan::maxVolPct},
    {"WPx", &TAlgoPlan::limit},
    {"OpenPct", &TAlgoPlan::openPct},
    {"ClosePct", &TAlgoPlan::closePct},
    {"Waves", &TAlgoPlan::waves},
    {"ThrPx1", &TAlgoPlan::thresholdPrice1},
    {"ThrVolPct1", &TAlgoPlan::thresholdPct1},
    {"ThrPx2", &TAlgoPlan::thresholdPrice2},
    {"ThrVolPct2", &TAlgoPlan::thresholdPct2},
    {"ShowQty", &TAlgoPlan::showQty},
    {"MaxShowQty", &TAlgoPlan::maxShowQty},
    {"RandPct", &TAlgoPlan::randPct},
    {"StopLossPx", &TAlgoPlan::stopPrice},
    {"StopQty", &TAlgoPlan::stopQty},
    {"Ref", &TAlgoPlan::ref},
    {"TickDiff", &TAlgoPlan::tickDiff},
    {"DiffPct", &TAlgoPlan::diffPct},
    {"MinQty", &TAlgoPlan::minQty},
    {"ServePct", &TAlgoPlan::servePct},
}};

bool TakeTime(std::optional<text::TDateTime>& time, std::string_view value) {
  time = text::ParseCompactDateTime(value);
  return time.has_value();
}

bool TakeFigure(TAlgoPlan& plan, std::string_view key, std::string_view value) {
  const auto row = std::find_if(FigureKeys.begin(), FigureKeys.end(),
                                [key](const auto& known) { return known.key == key; });
  if (row == FigureKeys.end()) return true;
  const auto number = text::ParseNumber(value);
  if (number) plan.*(row->figure) = *number;
  return number.has_value();
}

bool TakePiece(TAlgoPlan& plan, std::string_view piece) {
  const std::size_t sign = piece.find('=');
  if (sign == std::string_view::npos) return false;
  const std::string_view key = piece.substr(0, sign);
  const std::string_view value = piece.substr(sign + 1);
  if (key == "AlgoId") {
    plan.algo = value;
    return true;
  }
  if (key == "STime") return TakeTime(plan.start, value);
  if (key == "ETime") return TakeTime(plan.end, value);
  return TakeFigure(plan, key, value);
}

}  // namespace

std::optional<TAlgoPlan> ReadAlgoPlan(std::string_view text) {
  // Whether children carry a price follows from the order's own price, so either prefix will do.
  const bool framed = (text.starts_with("TMLO:") || text.starts_with("TMMO:")) && text.ends_with(';');
  if (!framed) return std::nullopt;
  text.remove_prefix(std::string_view("TMLO:").size());
  text.remove_suffix(1);

  TAlgoPlan plan;
  bool good = true;
  text::ForEachPiece(text, ',', [&](std::string_view piece) { good = good && TakePiece(plan, piece); });
  if (!good || plan.algo.empty()) return std::nullopt;
  return plan;
}

}  // namespace algo::terminal::paper
