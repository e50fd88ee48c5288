#pragma once

// How the desktop helps the trader type: which accounts and symbols may be meant.

#include <QObject>
#include <map>
#include <string_view>
#include <vector>

#include "terminal/desk/desk_events.h"
#include "terminal/desk/texts.h"
#include "terminal/host/memory_host.h"
#include "terminal/paper/market_tables.h"
#include "terminal/render/editor_assist.h"

namespace algo::terminal {

class TDeskAids final : public QObject, public TEditorAssist {
  Q_OBJECT
 public:
  /// All of them outlive the object.
  TDeskAids(TDeskEvents& events, TMemoryHost& host, const TMarketTables& tables, const TTexts& texts);

  /// Accounts or symbols with the text at their beginning, then those with it elsewhere, in the name of an
  /// instrument too.
  std::vector<TCompletion> Completions(const forms::TTextEdit& editor, std::string_view typed) const override;

 private:
  std::vector<TCompletion> Known(TEditorKind kind) const;

  TMemoryHost& FHost;
  const TMarketTables& FTables;
  const TTexts& FTexts;
  std::map<const forms::TControl*, TEditorKind> FServed;
};

}  // namespace algo::terminal
