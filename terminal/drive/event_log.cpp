#include "terminal/drive/event_log.h"

#include <memory>

#include "terminal/drive/order_json.h"

namespace algo::terminal::drive {

TEventLog::TEventLog(TFrameLabels& labels, TCommandStack& stack, TDialogs& dialogs, TInsideCalls& inside)
    : FLabels(labels), FRunning(stack), FDialogs(dialogs), FInside(inside) {}

void TEventLog::MessageShown(std::string_view text) {
  FRunning.AddEvent({{"event", "message"}, {"text", text}});
}

void TEventLog::ErrorCodeShown(std::string_view code) {
  FRunning.AddEvent({{"event", "error_code"}, {"code", code}});
}

void TEventLog::ActionTaken(const host::TCustomClientOrder& order, host::TOrderAction action,
                            std::int32_t argument, bool answer) {
  FRunning.AddEvent({{"event", "take_action"},
                     {"order", OrderJson(order)},
                     {"action", static_cast<std::int32_t>(action)},
                     {"argument", argument},
                     {"answer", answer}});
}

void TEventLog::Posted(std::int32_t channel, const host::TChannelRecord& record) {
  TAnswerJson event{{"event", "post"}, {"channel", channel}};
  if (const auto* action = dynamic_cast<const host::TOrderTakeActionRecord*>(&record)) {
    event["order"] = OrderJson(action->order);
    event["action"] = action->action;
    event["view"] = action->viewId;
    event["result"] = action->result;
  }
  FRunning.AddEvent(std::move(event));
}

void TEventLog::ViewNotified(const host::TViewFrame& view, std::int32_t code) {
  FRunning.AddEvent({{"event", "view_notify"}, {"frame", FLabels.LabelOf(view)}, {"code", code}});
}

void TEventLog::Stored(std::string_view section, std::string_view key, std::string_view value,
                       bool writeThrough) {
  FRunning.AddEvent(
      {{"event", "store"}, {"section", section}, {"key", key}, {"value", value}, {"flag", writeThrough}});
}

void TEventLog::Subscribed(std::string_view symbol, std::string_view dataSet, bool live) {
  FRunning.AddEvent({{"event", "subscribe"}, {"symbol", symbol}, {"data_set", dataSet}, {"flag", live}});
}

void TEventLog::Unsubscribed(std::string_view symbol) {
  FRunning.AddEvent({{"event", "unsubscribe"}, {"symbol", symbol}});
}

TAnswerJson TEventLog::EditorEvent(std::string_view event, TEditorKind kind, const forms::TControl& control) {
  return {{"event", event},
          {"frame", FLabels.LabelOf(control.Frame())},
          {"kind", NameOf(kind)},
          {"control", control.Name()}};
}

void TEventLog::EditorRegistered(TEditorKind kind, const forms::TControl& control, std::string_view groupId) {
  TAnswerJson event = EditorEvent("register_editor", kind, control);
  event["group"] = groupId;
  FRunning.AddEvent(std::move(event));
}

void TEventLog::EditorRemoved(TEditorKind kind, const forms::TControl& control) {
  FRunning.AddEvent(EditorEvent("remove_editor", kind, control));
}

void TEventLog::EditorSymbolSet(TEditorKind kind, const forms::TControl& control, std::string_view symbol) {
  TAnswerJson event = EditorEvent("editor_symbol", kind, control);
  event["symbol"] = symbol;
  FRunning.AddEvent(std::move(event));
}

void TEventLog::LayoutAccountSet(const forms::TControl& control, std::string_view account) {
  FRunning.AddEvent(
      {{"event", "layout_account"}, {"frame", FLabels.LabelOf(control.Frame())}, {"account", account}});
}

std::string TEventLog::LabelOf(const forms::TDialogForm& form) {
  return form.Frame() ? FLabels.LabelOf(*form.Frame()) : std::string();
}

void TEventLog::FormShown(forms::TDialogForm& form) {
  const std::string label = LabelOf(form);
  if (const auto frame = std::dynamic_pointer_cast<host::TViewFrame>(form.Frame()))
    FLabels.Assign(frame, label);
  FRunning.AddEvent({{"event", "show"},
                     {"frame", label},
                     {"caption", form.Caption()},
                     {"on_top", form.StaysOnTop()},
                     {"width", NumberJson(form.ClientSize().width)},
                     {"height", NumberJson(form.ClientSize().height)}});
}

void TEventLog::FormBroughtToFront(forms::TDialogForm& form) {
  FRunning.AddEvent({{"event", "to_front"}, {"frame", LabelOf(form)}});
}

void TEventLog::FormClosed(forms::TDialogForm& form) {
  const std::string label = LabelOf(form);
  FLabels.Forget(label);
  FRunning.AddEvent({{"event", "close_form"}, {"frame", label}});
}

}  // namespace algo::terminal::drive
