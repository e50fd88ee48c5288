#include "terminal/desk/form_windows.h"

#include <QAbstractEventDispatcher>
#include <QEventLoop>
#include <algorithm>

namespace algo::terminal {

TFormWindows::TFormWindows(TDeskEvents& events, const TEditorAssist& aids, QWidget& parent)
    : FEvents(events), FAids(aids), FParent(parent) {
  connect(&events, &TDeskEvents::ModalFormCame, this,
          [this](forms::TDialogForm& form) { FEvents.Guard([&] { RunModal(form); }); });
  connect(&events, &TDeskEvents::FormCame, this, &TFormWindows::Show);
  connect(&events, &TDeskEvents::FormWent, this, &TFormWindows::Remove);
  connect(&events, &TDeskEvents::FormCalled, this, [this](forms::TDialogForm& form) {
    TFormWindow* window = Find(form);
    if (window == nullptr) return;
    window->showNormal();
    window->raise();
    window->activateWindow();
  });
  connect(&events, &TDeskEvents::ViewChanged, this, [this](const host::TViewFrame& frame) {
    for (const auto& [form, window] : FModal) window->Fit(frame);
    for (const auto& window : FOthers) {
      if (window) window->Fit(frame);
    }
  });
  connect(&events, &TDeskEvents::FormLooksDifferent, this, [this](forms::TDialogForm& form) {
    if (TFormWindow* window = Find(form)) window->Refresh();
  });
}

TFormWindows::~TFormWindows() {
  for (const auto& window : FOthers) delete window.data();
}

void TFormWindows::DismissModal() {
  for (const auto& [form, window] : FModal) form->SetModalResult(forms::ModalCancel);
}

void TFormWindows::CloseOthers() {
  // A copy: what closes leaves the list.
  for (const auto& window : std::vector(FOthers)) {
    if (window) window->close();
  }
}

void TFormWindows::RunModal(forms::TDialogForm& form) {
  TFormWindow window(form, FEvents, FAids, FModal.empty() ? &FParent : FModal.back().second);
  window.setWindowModality(Qt::ApplicationModal);
  FModal.emplace_back(&form, &window);
  window.show();
  // Whatever happens may answer the form, so it is looked at whenever nothing is left to be done.
  QEventLoop loop;
  connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, &loop, [&] {
    if (form.ModalResult() != forms::ModalNone) loop.quit();
  });
  loop.exec();
  FModal.pop_back();
  if (FModal.empty()) emit ModalFormsGone();
}

void TFormWindows::Show(forms::TDialogForm& form) {
  if (TFormWindow* window = Find(form)) return window->show();
  auto* window = new TFormWindow(form, FEvents, FAids, &FParent);
  FOthers.emplace_back(window);
  window->show();
}

void TFormWindows::Remove(forms::TDialogForm& form) {
  TFormWindow* window = Find(form);
  std::erase(FOthers, window);
  if (window == nullptr) return;
  // Out of sight at once, but in memory until the event that led here is over.
  window->hide();
  window->deleteLater();
}

TFormWindow* TFormWindows::Find(const forms::TDialogForm& form) const {
  for (const auto& [modal, window] : FModal) {
    if (modal == &form) return window;
  }
  const auto found = std::find_if(FOthers.begin(), FOthers.end(),
                                  [&form](const auto& window) { return window && window->IsOf(form); });
  return found == FOthers.end() ? nullptr : found->data();
}

}  // namespace algo::terminal
