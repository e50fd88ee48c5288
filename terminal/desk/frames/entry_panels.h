#pragma once

// The entry views that are open in the main window.

#include <QMainWindow>
#include <QObject>
#include <string>
#include <vector>

#include "terminal/desk/frames/entry_panel.h"
#include "terminal/desk/frames/stored_entry.h"
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

  /// The open views, to be stored.
  std::vector<TStoredEntry> StoredEntries() const;

  /// Puts the trader into the first field of the first view; with no effect when none is open.
  void FocusFirst();

  void CloseAll();

  void Retranslate();
  void ShowSkin();

 signals:
  void PriceDropped(const std::string& symbol, double price);

 private:
  TEntryPanel* Make(const QString& name);
  void ShowCaptions();
  QString FreeName() const;

  TDesk& FDesk;
  QMainWindow& FWindow;
  std::vector<TEntryPanel*> FPanels;
};

}  // namespace algo::terminal::desk::frames
