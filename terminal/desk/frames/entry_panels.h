#pragma once

// The entry views that are open in the main window.

#include <QFont>
#include <QMainWindow>
#include <QMenu>
#include <QObject>
#include <cstdint>
#include <string>
#include <vector>

#include "terminal/desk/frames/active_view.h"
#include "terminal/desk/frames/entry_panel.h"
#include "terminal/desk/frames/stored_entry.h"
#include "terminal/desk/frames/view_place.h"
#include "terminal/desk/frames/view_shortcuts.h"
#include "terminal/desk/session/desk.h"

namespace algo::terminal::desk::frames {

class TEntryPanels final : public QObject {
  Q_OBJECT
 public:
  /// Both outlive the object.
  TEntryPanels(TDesk& desk, QMainWindow& window);
  ~TEntryPanels() override;

  /// Opens another view, beside those that are open; nullptr, with the trader told why, when that fails.
  TEntryPanel* Open();

  /// Opens a view as it was stored. A part of it that cannot be restored stays as in a new view.
  TEntryPanel* Restore(const TStoredEntry& stored);

  /// Has the panels that do not dock float, wherever the state of the window has put them.
  void KeepPlaces();

  /// Opens as a dialog the view that opens by itself once the main window shows, if it is such a view.
  void OpenAtStart();

  /// The open views, to be stored.
  std::vector<TStoredEntry> StoredEntries() const;

  /// Puts the trader into the first field of the first view; with no effect when none is open.
  void FocusFirst();

  void CloseAll();

  void Retranslate();
  void ShowSkin();
  /// Tells the views when the font of the application is another one than before.
  void ShowFont();

 signals:
  void PriceDropped(const std::string& symbol, double price);

 private:
  TEntryPanel* Make(const QString& name, const TViewPlace& place);
  void Connect(TEntryPanel& panel);
  void Place(TEntryPanel& panel, const TViewPlace& place);
  void Execute(TEntryPanel& panel, std::int32_t shortcut);
  void FillMenu(QMenu& menu, TEntryPanel& panel);
  void ShowCaptions();
  QString FreeName(const QString& kind) const;

  TDesk& FDesk;
  QMainWindow& FWindow;
  QFont FFont;
  TActiveView FActive;
  TViewShortcuts FShortcuts;
  std::vector<TEntryPanel*> FPanels;
};

}  // namespace algo::terminal::desk::frames
