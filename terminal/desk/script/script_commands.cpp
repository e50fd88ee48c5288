// What the commands of a script mean in the desktop.

#include <QContextMenuEvent>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTreeView>
#include <algorithm>

#include "forms/choices.h"
#include "plugin/host_contract/channel_manager.h"
#include "terminal/desk/appearance/texts.h"
#include "terminal/desk/script/script_player.h"
#include "terminal/drive/host_merge.h"
#include "terminal/drive/input_checks.h"
#include "terminal/drive/lookup.h"
#include "terminal/render/qt_text.h"

namespace algo::terminal::desk::script {

namespace {

/// Opens the menu that has the entry and clicks the entry in it. Throws ECommandError when no menu has it.
void ChooseInMainMenu(QMainWindow& window, const QString& name) {
  const auto* action = window.findChild<QAction*>(name);
  auto* menu = action == nullptr ? nullptr : qobject_cast<QMenu*>(action->parent());
  if (menu == nullptr) throw drive::ECommandError("the menus have no '" + render::FromQt(name) + "'");
  QMenuBar& bar = *window.menuBar();
  QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, bar.actionGeometry(menu->menuAction()).center());
  QApplication::processEvents();
  QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier,
                    menu->actionGeometry(const_cast<QAction*>(action)).center());
  QApplication::processEvents();
}

}  // namespace

std::shared_ptr<forms::TFrame> TScriptPlayer::FrameOf(const drive::TArguments& arguments) {
  const auto& label = arguments.Text("frame");
  if (label == "change" || label == "work") {
    if (!FModal.empty()) {
      if (auto frame = FModal.back().lock()) return frame;
    }
  } else if (const auto form = FForms.find(label); form != FForms.end()) {
    if (auto frame = form->second.lock()) return frame;
  } else {
    return Open().desk.Provider().FindView(PanelOf(arguments).Instance());
  }
  throw drive::ECommandError("there is no frame '" + label + "'");
}

frames::TEntryPanel& TScriptPlayer::PanelOf(const drive::TArguments& arguments) {
  const auto& label = arguments.Text("frame");
  const auto panel = FPanels.find(label);
  if (panel == FPanels.end() || !panel->second)
    throw drive::ECommandError("there is no frame '" + label + "'");
  return *panel->second;
}

void TScriptPlayer::ChangeHost(const drive::TArguments& arguments) {
  drive::TCommandJson changes = arguments.All();
  for (const char* own : {"do", "id"}) changes.erase(own);
  if (FOpen) return drive::MergeHostData(changes, FOpen->desk.Host().Data());
  FHostChanges.push_back(std::move(changes));
}

void TScriptPlayer::Load(const drive::TArguments& /*arguments*/) {
  if (FOpen) throw drive::ECommandError("the desk is open already");
  FOpen = std::make_unique<TOpenDesk>(FOptions, *this);
  FHostChanges.clear();
  QObject::connect(&FOpen->desk.Events(), &TDeskEvents::FormShown, &FOpen->window,
                   [this](forms::TDialogForm& form) { FForms["change:" + FOrder] = form.Frame(); });
}

void TScriptPlayer::Unload(const drive::TArguments& /*arguments*/) {
  TakeStepPicture();
  FLastData = Open().desk.Host().Data();
  FOpen->window.close();
  FPanels.clear();
  FForms.clear();
  FModal.clear();
  FOpen.reset();
}

void TScriptPlayer::OpenView(const drive::TArguments& arguments) {
  window::TMainWindow& window = Open().window;
  const auto& label = arguments.Text("frame");
  const auto isFree = [this](const frames::TEntryPanel* panel) {
    return std::none_of(FPanels.begin(), FPanels.end(),
                        [panel](const auto& known) { return known.second == panel; });
  };
  // The first workspace has a view already.
  for (int round = 0; round < 2; ++round) {
    for (frames::TEntryPanel* panel : window.findChildren<frames::TEntryPanel*>()) {
      if (!isFree(panel)) continue;
      FPanels[label] = panel;
      return;
    }
    ChooseInMainMenu(window, render::ToQt(FOpen->desk.Provider().GetName()));
  }
  throw drive::ECommandError("no view opened");
}

void TScriptPlayer::CloseView(const drive::TArguments& arguments) {
  frames::TEntryPanel& panel = PanelOf(arguments);
  panel.close();
  QApplication::sendPostedEvents(&panel, QEvent::DeferredDelete);
}

void TScriptPlayer::ChangeLanguage(const drive::TArguments& arguments) {
  ChooseInMainMenu(Open().window, render::ToQt(appearance::LanguageCode(
                                      static_cast<appearance::TLanguage>(arguments.Integer("language")))));
}

void TScriptPlayer::ApplyLayout(const drive::TArguments& arguments) {
  const host::TInstanceHandle instance = PanelOf(arguments).Instance();
  if (!arguments.Has("text")) return;
  if (!Open().desk.Provider().SetLayoutData(instance, arguments.Text("text"))) {
    throw drive::ECommandError("the layout was not taken");
  }
}

void TScriptPlayer::MoveMarket(const drive::TArguments& arguments) {
  TFieldChanges changes;
  if (const drive::TCommandJson* fields = arguments.Find("fields")) {
    for (const auto& [field, value] : fields->items()) {
      auto& change = changes[std::stoi(field)];
      if (!value.is_null()) change = drive::AsText(field, value);
    }
  }
  Open().desk.Host().SetMarket(arguments.Text("symbol"), arguments.IntegerOr("state", 1), changes,
                               TMarketNotice::Item);
}

void TScriptPlayer::ChooseInOrderMenu(const std::string& key, const char* entry) {
  auto& tree = *Open().window.findChild<QTreeView*>("orderTree");
  tree.expandAll();
  const auto rows = tree.model()->match(tree.model()->index(0, 0), Qt::DisplayRole, render::ToQt(key), 1,
                                        Qt::MatchExactly | Qt::MatchRecursive);
  if (rows.isEmpty()) throw drive::ECommandError("the blotter has no order '" + key + "'");
  tree.scrollTo(rows.front());
  const QPoint position = tree.visualRect(rows.front()).center();
  QTest::mouseClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, position);
  QContextMenuEvent request(QContextMenuEvent::Mouse, position, tree.viewport()->mapToGlobal(position));
  QApplication::sendEvent(tree.viewport(), &request);
  auto* menu = Open().window.findChild<QMenu*>("orderMenu");
  auto* action = menu == nullptr ? nullptr : menu->findChild<QAction*>(entry);
  if (action == nullptr || !action->isEnabled()) {
    if (menu != nullptr) menu->close();
    throw drive::ECommandError("the blotter does not offer that for order '" + key + "'");
  }
  QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(action).center());
}

void TScriptPlayer::Post(const drive::TArguments& arguments) {
  const auto& key = arguments.Text("order");
  FOrder = key;
  if (arguments.Integer("channel") == host::CopyOrderChannel) return ChooseInOrderMenu(key, "copyOrder");
  const auto action = static_cast<host::TOrderAction>(arguments.Integer("action"));
  ChooseInOrderMenu(key, action == host::TOrderAction::Work ? "workOrder" : "changeOrder");
}

void TScriptPlayer::SetValue(const drive::TArguments& arguments) {
  const auto frame = FrameOf(arguments);
  auto* spin = dynamic_cast<forms::TSpinEdit*>(frame->FindControl(arguments.Text("control")));
  if (spin == nullptr) throw drive::ECommandError("only a number can be set");
  spin->SetValue(drive::AsNumber("value", arguments.Required("value")));
}

void TScriptPlayer::Type(const drive::TArguments& arguments) {
  const auto frame = FrameOf(arguments);
  auto& control = drive::ControlOf(*frame, arguments);
  drive::CheckTaken(Open().trader.Type(frame, control, arguments.Text("text")), control);
}

void TScriptPlayer::Leave(const drive::TArguments& arguments) { Open().trader.Leave(FrameOf(arguments)); }

void TScriptPlayer::Enter(const drive::TArguments& arguments) {
  const auto frame = FrameOf(arguments);
  auto& control = drive::ControlOf(*frame, arguments);
  drive::CheckTaken(Open().trader.Enter(frame, control), control);
}

void TScriptPlayer::Click(const drive::TArguments& arguments) {
  const auto frame = FrameOf(arguments);
  auto& control = drive::ControlOf(*frame, arguments);
  drive::CheckTaken(Open().trader.Click(frame, control), control);
}

void TScriptPlayer::Pick(const drive::TArguments& arguments) {
  const auto frame = FrameOf(arguments);
  auto& control = drive::ControlOf(*frame, arguments);
  drive::CheckTaken(Open().trader.Pick(frame, control, drive::ItemOf(control, arguments)), control);
}

void TScriptPlayer::Look(const drive::TArguments& /*arguments*/) {}

}  // namespace algo::terminal::desk::script
