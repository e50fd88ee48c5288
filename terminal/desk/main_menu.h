#pragma once

// The menu bar of the main window: the terminal's own menus, and the entries that the module's view
// describes.

#include <QAction>
#include <QMenuBar>
#include <functional>
#include <vector>

#include "terminal/desk/desk.h"

namespace algo::terminal {

/// What the entries do.
struct TMenuDeeds {
  std::function<void()> openEntry;
  std::function<void()> saveWorkspace;
  std::function<void()> openSettings;
  std::function<void()> exit;
  std::function<void()> about;
  std::function<void(TLanguage)> setLanguage;
  std::function<void(const TSkin&)> setSkin;
};

class TMainMenu final {
 public:
  /// `panels` are the entries that show and hide panels; their owners name them. `bar` and `desk` outlive the
  /// menu.
  TMainMenu(QMenuBar& bar, TDesk& desk, TMenuDeeds deeds, std::vector<QAction*> panels);

  /// Makes all entries anew, as language, skin and the user's rights want them now.
  void Rebuild();

 private:
  void AddFile();
  void AddView();
  void AddLanguages();
  void AddSkins();
  void AddHelp();

  QMenuBar& FBar;
  TDesk& FDesk;
  TMenuDeeds FDeeds;
  std::vector<QAction*> FPanels;
};

}  // namespace algo::terminal
