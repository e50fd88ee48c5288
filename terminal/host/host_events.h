#pragma once

// What the module does at the host's services, reported as it happens to whoever runs the host. A service
// call that fails is not reported. References are valid for the duration of the call; a frame may be under
// construction or destruction, so that it is no more than an identity with a class name.

#include <cstdint>
#include <string_view>

#include "forms/control.h"
#include "forms/dialog_form.h"
#include "plugin/host_contract/channel_manager.h"
#include "plugin/host_contract/orders.h"
#include "plugin/host_contract/view_frame.h"
#include "terminal/host/service_operations.h"

namespace algo::terminal {

/// The kinds of shared field editors.
enum class TEditorKind : std::uint8_t { Account, Symbol, Price, Quantity };

/// "account", "symbol", "price" or "quantity".
std::string_view NameOf(TEditorKind kind);

class THostEvents {
 public:
  virtual ~THostEvents();

  virtual void MessageShown(std::string_view text) = 0;
  virtual void ErrorCodeShown(std::string_view code) = 0;

  /// An order action was requested and answered. `order` is as it was at the call.
  virtual void ActionTaken(const host::TCustomClientOrder& order, host::TOrderAction action,
                           std::int32_t argument, bool answer) = 0;

  /// The module posted; every subscriber has received the record.
  virtual void Posted(std::int32_t channel, const host::TChannelRecord& record) = 0;

  virtual void ViewNotified(const host::TViewFrame& view, std::int32_t code) = 0;

  virtual void Stored(std::string_view section, std::string_view key, std::string_view value,
                      bool writeThrough) = 0;

  virtual void Subscribed(std::string_view symbol, std::string_view dataSet, bool live) = 0;
  virtual void Unsubscribed(std::string_view symbol) = 0;

  virtual void EditorRegistered(TEditorKind kind, const forms::TControl& control,
                                std::string_view groupId) = 0;
  virtual void EditorRemoved(TEditorKind kind, const forms::TControl& control) = 0;
  /// A price or quantity editor was given the symbol that it serves.
  virtual void EditorSymbolSet(TEditorKind kind, const forms::TControl& control, std::string_view symbol) = 0;
  /// An account from a layout is about to be put into an account editor.
  virtual void LayoutAccountSet(const forms::TControl& control, std::string_view account) = 0;

  /// A form opened beside the others, was brought to the front, or closed again. Modal forms are not reported
  /// here.
  virtual void FormShown(forms::TDialogForm& form) = 0;
  virtual void FormBroughtToFront(forms::TDialogForm& form) = 0;
  virtual void FormClosed(forms::TDialogForm& form) = 0;

  /// Caption, client size or stay-on-top of a form changed, whether it is open or not. Does nothing, which is
  /// right for a host without windows.
  virtual void FormAppearanceChanged(forms::TDialogForm& form);

  /// Plays the trader while the form shows modally. Must give the form a modal result before it returns.
  virtual void RunModal(forms::TDialogForm& form) = 0;

  /// Whether the calls of services are told of, with CallBegins and CallEnds.
  bool WatchesCalls() const { return FWatchesCalls; }

  /// A call of the operation has come in: nothing has been done of it, and it may still fail. Returns a
  /// number for it that CallEnds is given.
  virtual std::uint32_t CallBegins(TServiceOperation operation);
  /// The work of that call has been done.
  virtual void CallEnds(TServiceOperation operation, std::uint32_t number);

 protected:
  /// Has the calls of services told of from now on, or no longer.
  void WatchCalls(bool watch) { FWatchesCalls = watch; }

 private:
  bool FWatchesCalls = false;
};

}  // namespace algo::terminal
