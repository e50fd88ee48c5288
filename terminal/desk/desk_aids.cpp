#include "terminal/desk/desk_aids.h"

#include <algorithm>
#include <cmath>

#include "terminal/desk/instrument_name.h"
#include "text/text.h"

namespace algo::terminal {

namespace {

constexpr std::size_t MostCompletions = 12;

/// 0 where the text begins with the part, 1 where it or the note has it elsewhere, 2 for no match.
int RankOf(const TCompletion& candidate, std::string_view part) {
  const std::string_view text = candidate.text;
  if (text::EqualNoCase(text.substr(0, part.size()), part)) return 0;
  return text::ContainsNoCase(text, part) || text::ContainsNoCase(candidate.note, part) ? 1 : 2;
}

/// The quantity that many lots further; from between two lots, the first step goes to the next one.
double SteppedByLot(double quantity, double lot, std::int32_t steps) {
  const double lots = quantity / lot;
  return ((steps > 0 ? std::floor(lots) : std::ceil(lots)) + steps) * lot;
}

/// The price that many ticks further; from between two ticks, the first step goes to the next one.
double SteppedByTick(double price, const TSpreadTable& spread, std::int32_t steps) {
  constexpr double Nearly = 1e-6;
  const double nearest = RoundToTick(spread, price);
  if (std::abs(nearest - price) < Nearly * TickAt(spread, nearest)) return MoveTicks(spread, nearest, steps);
  return MoveTicks(spread, steps > 0 ? RoundDownToTick(spread, price) : RoundUpToTick(spread, price), steps);
}

}  // namespace

TDeskAids::TDeskAids(TDeskEvents& events, TMemoryHost& host, const TMarketTables& tables, const TTexts& texts)
    : FHost(host), FTables(tables), FTexts(texts) {
  connect(&events, &TDeskEvents::EditorCame, this,
          [this](TEditorKind kind, const forms::TControl& control) { FServed[&control].kind = kind; });
  connect(&events, &TDeskEvents::EditorTold, this,
          [this](TEditorKind kind, const forms::TControl& control, const std::string& symbol) {
            FServed[&control] = {kind, symbol};
          });
  connect(&events, &TDeskEvents::EditorWent, this,
          [this](const forms::TControl& control) { FServed.erase(&control); });
}

std::vector<TCompletion> TDeskAids::Completions(const forms::TTextEdit& editor,
                                                std::string_view typed) const {
  const auto served = FServed.find(&editor);
  const std::string_view part = text::Trim(typed);
  if (served == FServed.end() || part.empty()) return {};
  std::vector<TCompletion> candidates = Known(served->second.kind);
  std::erase_if(candidates, [part](const TCompletion& candidate) { return RankOf(candidate, part) == 2; });
  std::stable_sort(candidates.begin(), candidates.end(),
                   [part](const TCompletion& left, const TCompletion& right) {
                     return RankOf(left, part) < RankOf(right, part);
                   });
  if (candidates.size() > MostCompletions) candidates.resize(MostCompletions);
  return candidates;
}

double TDeskAids::Stepped(const forms::TSpinEdit& editor, double value, std::int32_t steps) const {
  const auto served = FServed.find(&editor);
  const auto place = served == FServed.end() ? std::nullopt : FTables.IndexOf(served->second.symbol);
  if (!place) return TEditorAssist::Stepped(editor, value, steps);
  const TPaperInstrument& instrument = FTables.instruments[*place];
  if (served->second.kind == TEditorKind::Quantity) return SteppedByLot(value, instrument.lot, steps);
  // What is shown is the market's price times the multiplier; the ticks are the market's.
  const double price = SteppedByTick(value / instrument.multiplier, FTables.SpreadOf(instrument), steps);
  return instrument.multiplier == 1 ? price : price * instrument.multiplier;
}

std::vector<TCompletion> TDeskAids::Known(TEditorKind kind) const {
  std::vector<TCompletion> known;
  if (kind == TEditorKind::Account) {
    for (const std::string& account : FHost.Data().accounts) known.push_back({account, {}});
  } else if (kind == TEditorKind::Symbol) {
    for (const TPaperInstrument& instrument : FTables.instruments) {
      known.push_back({instrument.symbol, NameIn(FTexts.Language(), instrument.name)});
    }
  }
  return known;
}

}  // namespace algo::terminal
