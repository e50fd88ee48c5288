// The order in which Tab goes through a form, which is that of its layout.

#include <algorithm>

#include "forms/control.h"
#include "forms/layout.h"

namespace algo::forms {

namespace {

void AddControlsOf(const TLayoutElement& element, std::vector<TControl*>& controls) {
  if (const auto* group = dynamic_cast<const TLayoutGroup*>(&element)) {
    for (const TLayoutElement* child : group->Children()) AddControlsOf(*child, controls);
  } else {
    controls.push_back(&static_cast<const TLayoutItem&>(element).Control());
  }
}

}  // namespace

std::vector<TControl*> TLayoutControl::TabOrder() const {
  std::vector<TControl*> controls;
  for (const TLayoutGroup* group : FTopGroups) AddControlsOf(*group, controls);
  return controls;
}

TControl* TLayoutControl::NextInTabOrder(const TControl* control, TTabDirection direction) const {
  std::vector<TControl*> order = TabOrder();
  if (direction == TTabDirection::Backward) std::ranges::reverse(order);
  auto next = order.begin();
  if (control != nullptr) {
    next = std::ranges::find(order, control);
    if (next != order.end()) ++next;
  }
  const auto found = std::find_if(next, order.end(), [](const TControl* each) { return each->CanFocus(); });
  return found == order.end() ? nullptr : *found;
}

}  // namespace algo::forms
