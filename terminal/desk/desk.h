#pragma once

// The desktop without its windows: everything that they show and work on, made in the order in which one
// needs the other, and taken down in the opposite one.

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "terminal/desk/desk_aids.h"
#include "terminal/desk/desk_events.h"
#include "terminal/desk/desk_options.h"
#include "terminal/desk/skins.h"
#include "terminal/desk/texts.h"
#include "terminal/drive/loaded_module.h"
#include "terminal/host/memory_host.h"
#include "terminal/paper/market_tables.h"
#include "terminal/paper/paper_engine.h"
#include "terminal/paper/paper_market.h"
#include "terminal/render/qt_toolkit.h"
#include "terminal/storage/sqlite_storage.h"

namespace algo::terminal {

class TDesk final : public QObject {
  Q_OBJECT
 public:
  /// Opens the database, loads the market's tables and the module, and shows the application in the skin. The
  /// market stands still until Start. Throws EError, whose text tells what to do, when any of it cannot be
  /// had.
  explicit TDesk(const TDeskOptions& options);
  /// Views of the module's frames are gone by then.
  ~TDesk() override;

  TDeskEvents& Events() { return FEvents; }
  TMemoryHost& Host() { return FHost; }
  TSqliteStorage& Keeper() { return FKeeper; }
  host::TIBaseView& Provider() { return FModule->Provider(); }
  const TMarketTables& Tables() const { return FTables; }
  const TEditorAssist& Aids() const { return FAids; }
  const TTexts& Texts() const { return FTexts; }
  const TSkin& Skin() const { return *FSkin; }

  /// Opens an instance of the module's view; 0, with the trader told why, when that fails.
  host::TInstanceHandle OpenView();
  void CloseView(host::TInstanceHandle instance);

  /// Shows everything in the language, or in the skin, from now on.
  void SetLanguage(TLanguage language);
  void SetSkin(const TSkin& skin);

  /// Has the market run by the clock.
  void Start();
  /// Lets that much time pass in the market.
  void Step(double seconds);

  /// Takes the order out of the market, as far as it is not filled.
  void Cancel(const host::TCustomClientOrder& order);

 signals:
  void LanguageChanged();
  void SkinChanged();

 private:
  /// Texts are measured as they are drawn, as long as it lives.
  struct TInstalledToolkit {
    TInstalledToolkit() { forms::TToolkit::Install(&toolkit); }
    ~TInstalledToolkit() { forms::TToolkit::Install(nullptr); }
    TInstalledToolkit(const TInstalledToolkit&) = delete;
    TInstalledToolkit& operator=(const TInstalledToolkit&) = delete;
    TQtToolkit toolkit;
  };

  void StepByClock();

  TTexts FTexts;
  const TSkin* FSkin;
  TInstalledToolkit FToolkit;
  TDeskEvents FEvents;
  TMarketTables FTables;
  TSqliteStorage FKeeper;
  TMemoryHost FHost;
  TPaperMarket FMarket;
  std::optional<TPaperEngine> FEngine;  ///< made when the orders are there that it takes over
  TDeskAids FAids;
  std::unique_ptr<TLoadedModule> FModule;
  std::set<host::TInstanceHandle> FViews;  ///< those that a change of language is told to
  QTimer FTimer;
  QElapsedTimer FClock;
};

}  // namespace algo::terminal
