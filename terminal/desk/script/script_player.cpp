#include "terminal/desk/script/script_player.h"

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

namespace algo::terminal::desk::script {

namespace {

/// A screen that is not there warns at each window of what it cannot do; nobody needs to read that.
void PrintOtherThanScreenWarnings(QtMsgType type, const QMessageLogContext& context, const QString& message) {
  if (message.startsWith(QLatin1String("This plugin does not support"))) return;
  std::cerr << render::FromQt(qFormatLogMessage(type, context, message)) << std::endl;
}

}  // namespace

TScriptPlayer::TOpenDesk::TOpenDesk(const TDeskOptions& options, TScriptPlayer& player)
    : desk(options),
      dialogs(QObject::connect(&desk.Events(), &TDeskEvents::ModalFormShown, &desk,
                               [&player](forms::TDialogForm& form) { player.PlayDialog(form); })),
      window(desk) {
  constexpr QSize WindowSize(1280, 800);
  window.RestoreWorkspace(options);
  window.resize(WindowSize);
  window.show();
  (void)QTest::qWaitForWindowActive(&window);
}

TScriptPlayer::TScriptPlayer(TDeskOptions options, const std::string& screensFolder, std::ostream& log)
    : FOptions(std::move(options)), FLog(log), FScreens(render::ToQt(screensFolder)) {
  qInstallMessageHandler(PrintOtherThanScreenWarnings);
  FOptions.prepare = [this](THostData& data) {
    if (FLastData) data = *FLastData;
    for (const drive::TCommandJson& changes : FHostChanges) drive::MergeHostData(changes, data);
  };
}

TScriptPlayer::~TScriptPlayer() = default;

void TScriptPlayer::Play(const std::string& file) {
  std::ifstream script(file);
  if (!script) throw EError("'" + file + "' cannot be read");
  std::string line;
  for (int number = 1; std::getline(script, line); ++number) {
    if (text::Trim(line).empty()) continue;
    try {
      Execute(drive::ParseCommand(line));
      if (!FFailure.empty()) throw EError(std::exchange(FFailure, {}));
    } catch (const std::exception& error) {
      throw EError(file + ":" + std::to_string(number) + ": " + error.what());
    }
  }
  TakeStepPicture();
}

struct TScriptPlayer::TCommand {
  std::string_view name;
  THandler handler;
};

const TScriptPlayer::TCommand TScriptPlayer::Commands[] = {
    {"host", &TScriptPlayer::ChangeHost},    {"load", &TScriptPlayer::Load},
    {"unload", &TScriptPlayer::Unload},      {"open", &TScriptPlayer::OpenView},
    {"close", &TScriptPlayer::CloseView},    {"language", &TScriptPlayer::ChangeLanguage},
    {"layout", &TScriptPlayer::ApplyLayout}, {"market", &TScriptPlayer::MoveMarket},
    {"post", &TScriptPlayer::Post},          {"set", &TScriptPlayer::SetValue},
    {"type", &TScriptPlayer::Type},          {"leave", &TScriptPlayer::Leave},
    {"enter", &TScriptPlayer::Enter},        {"click", &TScriptPlayer::Click},
    {"pick", &TScriptPlayer::Pick},          {"read", &TScriptPlayer::Look},
    {"available", &TScriptPlayer::Look},     {"orders", &TScriptPlayer::Look},
};

void TScriptPlayer::Execute(const drive::TCommandJson& command) {
  const drive::TArguments arguments(command);
  if (const drive::TCommandJson* step = arguments.Find("id")) {
    TakeStepPicture();
    FStep = drive::AsText("id", *step);
    FLog << FStep << std::endl;
  }
  // The dialogs that an outer command has yet to open have their own scripts.
  auto outer = std::exchange(FDialogScripts, {});
  if (const drive::TCommandJson* modal = arguments.Find("modal"))
    FDialogScripts.assign(modal->begin(), modal->end());
  const auto& name = arguments.Text("do");
  const auto* handled = std::find_if(std::begin(Commands), std::end(Commands),
                                     [&name](const TCommand& row) { return row.name == name; });
  if (handled == std::end(Commands)) throw drive::ECommandError("the desk plays no '" + name + "'");
  (this->*handled->handler)(arguments);
  FDialogScripts = std::move(outer);
  if (!FOpen) return;
  CloseMessages();
  FOpen->trader.Settle();
}

void TScriptPlayer::PlayDialog(forms::TDialogForm& form) {
  FModal.emplace_back(form.Frame());
  drive::TCommandJson script = drive::TCommandJson::array();
  if (!FDialogScripts.empty()) {
    script = std::move(FDialogScripts.front());
    FDialogScripts.pop_front();
  }
  // Played once the dialog shows, as the trader would.
  QTimer::singleShot(0, &FOpen->window, [this, &form, script = std::move(script)] {
    try {
      for (std::size_t i = 0; i < script.size(); ++i) {
        if (i + 1 == script.size()) FScreens.Take(FOpen->window, render::ToQt(FStep + " dialog"));
        Execute(script[i]);
      }
    } catch (const std::exception& error) {
      FFailure = error.what();
    }
    if (form.ModalResult() == forms::ModalNone) form.SetModalResult(forms::ModalCancel);
    FModal.pop_back();
  });
}

void TScriptPlayer::CloseMessages() {
  QApplication::processEvents();
  while (auto* box = FOpen->window.findChild<QMessageBox*>()) {
    FScreens.Take(FOpen->window, render::ToQt(FStep + " message"));
    QTest::mouseClick(box->button(QMessageBox::Ok), Qt::LeftButton);
    QApplication::sendPostedEvents(box, QEvent::DeferredDelete);
    QApplication::processEvents();
  }
}

void TScriptPlayer::TakeStepPicture() {
  if (FOpen && !FStep.empty()) FScreens.Take(FOpen->window, render::ToQt(FStep));
}

TScriptPlayer::TOpenDesk& TScriptPlayer::Open() {
  if (!FOpen) throw drive::ECommandError("the desk is not open");
  return *FOpen;
}

}  // namespace algo::terminal::desk::script
