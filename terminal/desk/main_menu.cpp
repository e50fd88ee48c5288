#include "terminal/desk/main_menu.h"

#include <QActionGroup>
#include <QMenu>
#include <utility>

#include "terminal/desk/provider_menu.h"
#include "terminal/render/qt_text.h"

namespace algo::terminal {

namespace {

// The menus of modules come between File and View.
constexpr TMenuPlace FileMenu{1, 100};
constexpr TMenuPlace ViewMenu{2, 2000};
constexpr TMenuPlace LanguageMenu{3, 3000};
constexpr TMenuPlace SkinMenu{4, 4000};
constexpr TMenuPlace HelpMenu{5, 9000};

/// Adds an entry that does something.
QAction& Add(QMenu& menu, const QString& name, const QString& text, std::function<void()> deed) {
  QAction& action = *menu.addAction(text);
  action.setObjectName(name);
  QObject::connect(&action, &QAction::triggered, &action, std::move(deed));
  return action;
}

/// Makes the entry one of a group of which one is chosen.
void MakeChoice(QActionGroup& group, QAction& action, bool chosen) {
  action.setCheckable(true);
  action.setChecked(chosen);
  group.addAction(&action);
}

}  // namespace

TMainMenu::TMainMenu(QMenuBar& bar, TDesk& desk, TMenuDeeds deeds, std::vector<QAction*> panels)
    : FBar(bar), FDesk(desk), FDeeds(std::move(deeds)), FPanels(std::move(panels)) {
  Rebuild();
}

void TMainMenu::Rebuild() {
  for (QAction* action : FBar.actions()) {
    FBar.removeAction(action);
    // What led here may be an entry of one of the menus.
    if (QMenu* menu = action->menu()) menu->deleteLater();
    action->deleteLater();
  }
  AddFile();
  AddView();
  AddLanguages();
  AddSkins();
  AddHelp();
  if (QAction* entry = PlaceView(FBar, FDesk.Provider())) {
    entry->setShortcut(QKeySequence::New);
    QObject::connect(entry, &QAction::triggered, &FBar, FDeeds.openEntry);
  }
}

void TMainMenu::AddFile() {
  const TTexts& texts = FDesk.Texts();
  QMenu& menu = MenuIn(FBar, FileMenu, texts.Desk("File"));
  Add(menu, "saveWorkspace", texts.Desk("Save workspace"), FDeeds.saveWorkspace)
      .setShortcut(QKeySequence::Save);
  Add(menu, "settings", texts.Desk("Settings…"), FDeeds.openSettings).setShortcut(QKeySequence("Ctrl+,"));
  menu.addSeparator();
  Add(menu, "exit", texts.Desk("Exit"), FDeeds.exit).setShortcut(QKeySequence::Quit);
}

void TMainMenu::AddView() {
  QMenu& menu = MenuIn(FBar, ViewMenu, FDesk.Texts().Desk("View"));
  for (QAction* panel : FPanels) menu.addAction(panel);
}

void TMainMenu::AddLanguages() {
  QMenu& menu = MenuIn(FBar, LanguageMenu, FDesk.Texts().Desk("Language"));
  auto& group = *new QActionGroup(&menu);
  for (const TLanguage language : Languages) {
    QAction& action = Add(menu, ToQt(LanguageCode(language)), LanguageOwnName(language),
                          [this, language] { FDeeds.setLanguage(language); });
    MakeChoice(group, action, language == FDesk.Texts().Language());
  }
}

void TMainMenu::AddSkins() {
  const TTexts& texts = FDesk.Texts();
  QMenu& menu = MenuIn(FBar, SkinMenu, texts.Desk("Skin"));
  auto& group = *new QActionGroup(&menu);
  for (const TSkin& skin : Skins) {
    QAction& action =
        Add(menu, ToQt(skin.name), texts.Desk(skin.textKey), [this, &skin] { FDeeds.setSkin(skin); });
    MakeChoice(group, action, skin.name == FDesk.Skin().name);
  }
}

void TMainMenu::AddHelp() {
  const TTexts& texts = FDesk.Texts();
  Add(MenuIn(FBar, HelpMenu, texts.Desk("Help")), "about", texts.Desk("About"), FDeeds.about);
}

}  // namespace algo::terminal
