#pragma once

// Records what the module does at the host's services as the events of the command that is running.

#include "terminal/drive/command_stack.h"
#include "terminal/drive/dialogs.h"
#include "terminal/drive/frame_labels.h"
#include "terminal/drive/inside_calls.h"
#include "terminal/host/host_events.h"

namespace algo::terminal::drive {

class TEventLog final : public THostEvents {
 public:
  /// All of them outlive the log.
  TEventLog(TFrameLabels& labels, TCommandStack& stack, TDialogs& dialogs, TInsideCalls& inside);

  using THostEvents::WatchCalls;

  void MessageShown(std::string_view text) override;
  void ErrorCodeShown(std::string_view code) override;
  void ActionTaken(const host::TCustomClientOrder& order, host::TOrderAction action, std::int32_t argument,
                   bool answer) override;
  void Posted(std::int32_t channel, const host::TChannelRecord& record) override;
  void ViewNotified(const host::TViewFrame& view, std::int32_t code) override;
  void Stored(std::string_view section, std::string_view key, std::string_view value,
              bool writeThrough) override;
  void Subscribed(std::string_view symbol, std::string_view dataSet, bool live) override;
  void Unsubscribed(std::string_view symbol) override;
  void EditorRegistered(TEditorKind kind, const forms::TControl& control, std::string_view groupId) override;
  void EditorRemoved(TEditorKind kind, const forms::TControl& control) override;
  void EditorSymbolSet(TEditorKind kind, const forms::TControl& control, std::string_view symbol) override;
  void LayoutAccountSet(const forms::TControl& control, std::string_view account) override;
  void FormShown(forms::TDialogForm& form) override;
  void FormBroughtToFront(forms::TDialogForm& form) override;
  void FormClosed(forms::TDialogForm& form) override;
  void RunModal(forms::TDialogForm& form) override { FDialogs.Play(form); }
  std::uint32_t CallBegins(TServiceOperation operation) override { return FInside.CallBegins(operation); }
  void CallEnds(TServiceOperation operation, std::uint32_t number) override {
    FInside.CallEnds(operation, number);
  }

 private:
  TAnswerJson EditorEvent(std::string_view event, TEditorKind kind, const forms::TControl& control);
  std::string LabelOf(const forms::TDialogForm& form);

  TFrameLabels& FLabels;
  TCommandStack& FRunning;
  TDialogs& FDialogs;
  TInsideCalls& FInside;
};

}  // namespace algo::terminal::drive
