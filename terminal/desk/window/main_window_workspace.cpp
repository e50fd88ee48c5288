// Storing and restoring what is open in the main window.

#include <QGuiApplication>
#include <QScreen>

#include "terminal/desk/appearance/skins.h"
#include "terminal/desk/window/main_window.h"

namespace algo::terminal::desk::window {

namespace {

constexpr const char* WorkspaceName = "default";
// A text that could not be read is saved under this name for somebody who can.
constexpr const char* UnreadableName = "default (unreadable)";

constexpr QSize FirstSize(1280, 800);

}  // namespace

void TMainWindow::RestoreWorkspace(const TDeskOptions& options) {
  const std::optional<std::string> text = FDesk.Storage().Workspace(WorkspaceName);
  std::optional<TWorkspace> stored = text ? ParseWorkspace(*text) : std::nullopt;
  if (stored) {
    // Before anything opens, so that nothing shows in another language first.
    if (!options.language) FDesk.SetLanguage(stored->language);
    if (options.skin == nullptr) FDesk.SetSkin(*appearance::SkinNamed(stored->skin));
    return Show(*stored);
  }
  ShowFirstWorkspace();
  if (!text) return;
  FDesk.Storage().StoreWorkspace(UnreadableName, *text);
  ShowMessage(FDesk.Texts().Desk("Workspace.Unreadable"));
}

bool TMainWindow::SaveWorkspace() {
  return FDesk.Events().Guard(
      [this] { FDesk.Storage().StoreWorkspace(WorkspaceName, WorkspaceText(Current())); });
}

void TMainWindow::PlacePanels() {
  addDockWidget(Qt::RightDockWidgetArea, &FWatch);
  addDockWidget(Qt::RightDockWidgetArea, &FOrders);
  splitDockWidget(&FWatch, &FOrders, Qt::Vertical);
  tabifyDockWidget(&FOrders, &FMessages);
  FOrders.raise();
}

void TMainWindow::ShowFirstWorkspace() {
  resize(FirstSize.boundedTo(screen()->availableSize()));
  if (FDesk.Provider().GetIsVisible()) FEntries.Open();
}

void TMainWindow::Show(const TWorkspace& workspace) {
  FWatch.Title().SetGroup(workspace.watchGroup);
  FOrders.Title().SetGroup(workspace.ordersGroup);
  // The right may have been withdrawn since.
  if (FDesk.Provider().GetIsVisible()) {
    for (const frames::TStoredEntry& entry : workspace.entries) FEntries.Restore(entry);
  }
  if (!restoreGeometry(workspace.geometry)) resize(FirstSize.boundedTo(screen()->availableSize()));
  restoreState(workspace.panels);
  FEntries.KeepPlaces();
}

TWorkspace TMainWindow::Current() const {
  return {.language = FDesk.Texts().Language(),
          .skin = std::string(FDesk.Skin().name),
          .geometry = saveGeometry(),
          .panels = saveState(),
          .watchGroup = FWatch.Title().Group(),
          .ordersGroup = FOrders.Title().Group(),
          .entries = FEntries.StoredEntries()};
}

}  // namespace algo::terminal::desk::window
