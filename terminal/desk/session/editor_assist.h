#pragma once

// Help with typing: which accounts and symbols may be meant.

#include <QObject>
#include <map>
#include <string_view>
#include <vector>

#include "terminal/desk/appearance/texts.h"
#include "terminal/desk/session/desk_events.h"
#include "terminal/host/memory_host.h"
#include "terminal/paper/market_tables.h"
#include "terminal/render/editor_assist.h"

namespace algo::terminal::desk {

class TDeskEditorAssist final : public QObject, public render::TEditorAssist {
  Q_OBJECT
 public:
  /// All of them outlive the object.
  TDeskEditorAssist(TDeskEvents& events, TMemoryHost& host, const paper::TMarketTables& tables,
                    const appearance::TTexts& texts);

  /// Accounts or symbols with the text at their beginning, then those with it elsewhere, in the name of an
  /// instrument too.
  std::vector<render::TCompletion> Completions(const forms::TTextEdit& editor,
                                               std::string_view typed) const override;

 private:
  std::vector<render::TCompletion> Candidates(TEditorKind kind) const;

  TMemoryHost& FHost;
  const paper::TMarketTables& FTables;
  const appearance::TTexts& FTexts;
  std::map<const forms::TControl*, TEditorKind> FEditors;
};

}  // namespace algo::terminal::desk
