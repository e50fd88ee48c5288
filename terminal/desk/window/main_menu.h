#pragma once

// The menu bar of the main window: the terminal's own menus, and the entries that the module's view
// describes.

#include <QAction>
#include <QMenuBar>
#include <functional>
#include <vector>

#include "terminal/desk/session/desk.h"

namespace algo::terminal::desk::window {

/// What the entries do.
struct TMenuActions {
  std::function<void()> openEntry;
  std::function<void()> saveWorkspace;
  std::function<void()> openSettings;
  std::function<void()> exit;
  std::function<void()> about;
  std::function<void(appearance::TLanguage)> setLanguage;
  std::function<void(const appearance::TSkin&)> setSkin;
};

class TMainMenu final {
 public:
  /// `panels` are the entries that show and hide panels; their owners name them. `bar` and `desk` outlive the
  /// menu.
  TMainMenu(QMenuBar& bar, TDesk& desk, TMenuActions actions, std::vector<QAction*> panels);

  /// Makes all entries anew, for the present language, skin and rights of the user.
  void Rebuild();

 private:
  void AddFile();
  void AddView();
  void AddLanguages();
  void AddSkins();
  void AddHelp();

  QMenuBar& FBar;
  TDesk& FDesk;
  TMenuActions FActions;
  std::vector<QAction*> FPanels;
};

}  // namespace algo::terminal::desk::window
