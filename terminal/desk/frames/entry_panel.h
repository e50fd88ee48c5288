#pragma once

// A panel with one view of the module. Lines of the market watch can be dropped on it.

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMainWindow>
#include <memory>
#include <string>

#include "terminal/desk/frames/frame_pane.h"
#include "terminal/desk/panels/panel.h"
#include "terminal/desk/session/desk.h"

namespace algo::terminal::desk::frames {

class TEntryPanel final : public panels::TPanel {
  Q_OBJECT
 public:
  /// Shows an open view of the module, and closes the view when it is closed itself. The desk outlives the
  /// panel.
  TEntryPanel(const QString& name, TDesk& desk, host::TInstanceHandle instance);
  ~TEntryPanel() override;

  host::TInstanceHandle Instance() const { return FInstance; }
  render::TFrameView& View() { return FPane.View(); }

  /// Shows the caption that the provider gives its views, with the number of the panel unless it is the
  /// first.
  void ShowCaption(int number);

  /// Takes the size that the frame wants: a floating panel all of it, a docked one the width.
  void Fit();

  /// Puts the trader into the first field of the view that takes input.
  void FocusFirst() { FPane.View().FocusFirst(); }

 signals:
  /// The trader dropped a line of the market watch.
  void PriceDropped(const std::string& symbol, double price);

 protected:
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void FitDocked(QMainWindow& window);

  TDesk& FDesk;
  const host::TInstanceHandle FInstance;
  TFramePane& FPane;
};

}  // namespace algo::terminal::desk::frames
