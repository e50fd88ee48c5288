#pragma once

// The windows of the module's dialog forms: modal ones are waited for, others stand beside the main window.

#include <QObject>
#include <QPointer>
#include <utility>
#include <vector>

#include "terminal/desk/desk_events.h"
#include "terminal/desk/form_window.h"

namespace algo::terminal {

class TFormWindows final : public QObject {
  Q_OBJECT
 public:
  /// All of them outlive the object. `parent` is what modal windows block and others stay in front of.
  TFormWindows(TDeskEvents& events, const TEditorAssist& aids, QWidget& parent);
  ~TFormWindows() override;

  /// Whether a modal form shows.
  bool AnyModal() const { return !FModal.empty(); }

  /// Answers every modal form that shows with Cancel. They are gone when ModalFormsGone is told.
  void DismissModal();

  /// Closes the windows of the forms that show beside the others, as their close boxes do.
  void CloseOthers();

 signals:
  /// The last modal form was answered.
  void ModalFormsGone();

 private:
  void RunModal(forms::TDialogForm& form);
  void Show(forms::TDialogForm& form);
  void Remove(forms::TDialogForm& form);
  TFormWindow* Find(const forms::TDialogForm& form) const;

  TDeskEvents& FEvents;
  const TEditorAssist& FAids;
  QWidget& FParent;
  std::vector<std::pair<forms::TDialogForm*, TFormWindow*>> FModal;
  std::vector<QPointer<TFormWindow>> FOthers;
};

}  // namespace algo::terminal
