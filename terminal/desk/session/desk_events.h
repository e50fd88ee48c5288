#pragma once

// What the host sees of the module, passed on as signals of the same names to whoever shows it. Everything is
// delivered before the module's call returns.

#include <QObject>
#include <QString>
#include <exception>
#include <memory>
#include <string>
#include <utility>

#include "terminal/host/host_events.h"

namespace algo::terminal::desk {

class TDeskEvents final : public QObject {
  Q_OBJECT
 public:
  TDeskEvents();
  ~TDeskEvents() override;

  /// What a host has to be given so that its events come out here; good as long as the object.
  THostEvents& Receiver();

  /// Runs what a slot or an event handler does. What it throws is shown to the trader instead, since nothing
  /// may be thrown through the window system. False when something was thrown.
  template <class TWork>
  bool Guard(TWork&& work) noexcept {
    try {
      std::forward<TWork>(work)();
      return true;
    } catch (const std::exception& error) {
      emit MessageShown(QString::fromUtf8(error.what()));
    } catch (...) {
      emit MessageShown(QStringLiteral("Something failed that has no name"));
    }
    return false;
  }

 signals:
  void MessageShown(const QString& text);
  void ErrorCodeShown(const QString& code);
  /// The view wants another size than it has.
  void ViewChanged(const host::TViewFrame& view);
  void EditorRegistered(TEditorKind kind, const forms::TControl& control);
  void EditorRemoved(const forms::TControl& control);
  void FormShown(forms::TDialogForm& form);
  void FormBroughtToFront(forms::TDialogForm& form);
  void FormClosed(forms::TDialogForm& form);
  void FormAppearanceChanged(forms::TDialogForm& form);
  /// The receiver shows the form until it has a modal result.
  void ModalFormShown(forms::TDialogForm& form);

 private:
  class TReceiver;
  std::unique_ptr<TReceiver> FReceiver;
};

}  // namespace algo::terminal::desk
