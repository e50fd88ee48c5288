#include "terminal/desk/window/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMessageBox>
#include <QStatusBar>
#include <utility>

#include "terminal/desk/session/link_posts.h"
#include "terminal/render/qt_text.h"

namespace algo::terminal::desk::window {

TMainWindow::TMainWindow(TDesk& desk)
    : FDesk(desk),
      FPaperNote(*new QLabel),
      FBoxes(*this, desk.Texts()),
      FForms(desk.Events(), desk.EditorAssist(), *this),
      FWatch(*new market::TMarketWatch(desk)),
      FOrders(*new orders::TOrderBlotter(desk.Host(), desk.Texts())),
      FMessages(*new TMessageLog(desk.Texts())),
      FEntries(desk, *this),
      FMenu(*menuBar(), desk, MenuActions(),
            {FWatch.toggleViewAction(), FOrders.toggleViewAction(), FMessages.toggleViewAction()}) {
  setObjectName("mainWindow");
  menuBar()->setObjectName("menuBar");
  statusBar()->setObjectName("statusBar");
  // Not a message, which the hint of a menu would replace.
  FPaperNote.setObjectName("paperNote");
  statusBar()->addWidget(&FPaperNote);
  setDockNestingEnabled(true);
  setDockOptions(dockOptions() | QMainWindow::GroupedDragging);
  PlacePanels();
  ConnectDesk();
  ConnectPanels();
  Retranslate();
  ShowSkin();
}

TMenuActions TMainWindow::MenuActions() {
  const auto guarded = [this](auto action) { return [this, action] { FDesk.Events().Guard(action); }; };
  return {.openEntry = guarded([this] { FEntries.Open(); }),
          .saveWorkspace = guarded([this] { SaveWorkspace(); }),
          .openSettings = guarded([this] { OpenSettings(); }),
          .exit = guarded([this] { close(); }),
          .about = guarded([this] { ShowAbout(); }),
          .setLanguage =
              [this](appearance::TLanguage language) {
                FDesk.Events().Guard([&] { FDesk.SetLanguage(language); });
              },
          .setSkin =
              [this](const appearance::TSkin& skin) { FDesk.Events().Guard([&] { FDesk.SetSkin(skin); }); }};
}

void TMainWindow::ConnectDesk() {
  const TDeskEvents& events = FDesk.Events();
  connect(&events, &TDeskEvents::MessageShown, this, &TMainWindow::ShowMessage);
  connect(&events, &TDeskEvents::ErrorCodeShown, this, [this](const QString& code) {
    ShowMessage(render::ToQt(FDesk.Texts().ErrorText(render::FromQt(code))));
  });
  connect(&FDesk, &TDesk::LanguageChanged, this, &TMainWindow::Retranslate);
  connect(&FDesk, &TDesk::SkinChanged, this, &TMainWindow::ShowSkin);
  // Whoever waited for the forms has yet to go on; the window closes after that.
  connect(
      &FForms, &frames::TFormWindows::ModalFormsClosed, this,
      [this] {
        if (FCloseRequested) close();
      },
      Qt::QueuedConnection);
}

void TMainWindow::ConnectPanels() {
  const auto postPrice = [this](const std::string& symbol, double price) {
    FDesk.Events().Guard([&] {
      PostPrice(FDesk.Host(), {view_id::MarketWatch, FWatch.Title().Group()}, symbol, price);
    });
  };
  connect(&FWatch, &market::TMarketWatch::PricePicked, this, postPrice);
  connect(&FEntries, &frames::TEntryPanels::PriceDropped, this, postPrice);
  connect(&FOrders, &orders::TOrderBlotter::CommandChosen, this,
          [this](orders::TOrderCommand command, const host::TCustomClientOrder& order) {
            FDesk.Events().Guard([&] { Execute(command, order); });
          });
}

void TMainWindow::ShowMessage(const QString& text) {
  FMessages.Add(text);
  FBoxes.Show(text);
}

void TMainWindow::OpenSettings() {
  if (FSettings) return FSettings->raise();
  FSettings = new settings::TSettingsPage(FDesk.Host(), FDesk.Texts(), this);
  FSettings->setAttribute(Qt::WA_DeleteOnClose);
  FSettings->open();
}

void TMainWindow::ShowAbout() {
  auto* about =
      new QMessageBox(QMessageBox::Information, FDesk.Texts().Desk("About"),
                      "Algo Order Entry\n\n" + FDesk.Texts().Desk("Paper trading"), QMessageBox::Ok, this);
  about->setObjectName("aboutBox");
  about->setAccessibleName(about->windowTitle());
  about->setAttribute(Qt::WA_DeleteOnClose);
  about->open();
}

void TMainWindow::Execute(orders::TOrderCommand command, const host::TCustomClientOrder& order) {
  const TLinkSource source{view_id::OrderBlotter, FOrders.Title().Group()};
  switch (command) {
    case orders::TOrderCommand::Change:
      return PostOrderAction(FDesk.Host(), source, order, host::TOrderAction::Change);
    case orders::TOrderCommand::Work:
      return PostOrderAction(FDesk.Host(), source, order, host::TOrderAction::Work);
    case orders::TOrderCommand::Copy:
      return PostOrder(FDesk.Host(), source, order);
    case orders::TOrderCommand::Cancel:
      return FDesk.Cancel(order);
  }
}

void TMainWindow::Retranslate() {
  const appearance::TTexts& texts = FDesk.Texts();
  setWindowTitle("Algo Desk");
  setAccessibleName(windowTitle());
  // Shown all the time, since it must never be mistaken.
  FPaperNote.setText(texts.Desk("Paper trading"));
  FWatch.Retranslate();
  FOrders.Retranslate();
  FMessages.Retranslate();
  FEntries.Retranslate();
  if (FSettings) FSettings->SetTexts(texts);
  FMenu.Rebuild();
}

void TMainWindow::ShowSkin() {
  FWatch.Title().ShowSkin(FDesk.Skin());
  FOrders.Title().ShowSkin(FDesk.Skin());
  FEntries.ShowSkin();
  FMenu.Rebuild();
}

void TMainWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (std::exchange(FWasShown, true)) return;
  // Queued, so that what opens by itself comes in front of a window that shows already.
  const auto openViews = [this] {
    if (isVisible()) FDesk.Events().Guard([this] { FEntries.OpenAtStart(); });
  };
  QMetaObject::invokeMethod(this, openViews, Qt::QueuedConnection);
}

void TMainWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::FontChange) FDesk.Events().Guard([this] { FEntries.ShowFont(); });
}

void TMainWindow::closeEvent(QCloseEvent* event) {
  if (FForms.AnyModal()) {
    FCloseRequested = true;
    FForms.CancelModal();
    return event->ignore();
  }
  FCloseRequested = false;
  if (!SaveWorkspace() && !FCloseUnsaved) {
    FCloseUnsaved = true;
    return event->ignore();
  }
  FBoxes.CloseAll();
  FDesk.Events().Guard([this] {
    FForms.CloseOthers();
    FEntries.CloseAll();
  });
  event->accept();
}

}  // namespace algo::terminal::desk::window
