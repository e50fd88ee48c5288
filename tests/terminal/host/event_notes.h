#pragma once

// A receiver of host events that records each as a line of text.

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "terminal/host/host_events.h"

namespace algo::terminal::tests {

using TNotes = std::vector<std::string>;

class TEventNotes : public THostEvents {
 public:
  void MessageShown(std::string_view text) override { Note("message", text); }
  void ErrorCodeShown(std::string_view code) override { Note("error code", code); }
  void ActionTaken(const host::TCustomClientOrder& order, host::TOrderAction action, std::int32_t argument,
                   bool answer) override {
    Note("action " + std::to_string(static_cast<int>(action)), order.key, std::to_string(argument),
         answer ? "yes" : "no");
  }
  void Posted(std::int32_t channel, const host::TChannelRecord& record) override {
    const auto* action = dynamic_cast<const host::TOrderTakeActionRecord*>(&record);
    Note("post " + std::to_string(channel), action != nullptr && action->result ? "yes" : "no");
  }
  void ViewNotified(const host::TViewFrame& view, std::int32_t code) override {
    Note("notify", view.ClassName(), std::to_string(code));
  }
  void Stored(std::string_view section, std::string_view key, std::string_view value,
              bool writeThrough) override {
    Note("store", section, key, value, writeThrough ? "at once" : "later");
  }
  void Subscribed(std::string_view symbol, std::string_view dataSet, bool live) override {
    Note("subscribe", symbol, dataSet, live ? "live" : "");
  }
  void Unsubscribed(std::string_view symbol) override { Note("unsubscribe", symbol); }
  void EditorRegistered(TEditorKind kind, const forms::TControl& control, std::string_view groupId) override {
    Note("register", NameOf(kind), control.Name(), groupId);
  }
  void EditorRemoved(TEditorKind kind, const forms::TControl& control) override {
    Note("remove", NameOf(kind), control.Name());
  }
  void EditorSymbolSet(TEditorKind kind, const forms::TControl& control, std::string_view symbol) override {
    Note("symbol", NameOf(kind), control.Name(), symbol);
  }
  void LayoutAccountSet(const forms::TControl& control, std::string_view account) override {
    Note("layout account", control.Name(), account);
  }
  void FormShown(forms::TDialogForm& form) override { Note("show", form.Caption()); }
  void FormBroughtToFront(forms::TDialogForm& form) override { Note("front", form.Caption()); }
  void FormClosed(forms::TDialogForm& form) override { Note("close", form.Caption()); }
  void RunModal(forms::TDialogForm& form) override { play(form); }

  TNotes lines;
  std::function<void(forms::TDialogForm&)> play = [](forms::TDialogForm& form) {
    form.SetModalResult(forms::ModalOk);
  };

 private:
  template <class... TWords>
  void Note(std::string first, const TWords&... words) {
    ((first.append(" ").append(words)), ...);
    lines.push_back(std::move(first));
  }
};

}  // namespace algo::terminal::tests
