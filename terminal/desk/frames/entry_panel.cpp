#include "terminal/desk/frames/entry_panel.h"

#include <QScreen>
#include <algorithm>
#include <utility>

#include "terminal/desk/frames/view_picture.h"
#include "terminal/desk/panels/price_drag.h"
#include "terminal/render/qt_text.h"

namespace algo::terminal::desk::frames {

TEntryPanel::TEntryPanel(const QString& name, TDesk& desk, host::TInstanceHandle instance,
                         const TViewPlace& place)
    : panels::TPanel(name, true),
      FDesk(desk),
      FInstance(instance),
      FPlace(place),
      FPane(*new TFramePane(desk.Provider().FindView(instance), desk.EditorAssist())) {
  setAttribute(Qt::WA_DeleteOnClose);
  setAcceptDrops(true);
  setWidget(&FPane);
  if (!place.docks) {
    setAllowedAreas(Qt::NoDockWidgetArea);
    setFeatures(features() & ~DockWidgetFloatable);
    Title().SetFloatOffered(false);
  }
  connect(&FPane, &TFramePane::LaidOut, this, [this] {
    if (!FPlace.sizeable || FPane.width() < FPane.sizeHint().width()) Fit();
  });
  if (!place.sizeable) connect(this, &QDockWidget::topLevelChanged, this, &TEntryPanel::FitFloating);
  connect(&Title().ViewButtons(), &panels::TTitleButtons::Clicked, this, [this](std::int32_t button) {
    FDesk.Provider().HandleCaptionButtonClick(FInstance, button);
    ShowTitle();
  });
}

TEntryPanel::~TEntryPanel() {
  FOpen = false;
  // The view may still say something at that, to a panel that is whole.
  emit Closing();
  // The widgets go first, so that none of them asks a frame that is going away.
  delete &FPane;
  FDesk.CloseView(FInstance);
}

void TEntryPanel::ShowTitle(int number) {
  FNumber = number;
  // A view may say that it changed while it is asked what it shows.
  if (FShowingTitle) return;
  FShowingTitle = true;
  std::string caption = FDesk.Provider().GetViewCaption(FInstance);
  if (caption.empty()) {
    FDesk.Provider().GetDefaultCaption(caption);
    if (number > 1) caption += ' ' + std::to_string(number);
  }
  SetCaption(render::ToQt(caption));
  FPane.setAccessibleName(windowTitle());
  ShowParts();
  FShowingTitle = false;
}

void TEntryPanel::ShowParts() {
  host::TImage icon = FDesk.Provider().GetViewIcon(FInstance);
  if (icon != FIcon) {
    FIcon = std::move(icon);
    setWindowIcon(IconOf(FIcon));
    Title().SetIcon(windowIcon());
  }
  auto buttons = FDesk.Provider().GetViewCaptionButtons(FInstance);
  auto images = FDesk.Provider().GetViewCaptionButtonImageList(FInstance);
  // New buttons would take the focus from the one that was pressed.
  if (buttons == FButtons && images == FButtonImages) return;
  FButtons = std::move(buttons);
  FButtonImages = std::move(images);
  Title().ViewButtons().Show(TitleButtonsOf(FButtons, FButtonImages));
}

void TEntryPanel::SetCustomData(const std::string& custom) {
  FCustomData = custom;
  FDesk.Provider().SetCustomData(FInstance, custom);
}

void TEntryPanel::KeepPlace() {
  if (FPlace.docks) return;
  setFloating(true);
  show();
}

void TEntryPanel::Fit() { FitTo(FPane.sizeHint()); }

void TEntryPanel::FitNew() {
  const QSize hint = FPane.sizeHint();
  std::int32_t width = hint.width();
  std::int32_t height = hint.height();
  const bool given = FDesk.Provider().GetDefaultSize(width, height) && width > 0 && height > 0;
  FitTo(given ? QSize(width, height).boundedTo(screen()->availableSize()) : hint);
}

void TEntryPanel::FitTo(const QSize& size) {
  FPane.updateGeometry();
  if (isFloating() && !FPlace.sizeable) {
    FitFloating();
  } else if (isFloating()) {
    // The form is surrounded by the title bar and the frame of the window, whatever their sizes.
    resize(this->size() + size - FPane.size());
  } else if (auto* window = qobject_cast<QMainWindow*>(parentWidget())) {
    FitDocked(*window, size);
  }
}

void TEntryPanel::FitDocked(QMainWindow& window, const QSize& size) {
  const Qt::DockWidgetArea area = window.dockWidgetArea(this);
  if (area == Qt::TopDockWidgetArea || area == Qt::BottomDockWidgetArea) {
    return window.resizeDocks({this}, {size.height()}, Qt::Vertical);
  }
  QList<QDockWidget*> docks{this};
  QList<int> widths{size.width()};
  // The window distributes its room by what the panels ask for, so the other side has to ask for the rest.
  for (auto* other : window.findChildren<QDockWidget*>()) {
    if (other->isFloating() || window.dockWidgetArea(other) == area) continue;
    docks.append(other);
    widths.append(std::max(1, window.width() - size.width()));
  }
  window.resizeDocks(docks, widths, Qt::Horizontal);
}

void TEntryPanel::FitFloating() {
  // Docked, it takes part in the room of the window like any other.
  setMinimumSize(0, 0);
  setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  if (isFloating()) setFixedSize(sizeHint().boundedTo(screen()->availableSize()));
}

void TEntryPanel::contextMenuEvent(QContextMenuEvent* event) {
  auto* window = qobject_cast<QMainWindow*>(parentWidget());
  // Fields of the frame have menus of their own.
  if (window == nullptr || FPane.geometry().contains(event->pos())) return event->ignore();
  QMenu* menu = window->createPopupMenu();
  if (menu == nullptr) return event->ignore();
  const auto before = menu->actions().size();
  emit MenuOpening(*menu);
  if (menu->actions().size() == before) {
    delete menu;
    return event->ignore();
  }
  menu->setObjectName("panelMenu");
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->popup(event->globalPos());
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
