#include "terminal/desk/window/main_menu.h"

#include <QActionGroup>
#include <QMenu>
#include <utility>

#include "terminal/desk/window/provider_menu.h"
#include "terminal/render/qt_text.h"

namespace algo::terminal::desk::window {

namespace {

// The menus of modules come between File and View.
constexpr TMenuPlace FileMenu{1, 100};
constexpr TMenuPlace ViewMenu{2, 2000};
constexpr TMenuPlace LanguageMenu{3, 3000};
constexpr TMenuPlace SkinMenu{4, 4000};
constexpr TMenuPlace HelpMenu{5, 9000};

/// Adds an entry and what it does when it is chosen.
QAction& Add(QMenu& menu, const QString& name, const QString& text, std::function<void()> triggered) {
  QAction& action = *menu.addAction(text);
  action.setObjectName(name);
  QObject::connect(&action, &QAction::triggered, &action, std::move(triggered));
  return action;
}

/// Makes the entry one of a group of which one is chosen.
void MakeChoice(QActionGroup& group, QAction& action, bool chosen) {
  action.setCheckable(true);
  action.setChecked(chosen);
  group.addAction(&action);
}

}  // namespace

TMainMenu::TMainMenu(QMenuBar& bar, TDesk& desk, TMenuActions actions, std::vector<QAction*> panels)
    : FBar(bar), FDesk(desk), FActions(std::move(actions)), FPanels(std::move(panels)) {
  Rebuild();
}

void TMainMenu::Rebuild() {
  for (QAction* action : FBar.actions()) {
    FBar.removeAction(action);
    // An entry of one of the menus may have led here.
    if (QMenu* menu = action->menu()) menu->deleteLater();
    action->deleteLater();
  }
  AddFile();
  AddView();
  AddLanguages();
  AddSkins();
  AddHelp();
  if (QAction* entry = AddViewEntry(FBar, FDesk.Provider())) {
    entry->setShortcut(QKeySequence::New);
    QObject::connect(entry, &QAction::triggered, &FBar, FActions.openEntry);
  }
}

void TMainMenu::AddFile() {
  const appearance::TTexts& texts = FDesk.Texts();
  QMenu& menu = MenuIn(FBar, FileMenu, texts.Desk("File"));
  Add(menu, "saveWorkspace", texts.Desk("Save workspace"), FActions.saveWorkspace)
      .setShortcut(QKeySequence::Save);
  Add(menu, "settings", texts.Desk("Settings…"), FActions.openSettings).setShortcut(QKeySequence("Ctrl+,"));
  menu.addSeparator();
  Add(menu, "exit", texts.Desk("Exit"), FActions.exit).setShortcut(QKeySequence::Quit);
}

void TMainMenu::AddView() {
  QMenu& menu = MenuIn(FBar, ViewMenu, FDesk.Texts().Desk("View"));
  for (QAction* panel : FPanels) menu.addAction(panel);
}

void TMainMenu::AddLanguages() {
  QMenu& menu = MenuIn(FBar, LanguageMenu, FDesk.Texts().Desk("Language"));
  auto& group = *new QActionGroup(&menu);
  for (const appearance::TLanguage language : appearance::Languages) {
    QAction& action =
        Add(menu, render::ToQt(appearance::LanguageCode(language)), appearance::LanguageOwnName(language),
            [this, language] { FActions.setLanguage(language); });
    MakeChoice(group, action, language == FDesk.Texts().Language());
  }
}

void TMainMenu::AddSkins() {
  const appearance::TTexts& texts = FDesk.Texts();
  QMenu& menu = MenuIn(FBar, SkinMenu, texts.Desk("Skin"));
  auto& group = *new QActionGroup(&menu);
  for (const appearance::TSkin& skin : appearance::Skins) {
    QAction& action = Add(menu, render::ToQt(skin.name), texts.Desk(skin.textKey),
                          [this, &skin] { FActions.setSkin(skin); });
    MakeChoice(group, action, skin.name == FDesk.Skin().name);
  }
}

void TMainMenu::AddHelp() {
  const appearance::TTexts& texts = FDesk.Texts();
  Add(MenuIn(FBar, HelpMenu, texts.Desk("Help")), "about", texts.Desk("About"), FActions.about);
}

}  // namespace algo::terminal::desk::window
