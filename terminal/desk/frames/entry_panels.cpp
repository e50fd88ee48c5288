#include "terminal/desk/frames/entry_panels.h"

#include <algorithm>

#include "terminal/render/qt_text.h"

namespace algo::terminal::desk::frames {

TEntryPanels::TEntryPanels(TDesk& desk, QMainWindow& window) : FDesk(desk), FWindow(window) {
  connect(&desk.Events(), &TDeskEvents::ViewChanged, this, [this](const host::TViewFrame& view) {
    for (TEntryPanel* panel : FPanels) {
      if (panel->Instance() == host::HandleOf(view)) panel->Fit();
    }
  });
}

TEntryPanels::~TEntryPanels() { CloseAll(); }

TEntryPanel* TEntryPanels::Open() {
  TEntryPanel* panel = Make(FreeName());
  if (panel == nullptr) return nullptr;
  // Beside the last one as a tab, so that the others keep their room.
  if (FPanels.size() > 1) FWindow.tabifyDockWidget(FPanels[FPanels.size() - 2], panel);
  if (FDesk.Provider().GetIsWindow()) panel->setFloating(true);
  panel->show();
  panel->raise();
  panel->Fit();
  // Whoever opens a view means to type into it.
  panel->FocusFirst();
  return panel;
}

TEntryPanel* TEntryPanels::Restore(const TStoredEntry& stored) {
  TEntryPanel* panel = Make(render::ToQt(stored.name));
  if (panel == nullptr) return nullptr;
  if (panel->Title().SetGroup(stored.group)) FDesk.Provider().SetGroupID(panel->Instance(), stored.group);
  FDesk.Provider().SetLayoutData(panel->Instance(), stored.layout);
  return panel;
}

std::vector<TStoredEntry> TEntryPanels::StoredEntries() const {
  std::vector<TStoredEntry> stored;
  for (const TEntryPanel* panel : FPanels) {
    stored.push_back({render::FromQt(panel->objectName()), panel->Title().Group(),
                      FDesk.Provider().GetLayoutData(panel->Instance())});
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
}

void TEntryPanels::ShowSkin() {
  for (TEntryPanel* panel : FPanels) panel->Title().ShowSkin(FDesk.Skin());
}

TEntryPanel* TEntryPanels::Make(const QString& name) {
  const host::TInstanceHandle instance = FDesk.OpenView();
  if (instance == 0) return nullptr;
  auto* panel = new TEntryPanel(name, FDesk, instance);
  FPanels.push_back(panel);
  panel->Title().Retranslate(FDesk.Texts());
  panel->Title().ShowSkin(FDesk.Skin());
  FWindow.addDockWidget(Qt::LeftDockWidgetArea, panel);
  ShowCaptions();
  connect(&panel->Title(), &panels::TDockTitle::GroupChosen, this, [this, panel] {
    FDesk.Events().Guard([&] { FDesk.Provider().SetGroupID(panel->Instance(), panel->Title().Group()); });
  });
  connect(panel, &TEntryPanel::PriceDropped, this, &TEntryPanels::PriceDropped);
  connect(panel, &QObject::destroyed, this, [this, panel] {
    std::erase(FPanels, panel);
    ShowCaptions();
  });
  return panel;
}

void TEntryPanels::ShowCaptions() {
  int number = 0;
  for (TEntryPanel* panel : FPanels) panel->ShowCaption(++number);
}

QString TEntryPanels::FreeName() const {
  for (int number = 1;; ++number) {
    QString name = "entry" + QString::number(number);
    const bool taken = std::any_of(FPanels.begin(), FPanels.end(),
                                   [&name](const TEntryPanel* panel) { return panel->objectName() == name; });
    if (!taken) return name;
  }
}

}  // namespace algo::terminal::desk::frames
