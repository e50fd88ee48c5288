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

/// Puts the watching of calls back, at the end of a command, to what it was at its beginning.
class TWatch {
 public:
  explicit TWatch(TEventLog& log) : FLog(log), FFormer(log.WatchesCalls()) {}
  ~TWatch() { FLog.WatchCalls(FFormer); }
  TWatch(const TWatch&) = delete;
  TWatch& operator=(const TWatch&) = delete;

 private:
  TEventLog& FLog;
  bool FFormer;
};

}  // namespace

TSession::TSession(std::string moduleFile, TInputPlayer& input)
    : FModuleFile(std::move(moduleFile)),
      FInput(input),
      FDialogs(FLabels, FRunning, input, [this](const TCommandJson& command) { return Execute(command); }),
      FInside(FRunning, [this](const TCommandJson& command) { return Execute(command); }),
      FLog(FLabels, FRunning, FDialogs, FInside),
      FHost(FLog),
      FToolkit(FHost.Data()),
      FReturns(FHost) {
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
  // What the layers of the host still give back to one another is not the module's doing.
  FHost.Data().faults.SetAll({});
}

TAnswerJson TSession::Execute(const TCommandJson& command) {
  TAnswerJson answer{{"ok", true}};
  if (command.is_object() && command.contains("id")) answer["id"] = command["id"];
  TRunningCommand running;
  const TCommandStack::TPush push(FRunning, running);
  const TWatch watch(FLog);
  try {
    if (!command.is_object()) throw ECommandError("a command must be a JSON object");
    running.dialogScripts = DialogScripts(command);
    running.insideEntries = InsideEntries(command);
    if (!running.insideEntries.empty()) FLog.WatchCalls(true);
    const TArguments arguments(command);
    const TCommand& found = FindCommand(arguments.Text("do"));
    TAnswerJson result = TAnswerJson::object();
    found.handler(*this, arguments, result);
    // In the middle of a call the screen need not have caught up.
    if (!FInside.Running()) FInput.Settle();
    answer.update(result);
  } catch (const std::exception& error) {
    answer["ok"] = false;
    answer["error"] = error.what();
  } catch (...) {
    answer["ok"] = false;
    answer["error"] = "something was thrown that has no text";
  }
  if (!running.violation.empty()) {
    answer["ok"] = false;
    answer["error"] = "contract violated: " + running.violation;
  }
  if (!running.dialogs.empty()) answer["modal"] = std::move(running.dialogs);
  if (!running.insideEntries.empty()) answer["inside"] = std::move(running.inside);
  if (!running.events.empty()) answer["events"] = std::move(running.events);
  FLabels.RemoveExpired();
  return answer;
}

void TSession::Load() {
  RequireNotInside();
  if (FModule) throw ECommandError("a module is loaded already");
  const std::string setting = FHost.Data().Setting(FHost.Data().section, "ChangeOrderShowModel");
  FChangesAreModal = !setting.starts_with('n') && !setting.starts_with('N');
  FDialogs.Restart();
  FModule.emplace(FModuleFile, this);
  FModule->Watch([this](auto provider) { return FStrict.Watch(std::move(provider)); });
}

void TSession::DropProvider() {
  host::TIBaseView& provider = Provider();
  for (const auto& [label, frame] : FLabels.Opened()) {
    if (auto view = provider.ReleaseView(host::HandleOf(*frame))) FLeftViews.push_back(std::move(view));
  }
  FDialogs.End();
  CallModule([this] { FModule->DestroyProvider(); });
  // Those that could not be closed.
  FHost.ReleaseForms();
  FLabels.ForgetReserved();
}

void TSession::CloseView(const std::shared_ptr<host::TViewFrame>& frame) {
  if (Module().HasProvider()) {
    CallModule([&] { Provider().CloseInstance(host::HandleOf(*frame)); });
  } else {
    std::erase(FLeftViews, frame);
    CallModule([&] { frame->Detach(); });
  }
}

host::checks::TLeftBehind TSession::Unload() {
  RequireNotInside();
  if (!FModule) throw ECommandError("no module is loaded");
  if (FDialogs.Playing()) throw ECommandError("a modal dialog is showing");
  CallModule([this] {
    while (!FLeftViews.empty()) {
      const auto view = std::move(FLeftViews.back());
      FLeftViews.pop_back();
      view->Detach();
    }
    FModule->DestroyProvider();
  });
  const auto left = FStrict.LeftBehind();
  // The module's code has to outlive whatever the host still holds of it; even a weak pointer to a frame that
  // is gone refers to that code.
  FLabels.RemoveExpired();
  if (left != host::checks::TLeftBehind{} || !FLabels.Empty()) FModule->KeepLoaded();
  FModule.reset();
  return left;
}

host::TIBaseView& TSession::Provider() const {
  if (!Module().HasProvider()) throw ECommandError("the provider has been destroyed");
  return Module().Provider();
}

void TSession::RequireNotInside() const {
  if (FInside.Running()) throw ECommandError("this cannot be done in the middle of a service call");
}

const TLoadedModule& TSession::Module() const {
  if (!FModule) throw ECommandError("no module is loaded");
  return *FModule;
}

}  // namespace algo::terminal::drive
