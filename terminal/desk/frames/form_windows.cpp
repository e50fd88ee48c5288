#include "terminal/desk/frames/form_windows.h"

#include <QAbstractEventDispatcher>
#include <QEventLoop>
#include <algorithm>

namespace algo::terminal::desk::frames {

TFormWindows::TFormWindows(TDeskEvents& events, const render::TEditorAssist& assist, QWidget& parent)
    : FEvents(events), FAssist(assist), FParent(parent) {
  connect(&events, &TDeskEvents::ModalFormShown, this,
          [this](forms::TDialogForm& form) { FEvents.Guard([&] { RunModal(form); }); });
  connect(&events, &TDeskEvents::FormShown, this, &TFormWindows::Show);
  connect(&events, &TDeskEvents::FormClosed, this, &TFormWindows::Remove);
  connect(&events, &TDeskEvents::FormBroughtToFront, this, [this](forms::TDialogForm& form) {
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
  connect(&events, &TDeskEvents::FormAppearanceChanged, this, [this](forms::TDialogForm& form) {
    if (TFormWindow* window = Find(form)) window->Refresh();
  });
}

TFormWindows::~TFormWindows() {
  for (const auto& window : FOthers) delete window.data();
}

void TFormWindows::CancelModal() {
  for (const auto& [form, window] : FModal) form->SetModalResult(forms::ModalCancel);
}

void TFormWindows::CloseOthers() {
  // A copy: a window that closes leaves the list.
  for (const auto& window : std::vector(FOthers)) {
    if (window) window->close();
  }
}

void TFormWindows::RunModal(forms::TDialogForm& form) {
  TFormWindow window(form, FEvents, FAssist, FModal.empty() ? &FParent : FModal.back().second);
  window.setWindowModality(Qt::ApplicationModal);
  FModal.emplace_back(&form, &window);
  window.show();
  // Any event may answer the form, so its result is read whenever no event is left.
  QEventLoop loop;
  connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, &loop, [&] {
    if (form.ModalResult() != forms::ModalNone) loop.quit();
  });
  loop.exec();
  FModal.pop_back();
  if (FModal.empty()) emit ModalFormsClosed();
}

void TFormWindows::Show(forms::TDialogForm& form) {
  if (TFormWindow* window = Find(form)) return window->show();
  auto* window = new TFormWindow(form, FEvents, FAssist, &FParent);
  FOthers.emplace_back(window);
  window->show();
}

void TFormWindows::Remove(forms::TDialogForm& form) {
  TFormWindow* window = Find(form);
  std::erase(FOthers, window);
  if (window == nullptr) return;
  // Hidden at once, but deleted only after the event that led here.
  window->hide();
  window->deleteLater();
}

TFormWindow* TFormWindows::Find(const forms::TDialogForm& form) const {
  for (const auto& [modal, window] : FModal) {
    if (modal == &form) return window;
  }
  const auto found = std::find_if(FOthers.begin(), FOthers.end(),
                                  [&form](const auto& window) { return window && window->Shows(form); });
  return found == FOthers.end() ? nullptr : found->data();
}

}  // namespace algo::terminal::desk::frames
