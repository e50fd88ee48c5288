#pragma once

// The main window: menu bar, panels, message boxes, and the windows of the module's dialog forms.

#include <QLabel>
#include <QMainWindow>
#include <QPointer>
#include <optional>

#include "terminal/desk/desk.h"
#include "terminal/desk/entry_panels.h"
#include "terminal/desk/form_windows.h"
#include "terminal/desk/main_menu.h"
#include "terminal/desk/market_watch.h"
#include "terminal/desk/message_boxes.h"
#include "terminal/desk/message_log.h"
#include "terminal/desk/order_blotter.h"
#include "terminal/desk/settings_page.h"
#include "terminal/desk/workspace.h"

namespace algo::terminal {

class TMainWindow final : public QMainWindow {
  Q_OBJECT
 public:
  /// The desk outlives the window. Nothing but the panels of the terminal itself is open yet.
  explicit TMainWindow(TDesk& desk);

  /// Opens what the kept workspace has; a first workspace when none is kept, and the same with a message when
  /// the kept one cannot be read. A language or a skin that was asked for at the start goes before the kept
  /// one.
  void RestoreWorkspace(const TDeskOptions& options);

  /// Keeps what is open. False, with the trader told why, when that fails.
  bool SaveWorkspace();

  TEntryPanels& Entries() { return FEntries; }
  TFormWindows& Forms() { return FForms; }

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  TMenuDeeds Deeds();
  void ConnectDesk();
  void ConnectPanels();
  void PlacePanels();
  void ShowFirstWorkspace();
  void Show(const TWorkspace& workspace);
  TWorkspace Current() const;
  void Tell(const QString& text);
  void OpenSettings();
  void TellAbout();
  void Carry(TOrderCommand command, const host::TCustomClientOrder& order);
  void Retranslate();
  void ShowSkin();

  TDesk& FDesk;
  QLabel& FPaperNote;
  TMessageBoxes FBoxes;
  TFormWindows FForms;
  TMarketWatch& FWatch;
  TOrderBlotter& FOrders;
  TMessageLog& FMessages;
  TEntryPanels FEntries;
  TMainMenu FMenu;
  QPointer<TSettingsPage> FSettings;
  bool FCloseWanted = false;   ///< as soon as no modal form shows
  bool FCloseUnsaved = false;  ///< the trader was told that the workspace cannot be kept
};

}  // namespace algo::terminal
