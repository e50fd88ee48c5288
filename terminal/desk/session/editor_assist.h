#pragma once

// Help with typing: which accounts and symbols may be meant, and by how much prices and quantities step.

#include <QObject>
#include <map>
#include <string>
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

  /// By the tick of the instrument's spread table or by its lot, and onto their grid. Other editors, and
  /// those whose instrument is not known, take their own step.
  double Stepped(const forms::TSpinEdit& editor, double value, std::int32_t steps) const override;

 private:
  /// An editor that the module registered, and the symbol that it was told.
  struct TEditor {
    TEditorKind kind;
    std::string symbol;
  };

  std::vector<render::TCompletion> Candidates(TEditorKind kind) const;

  TMemoryHost& FHost;
  const paper::TMarketTables& FTables;
  const appearance::TTexts& FTexts;
  std::map<const forms::TControl*, TEditor> FEditors;
};

}  // namespace algo::terminal::desk
