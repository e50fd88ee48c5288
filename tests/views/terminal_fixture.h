#pragma once

// A terminal for the tests of the module's views: services in memory under the strict host, an instrument to
// trade, and a record of everything that the host saw. A test plays the trader through the frame's input
// operations and the host through the fixture.

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "plugin/host_contract/checks/strict_host.h"
#include "plugin/view_provider.h"
#include "terminal/host/memory_host.h"
#include "views/entry/entry_frame.h"

namespace algo::tests {

/// One thing that the host saw, with what applies of it.
struct TSeen {
  std::string event;        ///< named as algo-drive names it: "message", "take_action", …
  std::string text;         ///< message text, error code, symbol, key, control name, caption
  std::string more;         ///< data set, stored value, group, symbol of an editor
  std::int32_t number = 0;  ///< action, channel, view notification code
  bool answer = false;      ///< answer, flag, result
  host::TCustomClientOrder order;
};

class TTerminalTest : public testing::Test, public terminal::THostEvents {
 protected:
  TTerminalTest();
  ~TTerminalTest() override;

  /// Makes the provider, if there is none, and opens a view; the frame is the provider's.
  views::entry::TAlgoOrderEntryFrame& Open();
  /// The same view with the order's own fields filled in: buy 800 of 0005 at 60.5 for A1.
  views::entry::TAlgoOrderEntryFrame& OpenFilled();
  plugin::TIAlgoEntryOrder& Provider();
  void DestroyProvider() { FProvider.reset(); }

  // The trader. Each checks that the input was taken.
  void Type(forms::TFrame& frame, std::string_view control, std::string_view text);
  void Leave(forms::TFrame& frame) { frame.InputLeave(); }
  void Click(forms::TFrame& frame, std::string_view control);
  void Pick(forms::TFrame& frame, std::string_view control, std::string_view item);
  /// Presses Enter and gives the name of the control that has the focus then; empty for none.
  std::string Enter(forms::TFrame& frame, std::string_view control);
  /// Chooses the algorithm with that code.
  void ChooseAlgo(views::entry::TAlgoOrderEntryFrame& frame, std::string_view code);

  /// A control by name; the test ends when there is none.
  forms::TControl& Named(forms::TFrame& frame, std::string_view control) const;
  forms::TSpinEdit& Spin(forms::TFrame& frame, std::string_view control) const;
  forms::TComboBox& Combo(forms::TFrame& frame, std::string_view control) const;
  forms::TLayoutElement& Element(forms::TFrame& frame, std::string_view name) const;

  /// Puts a stored order in place and returns it.
  host::TCustomClientOrder& Store(const host::TCustomClientOrder& order);
  /// Posts an order action as the order view does; returns the record's result.
  bool Post(host::TCustomClientOrder* order, host::TOrderAction action);

  /// Plays the trader in the next modal dialogs, first dialog first; a dialog left without a result gets
  /// ModalCancel.
  void InDialogs(std::vector<std::function<void(forms::TDialogForm&)>> scripts);

  /// All events of that name, in order.
  std::vector<TSeen> Seen(std::string_view event) const;
  /// The messages and error codes that were shown, in order.
  std::vector<std::string> Told() const;
  /// The order of the only order action taken; the test fails when there was none or more than one.
  host::TCustomClientOrder TakenOrder() const;
  void Forget() { FSeen.clear(); }

  terminal::TMemoryHost& Host() { return *FHost; }
  terminal::THostData& Data() { return FHost->Data(); }
  host::checks::TLeftBehind LeftBehind() const { return FStrict->LeftBehind(); }
  const std::vector<std::string>& Violations() const { return FViolations; }

  void ViewNotified(const host::TViewFrame& view, std::int32_t code) override;

 private:
  void MessageShown(std::string_view text) override;
  void ErrorCodeShown(std::string_view code) override;
  void ActionTaken(const host::TCustomClientOrder& order, host::TOrderAction action, std::int32_t argument,
                   bool answer) override;
  void Posted(std::int32_t channel, const host::TChannelRecord& record) override;
  void Stored(std::string_view section, std::string_view key, std::string_view value,
              bool writeThrough) override;
  void Subscribed(std::string_view symbol, std::string_view dataSet, bool live) override;
  void Unsubscribed(std::string_view symbol) override;
  void EditorRegistered(terminal::TEditorKind kind, const forms::TControl& control,
                        std::string_view groupId) override;
  void EditorRemoved(terminal::TEditorKind kind, const forms::TControl& control) override;
  void EditorSymbolSet(terminal::TEditorKind kind, const forms::TControl& control,
                       std::string_view symbol) override;
  void LayoutAccountSet(const forms::TControl& control, std::string_view account) override;
  void FormShown(forms::TDialogForm& form) override;
  void FormBroughtToFront(forms::TDialogForm& form) override;
  void FormClosed(forms::TDialogForm& form) override;
  void RunModal(forms::TDialogForm& form) override;

  std::vector<TSeen> FSeen;
  std::vector<std::string> FViolations;
  std::vector<std::function<void(forms::TDialogForm&)>> FDialogScripts;
  std::unique_ptr<terminal::TMemoryHost> FHost;
  std::unique_ptr<host::checks::TStrictHost> FStrict;
  std::unique_ptr<plugin::TIAlgoEntryOrder> FProvider;
};

}  // namespace algo::tests
