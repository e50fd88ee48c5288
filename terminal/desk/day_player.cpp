#include "terminal/desk/day_player.h"

#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <algorithm>
#include <fstream>
#include <iostream>
#include <utility>

#include "terminal/drive/driver.h"
#include "terminal/drive/host_merge.h"
#include "terminal/render/qt_text.h"
#include "text/text.h"

namespace algo::terminal {

namespace {

/// A screen that nobody looks at says so at each window; nobody needs to hear it.
void TellButForTheScreen(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (message.startsWith(QLatin1String("This plugin does not support"))) return;
  std::cerr << FromQt(qFormatLogMessage(type, context, message)) << std::endl;
}

}  // namespace

TDayPlayer::TOpen::TOpen(const TDeskOptions& options, TDayPlayer& player)
    : desk(options),
      dialogs(QObject::connect(&desk.Events(), &TDeskEvents::ModalFormCame, &desk,
                               [&player](forms::TDialogForm& form) { player.PlayDialog(form); })),
      window(desk) {
  constexpr QSize Room(1280, 800);
  window.RestoreWorkspace(options);
  window.resize(Room);
  window.show();
  (void)QTest::qWaitForWindowActive(&window);
}

TDayPlayer::TDayPlayer(TDeskOptions options, std::ostream& account)
    : FOptions(std::move(options)), FAccount(account), FScreens(ToQt(FOptions.screensFolder)) {
  qInstallMessageHandler(TellButForTheScreen);
  FOptions.prepare = [this](THostData& data) {
    if (FLeft) data = *FLeft;
    for (const TCommandJson& changes : FHostChanges) MergeHostData(changes, data);
  };
}

TDayPlayer::~TDayPlayer() = default;

void TDayPlayer::Play(const std::string& file) {
  std::ifstream script(file);
  if (!script) throw EError("'" + file + "' cannot be read");
  std::string line;
  for (int number = 1; std::getline(script, line); ++number) {
    if (text::Trim(line).empty()) continue;
    try {
      Execute(ParseCommand(line));
      if (!FFailure.empty()) throw EError(std::exchange(FFailure, {}));
    } catch (const std::exception& error) {
      throw EError(file + ":" + std::to_string(number) + ": " + error.what());
    }
  }
  EndStep();
}

struct TDayPlayer::TDeed {
  std::string_view name;
  THandler handler;
};

const TDayPlayer::TDeed TDayPlayer::Deeds[] = {
    {"host", &TDayPlayer::ChangeHost},    {"load", &TDayPlayer::Load},
    {"unload", &TDayPlayer::Unload},      {"open", &TDayPlayer::OpenView},
    {"close", &TDayPlayer::CloseView},    {"language", &TDayPlayer::ChangeLanguage},
    {"layout", &TDayPlayer::ApplyLayout}, {"market", &TDayPlayer::MoveMarket},
    {"post", &TDayPlayer::Post},          {"set", &TDayPlayer::SetValue},
    {"type", &TDayPlayer::Type},          {"leave", &TDayPlayer::Leave},
    {"enter", &TDayPlayer::Enter},        {"click", &TDayPlayer::Click},
    {"pick", &TDayPlayer::Pick},          {"read", &TDayPlayer::Look},
    {"available", &TDayPlayer::Look},     {"orders", &TDayPlayer::Look},
};

void TDayPlayer::Execute(const TCommandJson& command) {
  const TArguments arguments(command);
  if (const TCommandJson* step = arguments.Find("id")) {
    EndStep();
    FStep = AsText("id", *step);
    FAccount << FStep << std::endl;
  }
  // What is left over of an outer command's dialogs is for those, not for the ones that this command opens.
  auto outer = std::exchange(FDialogScripts, {});
  if (const TCommandJson* modal = arguments.Find("modal"))
    FDialogScripts.assign(modal->begin(), modal->end());
  const auto& name = arguments.Text("do");
  const auto* deed = std::find_if(std::begin(Deeds), std::end(Deeds),
                                  [&name](const TDeed& one) { return one.name == name; });
  if (deed == std::end(Deeds)) throw ECommandError("the desk plays no '" + name + "'");
  (this->*deed->handler)(arguments);
  FDialogScripts = std::move(outer);
  if (!FOpen) return;
  CloseMessages();
  FOpen->trader.Settle();
}

void TDayPlayer::PlayDialog(forms::TDialogForm& form) {
  FModal.emplace_back(form.Frame());
  TCommandJson script = TCommandJson::array();
  if (!FDialogScripts.empty()) {
    script = std::move(FDialogScripts.front());
    FDialogScripts.pop_front();
  }
  // When the dialog is in sight: what comes from here is what the trader does in it.
  QTimer::singleShot(0, &FOpen->window, [this, &form, script = std::move(script)] {
    try {
      for (std::size_t i = 0; i < script.size(); ++i) {
        if (i + 1 == script.size()) FScreens.Take(FOpen->window, ToQt(FStep + " dialog"));
        Execute(script[i]);
      }
    } catch (const std::exception& error) {
      FFailure = error.what();
    }
    if (form.ModalResult() == forms::ModalNone) form.SetModalResult(forms::ModalCancel);
    FModal.pop_back();
  });
}

void TDayPlayer::CloseMessages() {
  QApplication::processEvents();
  while (auto* box = FOpen->window.findChild<QMessageBox*>()) {
    FScreens.Take(FOpen->window, ToQt(FStep + " message"));
    QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
    QApplication::sendPostedEvents(box, QEvent::DeferredDelete);
    QApplication::processEvents();
  }
}

void TDayPlayer::EndStep() {
  if (FOpen && !FStep.empty()) FScreens.Take(FOpen->window, ToQt(FStep));
}

TDayPlayer::TOpen& TDayPlayer::Open() {
  if (!FOpen) throw ECommandError("the desk is not open");
  return *FOpen;
}

}  // namespace algo::terminal
