#pragma once

// How the desktop helps the trader type: which accounts and symbols may be meant, and by how much prices and
// quantities step.

#include <QObject>
#include <map>
#include <string>
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

  /// By the tick of the instrument's spread table or by its lot, onto the grid of those. Other editors, and
  /// those whose instrument is not known, go by their own step.
  double Stepped(const forms::TSpinEdit& editor, double value, std::int32_t steps) const override;

 private:
  struct TServed {
    TEditorKind kind;
    std::string symbol;
  };

  std::vector<TCompletion> Known(TEditorKind kind) const;

  TMemoryHost& FHost;
  const TMarketTables& FTables;
  const TTexts& FTexts;
  std::map<const forms::TControl*, TServed> FServed;
};

}  // namespace algo::terminal
