#pragma once

// One run of the driver: the host in memory, the loaded module, and the frames that scripts know by label.

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "forms/toolkit.h"
#include "plugin/host_contract/checks/strict_host.h"
#include "plugin/host_contract/installed_service.h"
#include "terminal/drive/command_stack.h"
#include "terminal/drive/dialogs.h"
#include "terminal/drive/event_log.h"
#include "terminal/drive/frame_labels.h"
#include "terminal/drive/input_player.h"
#include "terminal/drive/inside_calls.h"
#include "terminal/drive/loaded_module.h"
#include "terminal/drive/order_returns.h"
#include "terminal/host/memory_host.h"

namespace algo::terminal::drive {

class TSession {
 public:
  /// `moduleFile` is what `Load` loads. `input` plays the trader's input and outlives the session.
  TSession(std::string moduleFile, TInputPlayer& input);
  /// Unloads the module, which closes whatever is open.
  ~TSession();
  TSession(const TSession&) = delete;
  TSession& operator=(const TSession&) = delete;

  /// Executes one command and returns its answer. Throws nothing: whatever goes wrong is in the answer.
  TAnswerJson Execute(const TCommandJson& command);

  /// Loads the module and creates its provider. Throws ECommandError if one is loaded already, EError if it
  /// fails.
  void Load();
  /// Destroys the provider in the middle of whatever is going on: its dialogs end as cancelled, its forms and
  /// their frames go, the opened views stay. Throws ECommandError if there is none.
  void DropProvider();
  /// Closes an opened view.
  void CloseView(const std::shared_ptr<host::TViewFrame>& frame);
  /// Closes everything that the module has open, unloads it and returns what it left behind. Throws
  /// ECommandError if none is loaded, a modal dialog is open, or a command runs inside a service call.
  host::checks::TLeftBehind Unload();

  /// The loaded module. Throws ECommandError if there is none.
  const TLoadedModule& Module() const;
  /// Its provider. Throws ECommandError if there is none, or no longer.
  host::TIBaseView& Provider() const;

  TMemoryHost& Host() { return FHost; }
  TFrameLabels& Labels() { return FLabels; }
  TDialogs& Dialogs() { return FDialogs; }
  TInputPlayer& Input() { return FInput; }

  /// Whether the loaded provider shows changes in a modal dialog; the setting at its creation decides.
  bool ChangesAreModal() const { return FChangesAreModal; }

 private:
  void RequireNotInside() const;

  /// Figures that are the same everywhere, and the day that the script says.
  class TToolkit final : public forms::TToolkit {
   public:
    explicit TToolkit(const THostData& data) : FData(data) { Install(this); }
    ~TToolkit() override { Install(nullptr); }
    std::chrono::local_days Today() const override { return FData.today; }

   private:
    const THostData& FData;
  };

  std::string FModuleFile;
  TInputPlayer& FInput;
  TFrameLabels FLabels;
  TCommandStack FRunning;
  TDialogs FDialogs;
  TInsideCalls FInside;
  TEventLog FLog;
  TMemoryHost FHost;
  TToolkit FToolkit;
  host::checks::TStrictHost FStrict;
  host::TInstalledService<TOrderReturns> FReturns;
  std::optional<TLoadedModule> FModule;
  bool FChangesAreModal = true;
  /// The views that the provider left open when it was destroyed.
  std::vector<std::shared_ptr<host::TViewFrame>> FLeftViews;
};

}  // namespace algo::terminal::drive
