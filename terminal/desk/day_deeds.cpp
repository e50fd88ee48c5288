// What the commands of a script mean in the desktop.

#include <QContextMenuEvent>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTreeView>
#include <algorithm>

#include "forms/choices.h"
#include "plugin/host_contract/channel_manager.h"
#include "terminal/desk/day_player.h"
#include "terminal/drive/host_merge.h"
#include "terminal/drive/input_checks.h"
#include "terminal/drive/lookup.h"
#include "terminal/render/qt_text.h"

namespace algo::terminal {

namespace {

/// Opens the menu that has the entry and clicks the entry in it. Throws ECommandError when no menu has it.
void ChooseInMenu(QMainWindow& window, const QString& name) {
  const auto* action = window.findChild<QAction*>(name);
  auto* menu = action == nullptr ? nullptr : qobject_cast<QMenu*>(action->parent());
  if (menu == nullptr) throw ECommandError("the menus have no '" + FromQt(name) + "'");
  QMenuBar& bar = *window.menuBar();
  QTest::mouseClick(&bar, Qt::LeftButton, Qt::NoModifier, bar.actionGeometry(menu->menuAction()).center());
  QApplication::processEvents();
  QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier,
                    menu->actionGeometry(const_cast<QAction*>(action)).center());
  QApplication::processEvents();
}

}  // namespace

std::shared_ptr<forms::TFrame> TDayPlayer::FrameOf(const TArguments& arguments) {
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
  throw ECommandError("there is no frame '" + label + "'");
}

TEntryPanel& TDayPlayer::PanelOf(const TArguments& arguments) {
  const auto& label = arguments.Text("frame");
  const auto panel = FPanels.find(label);
  if (panel == FPanels.end() || !panel->second) throw ECommandError("there is no frame '" + label + "'");
  return *panel->second;
}

void TDayPlayer::ChangeHost(const TArguments& arguments) {
  TCommandJson changes = arguments.All();
  for (const char* own : {"do", "id"}) changes.erase(own);
  if (FOpen) return MergeHostData(changes, FOpen->desk.Host().Data());
  FHostChanges.push_back(std::move(changes));
}

void TDayPlayer::Load(const TArguments& /*arguments*/) {
  if (FOpen) throw ECommandError("the desk is open already");
  FOpen = std::make_unique<TOpen>(FOptions, *this);
  FHostChanges.clear();
  QObject::connect(&FOpen->desk.Events(), &TDeskEvents::FormCame, &FOpen->window,
                   [this](forms::TDialogForm& form) { FForms["change:" + FChanged] = form.Frame(); });
}

void TDayPlayer::Unload(const TArguments& /*arguments*/) {
  EndStep();
  FLeft = Open().desk.Host().Data();
  FOpen->window.close();
  FPanels.clear();
  FForms.clear();
  FModal.clear();
  FOpen.reset();
}

void TDayPlayer::OpenView(const TArguments& arguments) {
  TMainWindow& window = Open().window;
  const auto& label = arguments.Text("frame");
  const auto isFree = [this](const TEntryPanel* panel) {
    return std::none_of(FPanels.begin(), FPanels.end(),
                        [panel](const auto& known) { return known.second == panel; });
  };
  // The first workspace has a view already.
  for (int round = 0; round < 2; ++round) {
    for (TEntryPanel* panel : window.findChildren<TEntryPanel*>()) {
      if (!isFree(panel)) continue;
      FPanels[label] = panel;
      return;
    }
    ChooseInMenu(window, ToQt(FOpen->desk.Provider().GetName()));
  }
  throw ECommandError("no view opened");
}

void TDayPlayer::CloseView(const TArguments& arguments) {
  TEntryPanel& panel = PanelOf(arguments);
  panel.close();
  QApplication::sendPostedEvents(&panel, QEvent::DeferredDelete);
}

void TDayPlayer::ChangeLanguage(const TArguments& arguments) {
  ChooseInMenu(Open().window, ToQt(LanguageCode(static_cast<TLanguage>(arguments.Integer("language")))));
}

void TDayPlayer::ApplyLayout(const TArguments& arguments) {
  const host::TInstanceHandle instance = PanelOf(arguments).Instance();
  if (!arguments.Has("text")) return;
  if (!Open().desk.Provider().SetLayoutData(instance, arguments.Text("text"))) {
    throw ECommandError("the layout was not taken");
  }
}

void TDayPlayer::MoveMarket(const TArguments& arguments) {
  TFieldChanges changes;
  if (const TCommandJson* fields = arguments.Find("fields")) {
    for (const auto& [field, value] : fields->items()) {
      auto& change = changes[std::stoi(field)];
      if (!value.is_null()) change = AsText(field, value);
    }
  }
  Open().desk.Host().SetMarket(arguments.Text("symbol"), arguments.IntegerOr("state", 1), changes,
                               TMarketNotice::Item);
}

void TDayPlayer::ChooseForOrder(const std::string& key, const char* deed) {
  auto& tree = *Open().window.findChild<QTreeView*>("orderTree");
  tree.expandAll();
  const auto rows = tree.model()->match(tree.model()->index(0, 0), Qt::DisplayRole, ToQt(key), 1,
                                        Qt::MatchExactly | Qt::MatchRecursive);
  if (rows.isEmpty()) throw ECommandError("the blotter has no order '" + key + "'");
  tree.scrollTo(rows.front());
  const QPoint where = tree.visualRect(rows.front()).center();
  QTest::mouseClick(tree.viewport(), Qt::LeftButton, Qt::NoModifier, where);
  QContextMenuEvent asked(QContextMenuEvent::Mouse, where, tree.viewport()->mapToGlobal(where));
  QApplication::sendEvent(tree.viewport(), &asked);
  auto* menu = Open().window.findChild<QMenu*>("orderMenu");
  auto* action = menu == nullptr ? nullptr : menu->findChild<QAction*>(deed);
  if (action == nullptr || !action->isEnabled()) {
    if (menu != nullptr) menu->close();
    throw ECommandError("the blotter does not offer that for order '" + key + "'");
  }
  QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier, menu->actionGeometry(action).center());
}

void TDayPlayer::Post(const TArguments& arguments) {
  const auto& key = arguments.Text("order");
  FChanged = key;
  if (arguments.Integer("channel") == host::CopyOrderChannel) return ChooseForOrder(key, "copyOrder");
  const auto action = static_cast<host::TOrderAction>(arguments.Integer("action"));
  ChooseForOrder(key, action == host::TOrderAction::Work ? "workOrder" : "changeOrder");
}

void TDayPlayer::SetValue(const TArguments& arguments) {
  const auto frame = FrameOf(arguments);
  auto* spin = dynamic_cast<forms::TSpinEdit*>(frame->FindControl(arguments.Text("control")));
  if (spin == nullptr) throw ECommandError("only a number can be set");
  spin->SetValue(AsNumber("value", arguments.Required("value")));
}

void TDayPlayer::Type(const TArguments& arguments) {
  const auto frame = FrameOf(arguments);
  auto& control = ControlOf(*frame, arguments);
  CheckTaken(Open().trader.Type(frame, control, arguments.Text("text")), control);
}

void TDayPlayer::Leave(const TArguments& arguments) { Open().trader.Leave(FrameOf(arguments)); }

void TDayPlayer::Enter(const TArguments& arguments) {
  const auto frame = FrameOf(arguments);
  auto& control = ControlOf(*frame, arguments);
  CheckTaken(Open().trader.Enter(frame, control), control);
}

void TDayPlayer::Click(const TArguments& arguments) {
  const auto frame = FrameOf(arguments);
  auto& control = ControlOf(*frame, arguments);
  CheckTaken(Open().trader.Click(frame, control), control);
}

void TDayPlayer::Pick(const TArguments& arguments) {
  const auto frame = FrameOf(arguments);
  auto& control = ControlOf(*frame, arguments);
  CheckTaken(Open().trader.Pick(frame, control, ItemOf(control, arguments)), control);
}

void TDayPlayer::Look(const TArguments& /*arguments*/) {}

}  // namespace algo::terminal
