#include "terminal/render/layout_view.h"

#include <algorithm>

#include "forms/control.h"
#include "terminal/render/qt_text.h"
#include "terminal/render/qt_toolkit.h"

namespace algo::terminal::render {

namespace {

constexpr int Gap = 4;

bool IsHorizontal(const forms::TLayoutGroup& group) {
  return group.Direction() == forms::TDirection::Horizontal;
}

const forms::TLayoutGroup* AsGroup(const forms::TLayoutElement* element) {
  return dynamic_cast<const forms::TLayoutGroup*>(element);
}

/// Whether the element itself is visible, and if it is an item, its control too.
bool IsOwnVisible(const forms::TLayoutElement& element) {
  const auto* item = dynamic_cast<const forms::TLayoutItem*>(&element);
  return element.Visible() && (item == nullptr || item->Control().Visible());
}

/// Whether anything below the element is visible; an empty group takes no room.
bool HasContent(const forms::TLayoutElement& element) {
  if (!IsOwnVisible(element)) return false;
  const auto* group = AsGroup(&element);
  if (group == nullptr) return true;
  return std::any_of(group->Children().begin(), group->Children().end(),
                     [](const forms::TLayoutElement* child) { return HasContent(*child); });
}

/// The stretch factor of the child: in a row all but check boxes grow, in a column none does.
int StretchOf(const forms::TLayoutElement& child, const forms::TLayoutGroup& group) {
  const auto* item = dynamic_cast<const forms::TLayoutItem*>(&child);
  const bool isBox = item != nullptr && item->Control().Kind() == forms::TControlKind::Check;
  return IsHorizontal(group) && !isBox ? 1 : 0;
}

/// Whether the element is the item of a button that shows the same text itself.
bool RepeatsItsButton(const forms::TLayoutElement& element) {
  const auto* item = dynamic_cast<const forms::TLayoutItem*>(&element);
  return item != nullptr && item->Control().Kind() == forms::TControlKind::Button &&
         item->Control().Caption() == item->Caption();
}

void ShowCaption(QLabel& label, const forms::TLayoutElement& element, bool heading) {
  const QString caption = ToQt(element.Caption());
  if (label.text() != caption) label.setText(caption);
  forms::TFont font = element.Font();
  font.bold = font.bold || heading;
  const QFont chosen = DesktopFont(font);
  if (label.font() != chosen) label.setFont(chosen);
  label.setVisible(!caption.isEmpty() && !RepeatsItsButton(element));
}

}  // namespace

TLayoutView::TLayoutView(const forms::TLayoutControl& layout, QWidget& parent, TMakeControl make)
    : FLayout(layout), FParent(parent), FColumns(*new QHBoxLayout(&parent)), FMake(std::move(make)) {
  FColumns.setContentsMargins(Gap, Gap, Gap, Gap);
  FColumns.setSpacing(2 * Gap);
}

void TLayoutView::Sync() {
  int place = 0;
  for (const forms::TLayoutGroup* top : FLayout.TopGroups()) {
    SyncElement(*top, FParent);
    const auto view = FViews.find(top);
    if (view == FViews.end()) continue;
    // The room below a short column stays empty.
    if (FColumns.indexOf(view->second.whole) < 0)
      FColumns.insertWidget(place, view->second.whole, 1, Qt::AlignTop);
    AlignCaptions(*top);
    ++place;
  }
}

void TLayoutView::SyncElement(const forms::TLayoutElement& element, QWidget& parent) {
  const bool hasContent = HasContent(element);
  const auto found = FViews.find(&element);
  if (found == FViews.end() && !hasContent) return;
  const auto* group = AsGroup(&element);
  // A copy, because creating the children may rehash the table.
  const TElementView view = found == FViews.end() ? Build(element, parent) : found->second;
  if (group != nullptr) SyncChildren(*group);
  ShowCaption(*view.caption, element, group != nullptr);
  view.whole->setVisible(hasContent);
}

void TLayoutView::SyncChildren(const forms::TLayoutGroup& group) {
  const TElementView view = FViews.at(&group);
  int place = 0;
  for (const forms::TLayoutElement* child : group.Children()) {
    SyncElement(*child, *view.whole);
    const auto found = FViews.find(child);
    if (found == FViews.end()) continue;
    QWidget* widget = found->second.whole;
    const QLayoutItem* there = view.body->itemAt(place);
    if (there == nullptr || there->widget() != widget) {
      // Moved from wherever it was; Qt hides a widget that changes its parent.
      const bool hidden = widget->isHidden();
      widget->setParent(view.whole);
      view.body->insertWidget(place, widget, StretchOf(*child, group));
      widget->setHidden(hidden);
    }
    ++place;
  }
}

TLayoutView::TElementView& TLayoutView::Build(const forms::TLayoutElement& element, QWidget& parent) {
  TElementView& view = FViews[&element];
  view.whole = new QWidget(&parent);
  view.whole->setObjectName(ToQt(element.Name()));
  view.caption = new QLabel(view.whole);
  view.caption->setTextFormat(Qt::PlainText);
  if (const auto* group = AsGroup(&element)) {
    BuildGroup(*group, view);
  } else {
    BuildItem(static_cast<const forms::TLayoutItem&>(element), view);
  }
  return view;
}

void TLayoutView::BuildGroup(const forms::TLayoutGroup& group, TElementView& view) {
  auto* outer = new QVBoxLayout(view.whole);
  outer->setContentsMargins(0, 0, 0, 0);
  outer->setSpacing(Gap / 2);
  outer->addWidget(view.caption);
  view.body = new QBoxLayout(IsHorizontal(group) ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
  view.body->setSpacing(Gap);
  outer->addLayout(view.body);
}

void TLayoutView::BuildItem(const forms::TLayoutItem& item, TElementView& view) {
  auto* row = new QHBoxLayout(view.whole);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(Gap);
  row->addWidget(view.caption);
  QWidget& control = FMake(item.Control(), *view.whole);
  row->addWidget(&control, 1);
  view.caption->setBuddy(&control);
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
    } else if ((first || !IsHorizontal(group)) && !child->Caption().empty() && !RepeatsItsButton(*child)) {
      // Only captions at the left edge of the column line up.
      captions.push_back(FViews.at(child).caption);
    }
    first = false;
  }
}

}  // namespace algo::terminal::render
