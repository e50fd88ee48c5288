#include "terminal/desk/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QMessageBox>
#include <QStatusBar>

#include "terminal/desk/link_posts.h"
#include "terminal/desk/views.h"
#include "terminal/render/qt_text.h"

namespace algo::terminal {

TMainWindow::TMainWindow(TDesk& desk)
    : FDesk(desk),
      FPaperNote(*new QLabel),
      FBoxes(*this, desk.Texts()),
      FForms(desk.Events(), desk.Aids(), *this),
      FWatch(*new TMarketWatch(desk)),
      FOrders(*new TOrderBlotter(desk.Host(), desk.Texts())),
      FMessages(*new TMessageLog(desk.Texts())),
      FEntries(desk, *this),
      FMenu(*menuBar(), desk, Deeds(),
            {FWatch.toggleViewAction(), FOrders.toggleViewAction(), FMessages.toggleViewAction()}) {
  setObjectName("mainWindow");
  menuBar()->setObjectName("menuBar");
  statusBar()->setObjectName("statusBar");
  // Not a message, which the hint of a menu would take away.
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

TMenuDeeds TMainWindow::Deeds() {
  const auto guarded = [this](auto deed) { return [this, deed] { FDesk.Events().Guard(deed); }; };
  return {.openEntry = guarded([this] { FEntries.Open(); }),
          .saveWorkspace = guarded([this] { SaveWorkspace(); }),
          .openSettings = guarded([this] { OpenSettings(); }),
          .exit = guarded([this] { close(); }),
          .about = guarded([this] { TellAbout(); }),
          .setLanguage =
              [this](TLanguage language) { FDesk.Events().Guard([&] { FDesk.SetLanguage(language); }); },
          .setSkin = [this](const TSkin& skin) { FDesk.Events().Guard([&] { FDesk.SetSkin(skin); }); }};
}

void TMainWindow::ConnectDesk() {
  const TDeskEvents& events = FDesk.Events();
  connect(&events, &TDeskEvents::MessageTold, this, &TMainWindow::Tell);
  connect(&events, &TDeskEvents::ErrorCodeTold, this,
          [this](const QString& code) { Tell(ToQt(FDesk.Texts().ErrorText(FromQt(code)))); });
  connect(&FDesk, &TDesk::LanguageChanged, this, &TMainWindow::Retranslate);
  connect(&FDesk, &TDesk::SkinChanged, this, &TMainWindow::ShowSkin);
  // Whoever waited for the forms has yet to go on, so the window closes after him.
  connect(
      &FForms, &TFormWindows::ModalFormsGone, this,
      [this] {
        if (FCloseWanted) close();
      },
      Qt::QueuedConnection);
}

void TMainWindow::ConnectPanels() {
  const auto pickPrice = [this](const std::string& symbol, double price) {
    FDesk.Events().Guard([&] {
      PickPrice(FDesk.Host(), {view_id::MarketWatch, FWatch.Title().Group()}, symbol, price);
    });
  };
  connect(&FWatch, &TMarketWatch::PricePicked, this, pickPrice);
  connect(&FEntries, &TEntryPanels::PriceDropped, this, pickPrice);
  connect(&FOrders, &TOrderBlotter::Commanded, this,
          [this](TOrderCommand command, const host::TCustomClientOrder& order) {
            FDesk.Events().Guard([&] { Carry(command, order); });
          });
}

void TMainWindow::Tell(const QString& text) {
  FMessages.Add(text);
  FBoxes.Show(text);
}

void TMainWindow::OpenSettings() {
  if (FSettings) return FSettings->raise();
  FSettings = new TSettingsPage(FDesk.Host(), FDesk.Texts(), this);
  FSettings->setAttribute(Qt::WA_DeleteOnClose);
  FSettings->open();
}

void TMainWindow::TellAbout() {
  auto* about =
      new QMessageBox(QMessageBox::Information, FDesk.Texts().Desk("About"),
                      "Algo Order Entry\n\n" + FDesk.Texts().Desk("Paper trading"), QMessageBox::Ok, this);
  about->setObjectName("aboutBox");
  about->setAccessibleName(about->windowTitle());
  about->setAttribute(Qt::WA_DeleteOnClose);
  about->open();
}

void TMainWindow::Carry(TOrderCommand command, const host::TCustomClientOrder& order) {
  const TLinkSource here{view_id::OrderBlotter, FOrders.Title().Group()};
  switch (command) {
    case TOrderCommand::Change:
      return AskForAction(FDesk.Host(), here, order, host::TOrderAction::Change);
    case TOrderCommand::Work:
      return AskForAction(FDesk.Host(), here, order, host::TOrderAction::Work);
    case TOrderCommand::Copy:
      return PickOrder(FDesk.Host(), here, order);
    case TOrderCommand::Cancel:
      return FDesk.Cancel(order);
  }
}

void TMainWindow::Retranslate() {
  const TTexts& texts = FDesk.Texts();
  setWindowTitle("Algo Desk");
  setAccessibleName(windowTitle());
  // What is shown all the time is what must never be mistaken.
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

void TMainWindow::closeEvent(QCloseEvent* event) {
  if (FForms.AnyModal()) {
    FCloseWanted = true;
    FForms.DismissModal();
    return event->ignore();
  }
  FCloseWanted = false;
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

}  // namespace algo::terminal
