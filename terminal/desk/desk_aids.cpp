#include "terminal/desk/desk_aids.h"

#include <algorithm>

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

}  // namespace

TDeskAids::TDeskAids(TDeskEvents& events, TMemoryHost& host, const TMarketTables& tables, const TTexts& texts)
    : FHost(host), FTables(tables), FTexts(texts) {
  connect(&events, &TDeskEvents::EditorCame, this,
          [this](TEditorKind kind, const forms::TControl& control) { FServed[&control] = kind; });
  connect(&events, &TDeskEvents::EditorWent, this,
          [this](const forms::TControl& control) { FServed.erase(&control); });
}

std::vector<TCompletion> TDeskAids::Completions(const forms::TTextEdit& editor,
                                                std::string_view typed) const {
  const auto served = FServed.find(&editor);
  const std::string_view part = text::Trim(typed);
  if (served == FServed.end() || part.empty()) return {};
  std::vector<TCompletion> candidates = Known(served->second);
  std::erase_if(candidates, [part](const TCompletion& candidate) { return RankOf(candidate, part) == 2; });
  std::stable_sort(candidates.begin(), candidates.end(),
                   [part](const TCompletion& left, const TCompletion& right) {
                     return RankOf(left, part) < RankOf(right, part);
                   });
  if (candidates.size() > MostCompletions) candidates.resize(MostCompletions);
  return candidates;
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
