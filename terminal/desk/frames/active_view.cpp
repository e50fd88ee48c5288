#include "terminal/desk/frames/active_view.h"

#include <QApplication>
#include <QDialog>
#include <utility>

namespace algo::terminal::desk::frames {

namespace {

/// The nearest of that kind around the widget, or the widget itself; nullptr when there is none.
template <class TKind>
TKind* Around(QWidget* widget) {
  for (; widget != nullptr; widget = widget->parentWidget()) {
    if (auto* found = qobject_cast<TKind*>(widget)) return found;
  }
  return nullptr;
}

}  // namespace

TActiveView::TActiveView(TDesk& desk) : FDesk(desk) {
  connect(qApp, &QApplication::focusChanged, this, &TActiveView::FocusChanged);
}

void TActiveView::Leave(const TEntryPanel& panel) {
  if (FPanel == &panel) Activate(nullptr);
}

void TActiveView::FocusChanged(QWidget* /*before*/, QWidget* now) {
  // Were a message about the view's own failure to count, closing the message would lead to the next one.
  if (now == nullptr || Around<QDialog>(now) != nullptr) return;
  auto* panel = Around<TEntryPanel>(now);
  // Widgets of a panel that closes pass the focus on to each other as they go.
  Activate(panel != nullptr && panel->IsOpen() ? panel : nullptr);
}

void TActiveView::Activate(TEntryPanel* panel) {
  if (FPanel == panel) return;
  const TEntryPanel* former = std::exchange(FPanel, panel);
  if (former != nullptr) FDesk.Provider().DeactiveView(former->Instance());
  // The former view may have moved the focus on, or closed the panel.
  if (panel != nullptr && FPanel == panel) FDesk.Provider().ActiveView(panel->Instance());
  emit Changed();
}

}  // namespace algo::terminal::desk::frames
