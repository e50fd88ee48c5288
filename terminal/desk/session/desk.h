#pragma once

// The desktop without its windows: everything that they show and work on, made in the order in which one part
// needs another, and taken down in the opposite one.

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "terminal/desk/appearance/installed_toolkit.h"
#include "terminal/desk/appearance/skins.h"
#include "terminal/desk/appearance/texts.h"
#include "terminal/desk/session/desk_events.h"
#include "terminal/desk/session/desk_options.h"
#include "terminal/desk/session/editor_assist.h"
#include "terminal/drive/loaded_module.h"
#include "terminal/host/memory_host.h"
#include "terminal/paper/market_tables.h"
#include "terminal/paper/paper_engine.h"
#include "terminal/paper/paper_market.h"
#include "terminal/storage/sqlite_storage.h"

namespace algo::terminal::desk {

class TDesk final : public QObject {
  Q_OBJECT
 public:
  /// Opens the database, loads the market's tables and the module, and shows the application in the skin. The
  /// market stands still until Start. Throws EError, whose text says what to do, when any of these fails.
  explicit TDesk(const TDeskOptions& options);
  /// Views of the module's frames are gone by then.
  ~TDesk() override;

  TDeskEvents& Events() { return FEvents; }
  TMemoryHost& Host() { return FHost; }
  storage::TSqliteStorage& Storage() { return FStorage; }
  /// The module's view provider, which throws nothing here: the trader is told of a failure, and the answer
  /// is the one of a view that has nothing to say.
  host::TIBaseView& Provider() { return FModule->Provider(); }
  const paper::TMarketTables& Tables() const { return FTables; }
  const render::TEditorAssist& EditorAssist() const { return FEditorAssist; }
  const appearance::TTexts& Texts() const { return FTexts; }
  const appearance::TSkin& Skin() const { return *FSkin; }

  /// Opens an instance of the module's view; 0, with the trader told why, when that fails.
  host::TInstanceHandle OpenView();
  void CloseView(host::TInstanceHandle instance);

  /// Shows everything in the language, or in the skin, from now on.
  void SetLanguage(appearance::TLanguage language);
  void SetSkin(const appearance::TSkin& skin);

  /// Lets the market run by the clock.
  void Start();
  /// Lets that much time pass in the market.
  void Step(double seconds);

  /// Takes the order out of the market, as far as it is not filled.
  void Cancel(const host::TCustomClientOrder& order);

 signals:
  void LanguageChanged();
  void SkinChanged();

 private:
  void StepByClock();

  appearance::TTexts FTexts;
  const appearance::TSkin* FSkin;
  appearance::TInstalledToolkit FToolkit;
  TDeskEvents FEvents;
  paper::TMarketTables FTables;
  storage::TSqliteStorage FStorage;
  TMemoryHost FHost;
  paper::TPaperMarket FMarket;
  std::optional<paper::TPaperEngine> FEngine;  ///< made once the orders that it takes over are loaded
  TDeskEditorAssist FEditorAssist;
  std::unique_ptr<drive::TLoadedModule> FModule;
  std::set<host::TInstanceHandle> FViews;  ///< those that are told of a change of language
  QTimer FTimer;
  QElapsedTimer FClock;
};

}  // namespace algo::terminal::desk
