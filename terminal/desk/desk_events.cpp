#include "terminal/desk/desk_events.h"

#include "plugin/host_contract/view_functions.h"
#include "terminal/render/qt_text.h"

namespace algo::terminal {

void TDeskEvents::MessageShown(std::string_view text) { emit MessageTold(ToQt(text)); }

void TDeskEvents::ErrorCodeShown(std::string_view code) { emit ErrorCodeTold(ToQt(code)); }

void TDeskEvents::ViewNotified(const host::TViewFrame& view, std::int32_t code) {
  if (code == host::ViewChanged) emit ViewChanged(view);
}

void TDeskEvents::EditorRegistered(TEditorKind kind, const forms::TControl& control,
                                   std::string_view /*groupId*/) {
  emit EditorCame(kind, control);
}

void TDeskEvents::EditorRemoved(TEditorKind /*kind*/, const forms::TControl& control) {
  emit EditorWent(control);
}

void TDeskEvents::FormShown(forms::TDialogForm& form) { emit FormCame(form); }

void TDeskEvents::FormBroughtToFront(forms::TDialogForm& form) { emit FormCalled(form); }

void TDeskEvents::FormClosed(forms::TDialogForm& form) { emit FormWent(form); }

void TDeskEvents::FormLooksChanged(forms::TDialogForm& form) { emit FormLooksDifferent(form); }

void TDeskEvents::RunModal(forms::TDialogForm& form) {
  emit ModalFormCame(form);
  // Without anybody who shows it, a question counts as answered with no.
  if (form.ModalResult() == forms::ModalNone) form.SetModalResult(forms::ModalCancel);
}

}  // namespace algo::terminal
