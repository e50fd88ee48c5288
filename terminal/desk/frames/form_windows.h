#pragma once

// The windows of the module's dialog forms: modal ones, for whose answer the module waits, and others beside
// the main window.

#include <QObject>
#include <QPointer>
#include <utility>
#include <vector>

#include "terminal/desk/frames/form_window.h"
#include "terminal/desk/session/desk_events.h"

namespace algo::terminal::desk::frames {

class TFormWindows final : public QObject {
  Q_OBJECT
 public:
  /// All of them outlive the object. Modal windows block `parent`, others stay in front of it.
  TFormWindows(TDeskEvents& events, const render::TEditorAssist& assist, QWidget& parent);
  ~TFormWindows() override;

  /// Whether a modal form shows.
  bool AnyModal() const { return !FModal.empty(); }

  /// Answers every modal form that shows with Cancel; ModalFormsClosed says when they are closed.
  void CancelModal();

  /// Closes the windows of the forms that show beside the others, as their close boxes do.
  void CloseOthers();

 signals:
  /// The last modal form was answered.
  void ModalFormsClosed();

 private:
  void RunModal(forms::TDialogForm& form);
  void Show(forms::TDialogForm& form);
  void Remove(forms::TDialogForm& form);
  TFormWindow* Find(const forms::TDialogForm& form) const;

  TDeskEvents& FEvents;
  const render::TEditorAssist& FAssist;
  QWidget& FParent;
  std::vector<std::pair<forms::TDialogForm*, TFormWindow*>> FModal;
  std::vector<QPointer<TFormWindow>> FOthers;
};

}  // namespace algo::terminal::desk::frames
