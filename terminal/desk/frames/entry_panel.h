#pragma once

// A panel with one view of the module. Lines of the market watch can be dropped on it.

#include <QContextMenuEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMainWindow>
#include <QMenu>
#include <memory>
#include <string>
#include <vector>

#include "plugin/host_contract/view_parts.h"
#include "terminal/desk/frames/frame_pane.h"
#include "terminal/desk/frames/view_place.h"
#include "terminal/desk/panels/panel.h"
#include "terminal/desk/session/desk.h"

namespace algo::terminal::desk::frames {

class TEntryPanel final : public panels::TPanel {
  Q_OBJECT
 public:
  /// Shows an open view of the module, and closes the view when it is closed itself. The desk outlives the
  /// panel. `place` as far as the panel itself sees to it.
  TEntryPanel(const QString& name, TDesk& desk, host::TInstanceHandle instance, const TViewPlace& place);
  ~TEntryPanel() override;

  host::TInstanceHandle Instance() const { return FInstance; }
  /// False from Closing on.
  bool IsOpen() const { return FOpen; }
  render::TFrameView& View() { return FPane.View(); }

  /// Shows what the view has for its title bar: caption, icon and buttons. A view without a caption has the
  /// one that the provider gives its views, with the number of the panel unless it is the first.
  void ShowTitle(int number);
  /// The same under the number of the last time, since the view may have something else for it now.
  void ShowTitle() { ShowTitle(FNumber); }

  /// Takes the size that the frame wants: a floating panel all of it, a docked one the width, or the height
  /// at the top and the bottom of the window.
  void Fit();
  /// Takes the size that the provider has for new views, if it has one.
  void FitNew();

  /// Whether the panel docks at all.
  bool Docks() const { return FPlace.docks; }
  /// Lets a panel that does not dock float, wherever a workspace has put it.
  void KeepPlace();

  /// Gives the view data that it has agreed on with somebody; stored with the panel, whether the view knows
  /// it or not.
  void SetCustomData(const std::string& custom);
  const std::string& CustomData() const { return FCustomData; }

  /// Whether the panel is part of a workspace. One that opens by itself at each start is not.
  bool Stored() const { return FStored; }
  void SetStored(bool stored) { FStored = stored; }

  /// Puts the trader into the first field of the view that takes input.
  void FocusFirst() { FPane.View().FocusFirst(); }

 signals:
  /// The trader dropped a line of the market watch.
  void PriceDropped(const std::string& symbol, double price);
  /// The trader asked for the menu of the panel: whoever has entries for it adds them. Without any, it is
  /// the window's own.
  void MenuOpening(QMenu& menu);
  /// The view is going to be closed.
  void Closing();

 protected:
  void contextMenuEvent(QContextMenuEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void FitTo(const QSize& size);
  void FitDocked(QMainWindow& window, const QSize& size);
  void FitFloating();
  void ShowParts();

  TDesk& FDesk;
  const host::TInstanceHandle FInstance;
  const TViewPlace FPlace;
  TFramePane& FPane;
  int FNumber = 1;
  bool FShowingTitle = false;
  bool FOpen = true;
  bool FStored = true;
  std::string FCustomData;
  host::TImage FIcon;
  std::vector<host::TCaptionButton> FButtons;
  std::vector<host::TImage> FButtonImages;
};

}  // namespace algo::terminal::desk::frames
