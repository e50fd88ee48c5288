#pragma once

// Plays a script of the scripted host in the desktop itself: what the script has the trader do is done with
// keys and mouse in the main window, its panels, menus and dialogs; what it has the market or the office do
// is done to the host.

#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "terminal/desk/frames/entry_panel.h"
#include "terminal/desk/script/desk_windows.h"
#include "terminal/desk/script/screenshots.h"
#include "terminal/desk/session/desk.h"
#include "terminal/desk/window/main_window.h"
#include "terminal/drive/arguments.h"
#include "terminal/ui_driver/widget_input_player.h"

namespace algo::terminal::desk::script {

class TScriptPlayer {
 public:
  /// Writes the names of the steps to `log`, which outlives the player, and puts pictures of them into the
  /// folder, unless that is empty. Throws EError when the folder cannot be made.
  TScriptPlayer(TDeskOptions options, const std::string& screensFolder, std::ostream& log);
  ~TScriptPlayer();

  /// Plays the whole script. Throws EError, naming file and line, at the first command that cannot be carried
  /// out.
  void Play(const std::string& file);

 private:
  /// The desktop while it is open.
  struct TOpenDesk {
    TOpenDesk(const TDeskOptions& options, TScriptPlayer& player);
    TDesk desk;
    // Connected before the window, which waits for the answer when it receives a modal form.
    QMetaObject::Connection dialogs;
    window::TMainWindow window;
    TDeskWindows windows{window};
    ui_driver::TWidgetInputPlayer trader{windows};
  };
  using THandler = void (TScriptPlayer::*)(const drive::TArguments& arguments);
  struct TCommand;
  static const TCommand Commands[];

  void Execute(const drive::TCommandJson& command);
  void PlayDialog(forms::TDialogForm& form);
  void CloseMessages();
  void TakeStepPicture();

  TOpenDesk& Open();
  std::shared_ptr<forms::TFrame> FrameOf(const drive::TArguments& arguments);
  frames::TEntryPanel& PanelOf(const drive::TArguments& arguments);
  void ChooseInOrderMenu(const std::string& key, const char* entry);

  void ChangeHost(const drive::TArguments& arguments);
  void Load(const drive::TArguments& arguments);
  void Unload(const drive::TArguments& arguments);
  void OpenView(const drive::TArguments& arguments);
  void CloseView(const drive::TArguments& arguments);
  void ChangeLanguage(const drive::TArguments& arguments);
  void ApplyLayout(const drive::TArguments& arguments);
  void MoveMarket(const drive::TArguments& arguments);
  void Post(const drive::TArguments& arguments);
  void SetValue(const drive::TArguments& arguments);
  void Type(const drive::TArguments& arguments);
  void Leave(const drive::TArguments& arguments);
  void Enter(const drive::TArguments& arguments);
  void Click(const drive::TArguments& arguments);
  void Pick(const drive::TArguments& arguments);
  /// Commands that look at the host without changing it.
  void Look(const drive::TArguments& arguments);

  TDeskOptions FOptions;
  std::ostream& FLog;
  TScreenshots FScreens;
  std::vector<drive::TCommandJson> FHostChanges;  ///< those commanded while the desktop was closed
  std::optional<THostData> FLastData;             ///< the host's data when the desktop was last closed
  std::unique_ptr<TOpenDesk> FOpen;
  std::map<std::string, QPointer<frames::TEntryPanel>> FPanels;  ///< the script's views by their labels
  std::map<std::string, std::weak_ptr<forms::TFrame>> FForms;    ///< frames of the forms beside the others
  std::vector<std::weak_ptr<forms::TFrame>> FModal;              ///< frames of the modal forms that show
  std::deque<drive::TCommandJson> FDialogScripts;  ///< for the dialogs that the command is going to open
  std::string FOrder;                              ///< the one that the blotter's menu was last opened for
  std::string FStep;                               ///< the step that is played
  std::string FFailure;                            ///< what failed in a dialog, where nothing can be thrown
};

}  // namespace algo::terminal::desk::script
