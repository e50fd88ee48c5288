#include "terminal/desk/session/editor_assist.h"

#include <algorithm>

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

}  // namespace

TDeskEditorAssist::TDeskEditorAssist(TDeskEvents& events, TMemoryHost& host,
                                     const paper::TMarketTables& tables, const appearance::TTexts& texts)
    : FHost(host), FTables(tables), FTexts(texts) {
  connect(&events, &TDeskEvents::EditorRegistered, this,
          [this](TEditorKind kind, const forms::TControl& control) { FEditors[&control] = kind; });
  connect(&events, &TDeskEvents::EditorRemoved, this,
          [this](const forms::TControl& control) { FEditors.erase(&control); });
}

std::vector<render::TCompletion> TDeskEditorAssist::Completions(const forms::TTextEdit& editor,
                                                                std::string_view typed) const {
  const auto found = FEditors.find(&editor);
  const std::string_view part = text::Trim(typed);
  if (found == FEditors.end() || part.empty()) return {};
  std::vector<render::TCompletion> candidates = Candidates(found->second);
  std::erase_if(candidates,
                [part](const render::TCompletion& candidate) { return RankOf(candidate, part) == NoMatch; });
  std::stable_sort(candidates.begin(), candidates.end(),
                   [part](const render::TCompletion& left, const render::TCompletion& right) {
                     return RankOf(left, part) < RankOf(right, part);
                   });
  if (candidates.size() > MaxCompletions) candidates.resize(MaxCompletions);
  return candidates;
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
