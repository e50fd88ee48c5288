#include "terminal/render/layout_view.h"

#include <algorithm>

#include "forms/control.h"
#include "terminal/render/qt_text.h"
#include "terminal/render/qt_toolkit.h"

namespace algo::terminal {

namespace {

constexpr int Gap = 4;

bool IsHorizontal(const forms::TLayoutGroup& group) {
  return group.Direction() == forms::TDirection::Horizontal;
}

const forms::TLayoutGroup* AsGroup(const forms::TLayoutElement* element) {
  return dynamic_cast<const forms::TLayoutGroup*>(element);
}

/// Visible itself, and of an item its control too.
bool IsOwnVisible(const forms::TLayoutElement& element) {
  const auto* item = dynamic_cast<const forms::TLayoutItem*>(&element);
  return element.Visible() && (item == nullptr || item->Control().Visible());
}

/// Whether anything below the element is to be seen, so that an empty group takes no room.
bool HasContent(const forms::TLayoutElement& element) {
  if (!IsOwnVisible(element)) return false;
  const auto* group = AsGroup(&element);
  if (group == nullptr) return true;
  return std::any_of(group->Children().begin(), group->Children().end(),
                     [](const forms::TLayoutElement* child) { return HasContent(*child); });
}

/// How much of the room that is left over the child takes: beside others all but the boxes widen, below
/// others none grows.
int StretchOf(const forms::TLayoutElement& child, const forms::TLayoutGroup& group) {
  const auto* item = dynamic_cast<const forms::TLayoutItem*>(&child);
  const bool isBox = item != nullptr && item->Control().Kind() == forms::TControlKind::Check;
  return IsHorizontal(group) && !isBox ? 1 : 0;
}

void ShowCaption(QLabel& label, const forms::TLayoutElement& element, bool heading) {
  const QString caption = ToQt(element.Caption());
  if (label.text() != caption) label.setText(caption);
  forms::TFont font = element.Font();
  font.bold = font.bold || heading;
  const QFont chosen = DesktopFont(font);
  if (label.font() != chosen) label.setFont(chosen);
  label.setVisible(!caption.isEmpty());
}

}  // namespace

TLayoutView::TLayoutView(const forms::TLayoutControl& layout, QWidget& parent, const TMakeControl& make)
    : FLayout(layout) {
  auto* columns = new QHBoxLayout(&parent);
  columns->setContentsMargins(Gap, Gap, Gap, Gap);
  columns->setSpacing(2 * Gap);
  for (const forms::TLayoutGroup* top : layout.TopGroups()) {
    Build(*top, parent, make);
    // The room below a short column is left free.
    columns->addWidget(FViews[top].whole, 1, Qt::AlignTop);
  }
}

void TLayoutView::Build(const forms::TLayoutElement& element, QWidget& parent, const TMakeControl& make) {
  TElementView& view = FViews[&element];
  view.whole = new QWidget(&parent);
  view.whole->setObjectName(ToQt(element.Name()));
  view.caption = new QLabel(view.whole);
  view.caption->setTextFormat(Qt::PlainText);
  if (const auto* group = AsGroup(&element)) {
    BuildGroup(*group, view, make);
  } else {
    BuildItem(static_cast<const forms::TLayoutItem&>(element), view, make);
  }
}

void TLayoutView::BuildGroup(const forms::TLayoutGroup& group, TElementView& view, const TMakeControl& make) {
  auto* outer = new QVBoxLayout(view.whole);
  outer->setContentsMargins(0, 0, 0, 0);
  outer->setSpacing(Gap / 2);
  outer->addWidget(view.caption);
  view.body = new QBoxLayout(IsHorizontal(group) ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  view.body->setSpacing(Gap);
  outer->addLayout(view.body);
  QWidget& whole = *view.whole;
  for (const forms::TLayoutElement* child : group.Children()) Build(*child, whole, make);
}

void TLayoutView::BuildItem(const forms::TLayoutItem& item, TElementView& view, const TMakeControl& make) {
  auto* row = new QHBoxLayout(view.whole);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(Gap);
  row->addWidget(view.caption);
  QWidget& control = make(item.Control(), *view.whole);
  row->addWidget(&control, 1);
  view.caption->setBuddy(&control);
}

void TLayoutView::Sync() {
  for (const auto& element : FLayout.Elements()) {
    if (const auto* group = AsGroup(element.get())) Place(*group);
    ShowElement(*element);
  }
  for (const forms::TLayoutGroup* top : FLayout.TopGroups()) AlignCaptions(*top);
}

void TLayoutView::Place(const forms::TLayoutGroup& group) {
  TElementView& view = FViews.at(&group);
  int place = 0;
  for (const forms::TLayoutElement* child : group.Children()) {
    QWidget* widget = FViews.at(child).whole;
    const QLayoutItem* there = view.body->itemAt(place);
    if (there == nullptr || there->widget() != widget) {
      // Taken out of wherever it stood; a widget that changes its parent is hidden by Qt, ShowElement
      // follows.
      widget->setParent(view.whole);
      view.body->insertWidget(place, widget, StretchOf(*child, group));
    }
    ++place;
  }
}

void TLayoutView::ShowElement(const forms::TLayoutElement& element) {
  const TElementView& view = FViews.at(&element);
  const auto* group = AsGroup(&element);
  ShowCaption(*view.caption, element, group != nullptr);
  view.whole->setVisible(HasContent(element));
}

void TLayoutView::AlignCaptions(const forms::TLayoutGroup& top) {
  std::vector<QLabel*> captions;
  CollectCaptions(top, captions);
  int width = 0;
  for (const QLabel* caption : captions) width = std::max(width, caption->sizeHint().width());
  for (QLabel* caption : captions) caption->setMinimumWidth(width);
}

void TLayoutView::CollectCaptions(const forms::TLayoutGroup& group, std::vector<QLabel*>& captions) const {
  bool first = true;
  for (const forms::TLayoutElement* child : group.Children()) {
    if (!HasContent(*child)) continue;
    if (const auto* inner = AsGroup(child)) {
      CollectCaptions(*inner, captions);
    } else if ((first || !IsHorizontal(group)) && !child->Caption().empty()) {
      // Only what stands at the left edge of the column lines up with the others.
      captions.push_back(FViews.at(child).caption);
    }
    first = false;
  }
}

}  // namespace algo::terminal
