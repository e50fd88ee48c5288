#pragma once

// What the host sees of the module, passed on as signals to whoever shows it. Everything is delivered before
// the module's call returns.

#include <QObject>
#include <QString>
#include <exception>
#include <utility>

#include "terminal/host/host_events.h"

namespace algo::terminal {

class TDeskEvents final : public QObject, public THostEvents {
  Q_OBJECT
 public:
  /// Runs what a slot or an event handler does. What it throws is told to the trader instead, since nothing
  /// may be thrown through the window system. False when something was thrown.
  template <class TWork>
  bool Guard(TWork&& work) noexcept {
    try {
      std::forward<TWork>(work)();
      return true;
    } catch (const std::exception& error) {
      MessageShown(error.what());
    } catch (...) {
      MessageShown("Something failed that has no name");
    }
    return false;
  }

  void MessageShown(std::string_view text) override;
  void ErrorCodeShown(std::string_view code) override;
  void ViewNotified(const host::TViewFrame& view, std::int32_t code) override;
  void EditorRegistered(TEditorKind kind, const forms::TControl& control, std::string_view groupId) override;
  void EditorRemoved(TEditorKind kind, const forms::TControl& control) override;
  void FormShown(forms::TDialogForm& form) override;
  void FormBroughtToFront(forms::TDialogForm& form) override;
  void FormClosed(forms::TDialogForm& form) override;
  void FormLooksChanged(forms::TDialogForm& form) override;
  void RunModal(forms::TDialogForm& form) override;

  // The desktop shows nothing of these.
  void EditorSymbolSet(TEditorKind /*kind*/, const forms::TControl& /*control*/,
                       std::string_view /*symbol*/) override {}
  void ActionTaken(const host::TCustomClientOrder& /*order*/, host::TOrderAction /*action*/,
                   std::int32_t /*argument*/, bool /*answer*/) override {}
  void Posted(std::int32_t /*channel*/, const host::TChannelRecord& /*record*/) override {}
  void Stored(std::string_view /*section*/, std::string_view /*key*/, std::string_view /*value*/,
              bool /*writeThrough*/) override {}
  void Subscribed(std::string_view /*symbol*/, std::string_view /*dataSet*/, bool /*live*/) override {}
  void Unsubscribed(std::string_view /*symbol*/) override {}
  void LayoutAccountSet(const forms::TControl& /*control*/, std::string_view /*account*/) override {}

 signals:
  void MessageTold(const QString& text);
  void ErrorCodeTold(const QString& code);
  void ViewChanged(const host::TViewFrame& view);
  void EditorCame(TEditorKind kind, const forms::TControl& control);
  void EditorWent(const forms::TControl& control);
  void FormCame(forms::TDialogForm& form);
  void FormCalled(forms::TDialogForm& form);
  void FormWent(forms::TDialogForm& form);
  void FormLooksDifferent(forms::TDialogForm& form);
  /// The receiver shows the form until it has a modal result.
  void ModalFormCame(forms::TDialogForm& form);
};

}  // namespace algo::terminal
