#include "terminal/render/frame_view.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPointer>
#include <QVBoxLayout>
#include <utility>

#include "terminal/render/completion_list.h"

namespace algo::terminal::render {

namespace {

forms::TFocusCause CauseOf(const QFocusEvent& event) {
  const bool byKey = event.reason() == Qt::TabFocusReason || event.reason() == Qt::BacktabFocusReason;
  return byKey ? forms::TFocusCause::Tab : forms::TFocusCause::Other;
}

/// Lays out everything below the widget, innermost first: by itself Qt works its way up an event at a time,
/// and each would be painted.
void Settle(QWidget& widget) {
  for (QObject* child : widget.children()) {
    if (child->isWidgetType()) Settle(static_cast<QWidget&>(*child));
  }
  if (widget.layout() != nullptr) widget.layout()->activate();
}

}  // namespace

TFrameView::TFrameView(const std::shared_ptr<forms::TFrame>& frame, const TEditorAssist& assist,
                       QWidget* parent)
    : QWidget(parent), FInput(frame), FAssist(assist), FContent(new QWidget(this)) {
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(0, 0, 0, 0);
  whole->addWidget(FContent, 0, Qt::AlignTop);
  whole->addStretch(1);
  FLayout = std::make_unique<TLayoutView>(
      frame->Layout(), *FContent,
      [this](forms::TControl& control, QWidget& item) -> QWidget& { return MakeControl(control, item); });
  ShowAll(*frame);
  frame->AddObserver(*this);
  connect(qApp, &QApplication::focusChanged, this, &TFrameView::DesktopFocusChanged);
}

TFrameView::~TFrameView() {
  // Widgets that are destroyed with the view lose the focus, which must not reach the frame.
  disconnect(qApp, nullptr, this, nullptr);
  if (const auto frame = FInput.Frame()) frame->RemoveObserver(*this);
}

void TFrameView::FocusFirst() {
  const auto frame = FInput.Frame();
  if (!frame) return;
  constexpr auto Forward = forms::TTabDirection::Forward;
  forms::TControl* first = frame->Layout().NextInTabOrder(nullptr, Forward);
  while (first != nullptr && first->ReadOnly()) first = frame->Layout().NextInTabOrder(first, Forward);
  if (first != nullptr) FInput.Focus(*first, forms::TFocusCause::Other);
}

TControlView* TFrameView::Find(const forms::TControl& control) const {
  const auto found = FViews.find(&control);
  return found == FViews.end() ? nullptr : found->second.get();
}

QWidget& TFrameView::MakeControl(forms::TControl& control, QWidget& parent) {
  auto view = MakeControlView(control, FInput, FAssist, parent);
  QWidget& widget = view->Widget();
  view->Input().installEventFilter(this);
  FByInput.emplace(&view->Input(), view.get());
  // The line inside a spin box gets the mouse events in its place.
  if (auto* line = view->Input().findChild<QLineEdit*>()) {
    line->installEventFilter(this);
    FByInput.emplace(line, view.get());
  }
  view->Refresh();
  FViews.emplace(&control, std::move(view));
  return widget;
}

void TFrameView::ChainTabs(const forms::TFrame& frame) {
  std::vector<QWidget*> chain;
  for (const forms::TControl* control : frame.Layout().TabOrder()) {
    if (const TControlView* view = Find(*control)) chain.push_back(&view->Input());
  }
  if (FTabChain == chain) return;
  FTabChain = std::move(chain);
  for (std::size_t i = 1; i < FTabChain.size(); ++i) setTabOrder(FTabChain[i - 1], FTabChain[i]);
}

void TFrameView::ShowAll(const forms::TFrame& frame) {
  for (const auto& [control, view] : FViews) view->Refresh();
  FLayout->Sync();
  ChainTabs(frame);
  ShowNames(frame);
}

void TFrameView::ShowNames(const forms::TFrame& frame) {
  for (const auto& control : frame.Controls()) {
    const TControlView* view = Find(*control);
    if (view == nullptr) continue;
    const std::string& item = control->Item()->Caption();
    const std::string& own = control->Caption().empty() ? item : control->Caption();
    const std::string& hint = control->Hint();
    // A screen reader reads the caption; a lock box has none, but a hint.
    const QString name = ToQt(!own.empty() ? own : !hint.empty() ? hint : control->Name());
    if (view->Input().accessibleName() != name) view->Input().setAccessibleName(name);
    if (view->Input().accessibleDescription() != ToQt(hint)) {
      view->Input().setAccessibleDescription(ToQt(hint));
    }
  }
}

void TFrameView::ControlChanged(const forms::TControl& control) {
  if (TControlView* view = Find(control)) Draw([view] { view->Refresh(); });
}

void TFrameView::LayoutChanged() {
  const auto frame = FInput.Frame();
  if (!frame) return;
  // Everything is repainted once, when the layout is final.
  setUpdatesEnabled(false);
  Draw([&] { ShowAll(*frame); });
  Settle(*this);
  setUpdatesEnabled(true);
}

template <class TStep>
void TFrameView::Draw(TStep&& step) {
  const QPointer<QWidget> before = QApplication::focusWidget();
  const bool outer = std::exchange(FDrawing, true);
  step();
  FDrawing = outer;
  if (FDrawing) return;
  // The desktop hands the focus of a widget that is hidden or disabled on to the next one by itself; the
  // widget gets it back, at the latest when it can have it again.
  if (QApplication::focusWidget() != before) FFocusAstray = true;
  if (!FFocusAstray) return;
  FocusChanged();
  const auto frame = FInput.Frame();
  const TControlView* view = frame && frame->Focused() != nullptr ? Find(*frame->Focused()) : nullptr;
  FFocusAstray = view != nullptr && !view->Input().hasFocus();
}

void TFrameView::FocusChanged() {
  const auto frame = FInput.Frame();
  if (!frame) return;
  if (const forms::TControl* focused = frame->Focused()) {
    const TControlView* view = Find(*focused);
    if (view != nullptr && !view->Input().hasFocus()) view->Input().setFocus(Qt::OtherFocusReason);
  } else if (QWidget* holder = QApplication::focusWidget(); holder != nullptr && isAncestorOf(holder)) {
    holder->clearFocus();
  }
}

void TFrameView::FrameDestroyed() {
  for (const auto& [input, view] : FByInput) const_cast<QObject*>(input)->removeEventFilter(this);
  FByInput.clear();
  FViews.clear();
  FLayout.reset();
  // Even a weak pointer refers to code of the module that created the frame, which may be unloaded now.
  FInput.Release();
  // The widgets cannot be deleted here, since one of them may be handling an event.
  FContent->hide();
  FContent->setEnabled(false);
}

void TFrameView::DesktopFocusChanged(QWidget* before, QWidget* now) {
  const auto frame = FInput.Frame();
  if (!frame || FDrawing) return;
  if (now != nullptr) FFocusAstray = false;
  if (now != nullptr && isAncestorOf(now)) {
    if (TControlView* view = ViewOf(now); view != nullptr && frame->Focused() != &view->Control()) {
      FInput.Focus(view->Control(), FFocusCause);
    }
    return;
  }
  // Without a focus widget another program has the focus, and another window may be a dialog of this form: in
  // both cases the form keeps its focus.
  const bool wasHere = before != nullptr && isAncestorOf(before);
  if (wasHere && now != nullptr && now->window() == window() && frame->Focused() != nullptr) FInput.Leave();
}

TControlView* TFrameView::ViewOf(const QObject* watched) const {
  const auto found = FByInput.find(watched);
  return found == FByInput.end() ? nullptr : found->second;
}

bool TFrameView::eventFilter(QObject* watched, QEvent* event) {
  TControlView* view = FInput.Frame() ? ViewOf(watched) : nullptr;
  if (view == nullptr) return false;
  if (event->type() == QEvent::FocusIn) FFocusCause = CauseOf(static_cast<const QFocusEvent&>(*event));
  if (event->type() == QEvent::KeyPress) return FilterKey(*view, *event);
  if (watched->isWidgetType()) FilterMouse(*view, *event);
  return false;
}

bool TFrameView::FilterKey(TControlView& view, const QEvent& event) {
  const auto& key = static_cast<const QKeyEvent&>(event);
  const bool isEnter = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter;
  // From here on it is for the keys to say what of the line is selected.
  if (auto* editor = dynamic_cast<forms::TEditor*>(&view.Control()); editor != nullptr && !isEnter) {
    editor->MoveCaretToEnd();
  }
  if (!isEnter || (key.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier) return false;
  if (auto* line = qobject_cast<QLineEdit*>(&view.Input()); line != nullptr && EnterMeansCompletion(*line)) {
    return false;
  }
  FInput.Enter(view.Control());
  return true;
}

void TFrameView::FilterMouse(TControlView& view, const QEvent& event) {
  const auto* mouse = dynamic_cast<const QMouseEvent*>(&event);
  if (mouse == nullptr || mouse->button() != Qt::LeftButton) return;
  auto* editor = dynamic_cast<forms::TEditor*>(&view.Control());
  if (event.type() == QEvent::MouseButtonPress) {
    // Buttons send their click themselves, on release.
    const bool isCombo = view.Control().Kind() == forms::TControlKind::Combo;
    if (editor != nullptr || isCombo) FInput.Click(view.Control());
  } else if (event.type() == QEvent::MouseButtonRelease && editor != nullptr) {
    // The press put the caret where the mouse is; restore what the click selected.
    if (!editor->SelectedText().empty()) view.Refresh();
  }
}

}  // namespace algo::terminal::render
