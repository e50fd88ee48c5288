// Keeping and restoring what is open in the main window.

#include <QGuiApplication>
#include <QScreen>

#include "terminal/desk/main_window.h"
#include "terminal/desk/skins.h"

namespace algo::terminal {

namespace {

constexpr const char* WorkspaceName = "default";
// A text that could not be read is kept under this name, for whoever can.
constexpr const char* UnreadableName = "default (unreadable)";

constexpr QSize FirstSize(1280, 800);

}  // namespace

void TMainWindow::RestoreWorkspace(const TDeskOptions& options) {
  const std::optional<std::string> text = FDesk.Keeper().Workspace(WorkspaceName);
  std::optional<TWorkspace> kept = text ? ParseWorkspace(*text) : std::nullopt;
  if (kept) {
    // First of all, so that nothing shows in another language before.
    if (!options.language) FDesk.SetLanguage(kept->language);
    if (options.skin == nullptr) FDesk.SetSkin(*SkinNamed(kept->skin));
    return Show(*kept);
  }
  ShowFirstWorkspace();
  if (!text) return;
  FDesk.Keeper().StoreWorkspace(UnreadableName, *text);
  Tell(FDesk.Texts().Desk("Workspace.Unreadable"));
}

bool TMainWindow::SaveWorkspace() {
  return FDesk.Events().Guard(
      [this] { FDesk.Keeper().StoreWorkspace(WorkspaceName, WorkspaceText(Current())); });
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
  // A right may have been taken away since.
  if (FDesk.Provider().GetIsVisible()) {
    for (const TKeptEntry& entry : workspace.entries) FEntries.Restore(entry);
  }
  if (!restoreGeometry(workspace.geometry)) resize(FirstSize.boundedTo(screen()->availableSize()));
  restoreState(workspace.panels);
}

TWorkspace TMainWindow::Current() const {
  return {.language = FDesk.Texts().Language(),
          .skin = std::string(FDesk.Skin().name),
          .geometry = saveGeometry(),
          .panels = saveState(),
          .watchGroup = FWatch.Title().Group(),
          .ordersGroup = FOrders.Title().Group(),
          .entries = FEntries.Kept()};
}

}  // namespace algo::terminal
