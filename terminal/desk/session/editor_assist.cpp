#include "terminal/desk/session/editor_assist.h"

#include <algorithm>
#include <cmath>

#include "terminal/desk/session/instrument_name.h"
#include "text/text.h"

namespace algo::terminal::desk {

namespace {

constexpr std::size_t MaxCompletions = 12;
constexpr int NoMatch = 2;

/// 0 where the text begins with the part, 1 where the text or the note has it elsewhere, NoMatch for neither.
int RankOf(const render::TCompletion& candidate, std::string_view part) {
  const std::string_view text = candidate.text;
  if (text::EqualNoCase(text.substr(0, part.size()), part)) return 0;
  return text::ContainsNoCase(text, part) || text::ContainsNoCase(candidate.note, part) ? 1 : NoMatch;
}

/// The quantity that many lots further; from between two lots, the first step goes to the next one.
double SteppedByLot(double quantity, double lot, std::int32_t steps) {
  const double lots = quantity / lot;
  return ((steps > 0 ? std::floor(lots) : std::ceil(lots)) + steps) * lot;
}

/// The price that many ticks further; from between two ticks, the first step goes to the next one.
double SteppedByTick(double price, const paper::TSpreadTable& spread, std::int32_t steps) {
  constexpr double Tolerance = 1e-6;
  const double nearest = paper::RoundToTick(spread, price);
  if (std::abs(nearest - price) < Tolerance * paper::TickAt(spread, nearest))
    return paper::MoveTicks(spread, nearest, steps);
  return paper::MoveTicks(
      spread, steps > 0 ? paper::RoundDownToTick(spread, price) : paper::RoundUpToTick(spread, price), steps);
}

}  // namespace

TDeskEditorAssist::TDeskEditorAssist(TDeskEvents& events, TMemoryHost& host,
                                     const paper::TMarketTables& tables, const appearance::TTexts& texts)
    : FHost(host), FTables(tables), FTexts(texts) {
  connect(&events, &TDeskEvents::EditorRegistered, this,
          [this](TEditorKind kind, const forms::TControl& control) { FEditors[&control].kind = kind; });
  connect(&events, &TDeskEvents::EditorSymbolSet, this,
          [this](TEditorKind kind, const forms::TControl& control, const std::string& symbol) {
            FEditors[&control] = {kind, symbol};
          });
  connect(&events, &TDeskEvents::EditorRemoved, this,
          [this](const forms::TControl& control) { FEditors.erase(&control); });
}

std::vector<render::TCompletion> TDeskEditorAssist::Completions(const forms::TTextEdit& editor,
                                                                std::string_view typed) const {
  const auto found = FEditors.find(&editor);
  const std::string_view part = text::Trim(typed);
  if (found == FEditors.end() || part.empty()) return {};
  std::vector<render::TCompletion> candidates = Candidates(found->second.kind);
  std::erase_if(candidates,
                [part](const render::TCompletion& candidate) { return RankOf(candidate, part) == NoMatch; });
  std::stable_sort(candidates.begin(), candidates.end(),
                   [part](const render::TCompletion& left, const render::TCompletion& right) {
                     return RankOf(left, part) < RankOf(right, part);
                   });
  if (candidates.size() > MaxCompletions) candidates.resize(MaxCompletions);
  return candidates;
}

double TDeskEditorAssist::Stepped(const forms::TSpinEdit& editor, double value, std::int32_t steps) const {
  const auto found = FEditors.find(&editor);
  const auto place = found == FEditors.end() ? std::nullopt : FTables.IndexOf(found->second.symbol);
  if (!place) return render::TEditorAssist::Stepped(editor, value, steps);
  const paper::TPaperInstrument& instrument = FTables.instruments[*place];
  if (found->second.kind == TEditorKind::Quantity) return SteppedByLot(value, instrument.lot, steps);
  // What is shown is the market's price times the multiplier; the ticks are the market's.
  const double price = SteppedByTick(value / instrument.multiplier, FTables.SpreadOf(instrument), steps);
  return instrument.multiplier == 1 ? price : price * instrument.multiplier;
}

std::vector<render::TCompletion> TDeskEditorAssist::Candidates(TEditorKind kind) const {
  std::vector<render::TCompletion> candidates;
  if (kind == TEditorKind::Account) {
    for (const std::string& account : FHost.Data().accounts) candidates.push_back({account, {}});
  } else if (kind == TEditorKind::Symbol) {
    for (const paper::TPaperInstrument& instrument : FTables.instruments) {
      candidates.push_back({instrument.symbol, NameIn(FTexts.Language(), instrument.name)});
    }
  }
  return candidates;
}

}  // namespace algo::terminal::desk
