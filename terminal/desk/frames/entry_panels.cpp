#include "terminal/desk/frames/entry_panels.h"

#include <QApplication>
#include <algorithm>

#include "terminal/desk/frames/preference_window.h"
#include "terminal/desk/frames/start_views.h"
#include "terminal/render/qt_text.h"
#include "terminal/render/qt_toolkit.h"

namespace algo::terminal::desk::frames {

TEntryPanels::TEntryPanels(TDesk& desk, QMainWindow& window)
    : FDesk(desk), FWindow(window), FFont(QApplication::font()), FActive(desk), FShortcuts(desk, window) {
  connect(&desk.Events(), &TDeskEvents::ViewChanged, this, [this](const host::TViewFrame& view) {
    const auto found = std::ranges::find(FPanels, host::HandleOf(view), &TEntryPanel::Instance);
    if (found == FPanels.end()) return;
    TEntryPanel& panel = **found;
    panel.ShowTitle();
    panel.Fit();
  });
  connect(&FActive, &TActiveView::Changed, this,
          [this] { FShortcuts.SetEnabled(FActive.Panel() != nullptr); });
  connect(&FShortcuts, &TViewShortcuts::Pressed, this, [this](std::int32_t shortcut) {
    if (TEntryPanel* panel = FActive.Panel()) Execute(*panel, shortcut);
  });
}

TEntryPanels::~TEntryPanels() { CloseAll(); }

TEntryPanel* TEntryPanels::Open() {
  const TViewPlace place = PlaceOf(FDesk.Provider());
  TEntryPanel* panel = Make(FreeName("entry"), place);
  if (panel != nullptr) Place(*panel, place);
  return panel;
}

void TEntryPanels::Place(TEntryPanel& panel, const TViewPlace& place) {
  TEntryPanel* last = FPanels.size() > 1 ? FPanels[FPanels.size() - 2] : nullptr;
  // Beside the last one as a tab, so that the others keep their room, unless it has another place.
  const bool beside =
      last != nullptr && last->Docks() &&
      (!place.sideGiven || (!last->isFloating() && FWindow.dockWidgetArea(last) == place.side));
  if (place.docks && beside) FWindow.tabifyDockWidget(last, &panel);
  if (place.floats) panel.setFloating(true);
  panel.show();
  panel.raise();
  panel.FitNew();
  if (!place.docks) panel.move(FWindow.geometry().center() - panel.rect().center());
  // Whoever opens a view means to type into it.
  panel.FocusFirst();
}

TEntryPanel* TEntryPanels::Restore(const TStoredEntry& stored) {
  TEntryPanel* panel = Make(render::ToQt(stored.name), PlaceOf(FDesk.Provider()));
  if (panel == nullptr) return nullptr;
  if (panel->Title().SetGroup(stored.group)) FDesk.Provider().SetGroupID(panel->Instance(), stored.group);
  FDesk.Provider().SetLayoutData(panel->Instance(), stored.layout);
  if (!stored.data.empty()) panel->SetCustomData(stored.data);
  return panel;
}

void TEntryPanels::KeepPlaces() {
  for (TEntryPanel* panel : FPanels) panel->KeepPlace();
}

void TEntryPanels::OpenAtStart() {
  for (host::TIBaseView* provider : StartViews({&FDesk.Provider()})) {
    const TViewPlace place = DialogPlaceOf(*provider);
    TEntryPanel* panel = Make(FreeName("start"), place);
    if (panel == nullptr) continue;
    panel->SetStored(false);
    Place(*panel, place);
  }
}

std::vector<TStoredEntry> TEntryPanels::StoredEntries() const {
  std::vector<TStoredEntry> stored;
  for (const TEntryPanel* panel : FPanels) {
    if (!panel->Stored()) continue;
    stored.push_back({render::FromQt(panel->objectName()), panel->Title().Group(),
                      FDesk.Provider().GetLayoutData(panel->Instance()), panel->CustomData()});
  }
  return stored;
}

void TEntryPanels::FocusFirst() {
  if (!FPanels.empty()) FPanels.front()->FocusFirst();
}

void TEntryPanels::CloseAll() {
  while (!FPanels.empty()) delete FPanels.back();
}

void TEntryPanels::Retranslate() {
  for (TEntryPanel* panel : FPanels) panel->Title().Retranslate(FDesk.Texts());
  ShowCaptions();
  FShortcuts.Rebuild();
}

void TEntryPanels::ShowSkin() {
  for (TEntryPanel* panel : FPanels) panel->Title().ShowSkin(FDesk.Skin());
}

void TEntryPanels::ShowFont() {
  if (QApplication::font() == FFont) return;
  FFont = QApplication::font();
  for (TEntryPanel* panel : FPanels) FDesk.Provider().SetFont(panel->Instance(), render::FormFont());
}

TEntryPanel* TEntryPanels::Make(const QString& name, const TViewPlace& place) {
  const host::TInstanceHandle instance = FDesk.OpenView();
  if (instance == 0) return nullptr;
  FDesk.Provider().SetFont(instance, render::FormFont());
  auto* panel = new TEntryPanel(name, FDesk, instance, place);
  FPanels.push_back(panel);
  panel->Title().Retranslate(FDesk.Texts());
  panel->Title().ShowSkin(FDesk.Skin());
  FWindow.addDockWidget(place.side, panel);
  ShowCaptions();
  Connect(*panel);
  return panel;
}

void TEntryPanels::Connect(TEntryPanel& panel) {
  connect(&panel.Title(), &panels::TDockTitle::GroupChosen, this,
          [this, &panel] { FDesk.Provider().SetGroupID(panel.Instance(), panel.Title().Group()); });
  connect(&panel, &TEntryPanel::PriceDropped, this, &TEntryPanels::PriceDropped);
  connect(&panel, &TEntryPanel::MenuOpening, this, [this, &panel](QMenu& menu) { FillMenu(menu, panel); });
  // Not when it is destroyed: by then the window still has it among its tabs, but as half a panel.
  connect(&panel, &TEntryPanel::Closing, this, [this, &panel] {
    std::erase(FPanels, &panel);
    FActive.Leave(panel);
    ShowCaptions();
  });
}

void TEntryPanels::Execute(TEntryPanel& panel, std::int32_t shortcut) {
  FDesk.Provider().ExecuteShortcutAction(panel.Instance(), shortcut);
  panel.ShowTitle();
}

void TEntryPanels::FillMenu(QMenu& menu, TEntryPanel& panel) {
  QAction* own = menu.addSeparator();
  for (const auto& shortcut : FShortcuts.Actions()) {
    QAction* entry =
        menu.addAction(shortcut->text() + '\t' + shortcut->shortcut().toString(QKeySequence::NativeText));
    entry->setObjectName(shortcut->objectName() + "Entry");
    connect(entry, &QAction::triggered, &panel,
            [this, &panel, number = TViewShortcuts::Number(*shortcut)] { Execute(panel, number); });
  }
  if (const auto preferences = MakePreferences(FDesk)) {
    QAction* entry = menu.addAction(FDesk.Texts().Desk("View settings…"));
    entry->setObjectName("openPreferences");
    connect(entry, &QAction::triggered, &FWindow,
            [this, preferences] { (new TPreferenceWindow(FDesk, preferences, FWindow))->open(); });
  }
  if (menu.actions().last() == own) delete own;
}

void TEntryPanels::ShowCaptions() {
  int number = 0;
  for (TEntryPanel* panel : FPanels) panel->ShowTitle(++number);
}

QString TEntryPanels::FreeName(const QString& kind) const {
  for (int number = 1;; ++number) {
    QString name = kind + QString::number(number);
    const bool taken = std::any_of(FPanels.begin(), FPanels.end(),
                                   [&name](const TEntryPanel* panel) { return panel->objectName() == name; });
    if (!taken) return name;
  }
}

}  // namespace algo::terminal::desk::frames
