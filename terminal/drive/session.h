#pragma once

// One run of the driver: the host in memory, the module in it, and what scripts know by name.

#include <optional>
#include <string>

#include "plugin/host_contract/checks/strict_host.h"
#include "terminal/drive/dialogs.h"
#include "terminal/drive/event_log.h"
#include "terminal/drive/frame_names.h"
#include "terminal/drive/loaded_module.h"
#include "terminal/drive/run_stack.h"
#include "terminal/drive/trader.h"
#include "terminal/host/memory_host.h"

namespace algo::terminal::drive {

class TSession {
 public:
  /// `moduleFile` is what `Load` loads. `trader` does what scripts say a trader does; it outlives the
  /// session.
  TSession(std::string moduleFile, TTrader& trader);
  /// Closes what is open and unloads the module.
  ~TSession();
  TSession(const TSession&) = delete;
  TSession& operator=(const TSession&) = delete;

  /// Carries out one command and returns its answer. Lets nothing out: whatever goes wrong stands in the
  /// answer.
  TAnswerJson Execute(const TCommandJson& command);

  /// Loads the module and makes its provider. Throws ECommandError when one is loaded already, EError when it
  /// fails.
  void Load();
  /// Closes everything the module has open, unloads it and returns what it left behind. Throws ECommandError
  /// when none is loaded.
  host::checks::TLeftBehind Unload();

  /// The loaded module. Throws ECommandError when none is.
  const TLoadedModule& Module() const;
  host::TIBaseView& Provider() const { return Module().Provider(); }

  TMemoryHost& Host() { return FHost; }
  TFrameNames& Names() { return FNames; }
  TDialogs& Dialogs() { return FDialogs; }
  TTrader& Trader() { return FTrader; }

  /// Whether the loaded provider shows changes in its modal dialog; it goes by the setting that it found when
  /// made.
  bool ChangesAreModal() const { return FChangesAreModal; }

 private:
  void Answer(const TCommandJson& command, TRun& run, TAnswerJson& answer);

  std::string FModuleFile;
  TTrader& FTrader;
  TFrameNames FNames;
  TRunStack FRuns;
  TDialogs FDialogs;
  TEventLog FLog;
  TMemoryHost FHost;
  host::checks::TStrictHost FStrict;
  std::optional<TLoadedModule> FModule;
  bool FChangesAreModal = true;
};

}  // namespace algo::terminal::drive
