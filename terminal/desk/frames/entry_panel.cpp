#include "terminal/desk/frames/entry_panel.h"

#include <algorithm>

#include "terminal/desk/panels/price_drag.h"
#include "terminal/render/qt_text.h"

namespace algo::terminal::desk::frames {

TEntryPanel::TEntryPanel(const QString& name, TDesk& desk, host::TInstanceHandle instance)
    : panels::TPanel(name, true),
      FDesk(desk),
      FInstance(instance),
      FPane(*new TFramePane(desk.Provider().FindView(instance), desk.EditorAssist())) {
  setAttribute(Qt::WA_DeleteOnClose);
  setAcceptDrops(true);
  setWidget(&FPane);
  connect(&FPane, &TFramePane::LaidOut, this, [this] {
    if (FPane.width() < FPane.sizeHint().width()) Fit();
  });
}

TEntryPanel::~TEntryPanel() {
  // The widgets go first, so that none of them asks a frame that is going away.
  delete &FPane;
  FDesk.CloseView(FInstance);
}

void TEntryPanel::ShowCaption(int number) {
  std::string caption;
  FDesk.Provider().GetDefaultCaption(caption);
  if (number > 1) caption += ' ' + std::to_string(number);
  SetCaption(render::ToQt(caption));
  FPane.setAccessibleName(windowTitle());
}

void TEntryPanel::Fit() {
  FPane.updateGeometry();
  if (isFloating()) {
    // The form is surrounded by the title bar and the frame of the window, whatever their sizes.
    resize(size() + FPane.sizeHint() - FPane.size());
  } else if (auto* window = qobject_cast<QMainWindow*>(parentWidget())) {
    FitDocked(*window);
  }
}

void TEntryPanel::FitDocked(QMainWindow& window) {
  const int width = FPane.sizeHint().width();
  QList<QDockWidget*> docks{this};
  QList<int> widths{width};
  // The window distributes its room by what the panels ask for, so the other side has to ask for the rest.
  for (auto* other : window.findChildren<QDockWidget*>()) {
    if (other->isFloating() || window.dockWidgetArea(other) == window.dockWidgetArea(this)) continue;
    docks.append(other);
    widths.append(std::max(1, window.width() - width));
  }
  window.resizeDocks(docks, widths, Qt::Horizontal);
}

void TEntryPanel::dragEnterEvent(QDragEnterEvent* event) {
  if (panels::ReadPriceData(*event->mimeData())) event->acceptProposedAction();
}

void TEntryPanel::dropEvent(QDropEvent* event) {
  const auto dragged = panels::ReadPriceData(*event->mimeData());
  if (!dragged) return;
  event->acceptProposedAction();
  emit PriceDropped(dragged->symbol, dragged->price);
}

}  // namespace algo::terminal::desk::frames
