#pragma once

// The main window: menu bar, panels, message boxes, and the windows of the module's dialog forms.

#include <QLabel>
#include <QMainWindow>
#include <QPointer>
#include <optional>

#include "terminal/desk/frames/entry_panels.h"
#include "terminal/desk/frames/form_windows.h"
#include "terminal/desk/market/market_watch.h"
#include "terminal/desk/orders/order_blotter.h"
#include "terminal/desk/session/desk.h"
#include "terminal/desk/settings/settings_page.h"
#include "terminal/desk/window/main_menu.h"
#include "terminal/desk/window/message_boxes.h"
#include "terminal/desk/window/message_log.h"
#include "terminal/desk/window/workspace.h"

namespace algo::terminal::desk::window {

class TMainWindow final : public QMainWindow {
  Q_OBJECT
 public:
  /// The desk outlives the window. Only the panels of the terminal itself are open yet.
  explicit TMainWindow(TDesk& desk);

  /// Opens what the stored workspace has; a first workspace when none is stored, and the same with a message
  /// when the stored one cannot be read. A language or a skin in the options overrides the stored one.
  void RestoreWorkspace(const TDeskOptions& options);

  /// Stores what is open. False, with the trader told why, when that fails.
  bool SaveWorkspace();

  frames::TEntryPanels& Entries() { return FEntries; }
  frames::TFormWindows& Forms() { return FForms; }

 protected:
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  TMenuActions MenuActions();
  void ConnectDesk();
  void ConnectPanels();
  void PlacePanels();
  void ShowFirstWorkspace();
  void Show(const TWorkspace& workspace);
  TWorkspace Current() const;
  void ShowMessage(const QString& text);
  void OpenSettings();
  void ShowAbout();
  void Execute(orders::TOrderCommand command, const host::TCustomClientOrder& order);
  void Retranslate();
  void ShowSkin();

  TDesk& FDesk;
  QLabel& FPaperNote;
  TMessageBoxes FBoxes;
  frames::TFormWindows FForms;
  market::TMarketWatch& FWatch;
  orders::TOrderBlotter& FOrders;
  TMessageLog& FMessages;
  frames::TEntryPanels FEntries;
  TMainMenu FMenu;
  QPointer<settings::TSettingsPage> FSettings;
  bool FWasShown = false;
  bool FCloseRequested = false;  ///< to be done as soon as no modal form shows
  bool FCloseUnsaved = false;    ///< the trader was told that the workspace cannot be stored
};

}  // namespace algo::terminal::desk::window
