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

#include "terminal/desk/desk_stage.h"
#include "terminal/desk/main_window.h"
#include "terminal/desk/screenshots.h"
#include "terminal/drive/arguments.h"
#include "terminal/ui_driver/widget_input_player.h"

namespace algo::terminal {

class TDayPlayer {
 public:
  /// Steps, and the pictures taken of them, are told to `account`, which outlives the player. Throws EError
  /// when the folder for the pictures cannot be made.
  TDayPlayer(TDeskOptions options, std::ostream& account);
  ~TDayPlayer();

  /// Plays the whole script. Throws EError, naming file and line, at the first command that cannot be carried
  /// out.
  void Play(const std::string& file);

 private:
  /// The desktop while it is open.
  struct TOpen {
    TOpen(const TDeskOptions& options, TDayPlayer& player);
    TDesk desk;
    // Before the window, which waits where it hears of a modal form.
    QMetaObject::Connection dialogs;
    TMainWindow window;
    TDeskStage stage{window};
    TWidgetInputPlayer trader{stage};
  };
  using THandler = void (TDayPlayer::*)(const TArguments& arguments);
  struct TDeed;
  static const TDeed Deeds[];

  void Execute(const TCommandJson& command);
  void PlayDialog(forms::TDialogForm& form);
  void CloseMessages();
  void EndStep();

  TOpen& Open();
  std::shared_ptr<forms::TFrame> FrameOf(const TArguments& arguments);
  TEntryPanel& PanelOf(const TArguments& arguments);
  void ChooseForOrder(const std::string& key, const char* deed);

  void ChangeHost(const TArguments& arguments);
  void Load(const TArguments& arguments);
  void Unload(const TArguments& arguments);
  void OpenView(const TArguments& arguments);
  void CloseView(const TArguments& arguments);
  void ChangeLanguage(const TArguments& arguments);
  void ApplyLayout(const TArguments& arguments);
  void MoveMarket(const TArguments& arguments);
  void Post(const TArguments& arguments);
  void SetValue(const TArguments& arguments);
  void Type(const TArguments& arguments);
  void Leave(const TArguments& arguments);
  void Enter(const TArguments& arguments);
  void Click(const TArguments& arguments);
  void Pick(const TArguments& arguments);
  void Look(const TArguments& arguments);

  TDeskOptions FOptions;
  std::ostream& FAccount;
  TScreenshots FScreens;
  std::vector<TCommandJson> FHostChanges;  ///< those that came while the desktop was closed
  std::optional<THostData> FLeft;          ///< the host's data as the desktop left them that was open before
  std::unique_ptr<TOpen> FOpen;
  std::map<std::string, QPointer<TEntryPanel>> FPanels;  ///< the views that the script opened, by its labels
  std::map<std::string, std::weak_ptr<forms::TFrame>>
      FForms;                                        ///< the frames in forms that stand beside the others
  std::vector<std::weak_ptr<forms::TFrame>> FModal;  ///< the frames in the modal forms that show
  std::deque<TCommandJson> FDialogScripts;  ///< for the dialogs to come of the command that is carried out
  std::string FChanged;                     ///< the order that the blotter's menu was last opened for
  std::string FStep;                        ///< the step of the day that is played
  std::string FFailure;                     ///< what went wrong in a dialog, where nothing can be thrown
};

}  // namespace algo::terminal
