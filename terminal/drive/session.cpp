#include "terminal/drive/session.h"

#include <utility>

#include "terminal/drive/call_module.h"
#include "terminal/drive/command_table.h"

namespace algo::terminal::drive {

namespace {

/// The scripts for the dialogs of a command. Throws ECommandError if they are not a list of lists.
std::vector<const TCommandJson*> DialogScripts(const TCommandJson& command) {
  std::vector<const TCommandJson*> scripts;
  const auto modal = command.find("modal");
  if (modal == command.end()) return scripts;
  if (!modal->is_array()) throw ECommandError("'modal' must be a list of lists of commands");
  for (const auto& script : *modal) {
    if (!script.is_array()) throw ECommandError("'modal' must be a list of lists of commands");
    scripts.push_back(&script);
  }
  return scripts;
}

}  // namespace

TSession::TSession(std::string moduleFile, TInputPlayer& input)
    : FModuleFile(std::move(moduleFile)),
      FInput(input),
      FDialogs(FLabels, FRunning, input, [this](const TCommandJson& command) { return Execute(command); }),
      FLog(FLabels, FRunning, FDialogs),
      FHost(FLog),
      FToolkit(FHost.Data()) {
  // The module could catch a mere exception and go on, so the violation is recorded outside its reach.
  FStrict.OnViolation([this](const std::string& what) {
    auto& violation = FRunning.Current().violation;
    if (violation.empty()) violation = what;
    throw EError("contract violated: " + what);
  });
}

TSession::~TSession() {
  try {
    if (FModule) Unload();
  } catch (...) {  // NOLINT(bugprone-empty-catch):the script has ended, no answer is left to report it in
  }
}

TAnswerJson TSession::Execute(const TCommandJson& command) {
  TAnswerJson answer{{"ok", true}};
  if (command.is_object() && command.contains("id")) answer["id"] = command["id"];
  TRunningCommand running;
  const TCommandStack::TPush push(FRunning, running);
  try {
    if (!command.is_object()) throw ECommandError("a command must be a JSON object");
    running.dialogScripts = DialogScripts(command);
    const TArguments arguments(command);
    const TCommand& found = FindCommand(arguments.Text("do"));
    TAnswerJson result = TAnswerJson::object();
    found.handler(*this, arguments, result);
    FInput.Settle();
    answer.update(result);
  } catch (const std::exception& error) {
    answer["ok"] = false;
    answer["error"] = error.what();
  }
  if (!running.violation.empty()) {
    answer["ok"] = false;
    answer["error"] = "contract violated: " + running.violation;
  }
  if (!running.dialogs.empty()) answer["modal"] = std::move(running.dialogs);
  if (!running.events.empty()) answer["events"] = std::move(running.events);
  FLabels.RemoveExpired();
  return answer;
}

void TSession::Load() {
  if (FModule) throw ECommandError("a module is loaded already");
  const std::string setting = FHost.Data().Setting(FHost.Data().section, "ChangeOrderShowModel");
  FChangesAreModal = !setting.starts_with('n') && !setting.starts_with('N');
  FModule.emplace(FModuleFile, this);
  FModule->Watch([this](auto provider) { return FStrict.Watch(std::move(provider)); });
}

host::checks::TLeftBehind TSession::Unload() {
  if (!FModule) throw ECommandError("no module is loaded");
  if (FDialogs.Innermost() != nullptr) throw ECommandError("a modal dialog is showing");
  CallModule([this] { FModule->DestroyProvider(); });
  const auto left = FStrict.LeftBehind();
  // The module's code has to outlive whatever the host still holds of it; even a weak pointer to a frame that
  // is gone refers to that code.
  FLabels.RemoveExpired();
  if (left != host::checks::TLeftBehind{} || !FLabels.Empty()) FModule->KeepLoaded();
  FModule.reset();
  return left;
}

const TLoadedModule& TSession::Module() const {
  if (!FModule) throw ECommandError("no module is loaded");
  return *FModule;
}

}  // namespace algo::terminal::drive
