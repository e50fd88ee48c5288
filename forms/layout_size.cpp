// The content size of a layout: what every visible element needs, added up along the direction of each group.

#include <algorithm>

#include "forms/control.h"
#include "forms/layout.h"

namespace algo::forms {

namespace {

constexpr double Gap = 4;

TSize CaptionSize(const TLayoutElement& element) {
  if (element.Caption().empty()) return {};
  return TToolkit::Current().MeasureText(element.Caption(), element.Font());
}

bool TakesRoom(const TSize& size) { return size.width > 0 || size.height > 0; }

TSize ItemSize(const TLayoutItem& item) {
  if (!item.Control().Visible()) return {};
  const TSize caption = CaptionSize(item);
  const TSize control = item.Control().Size();
  const double captionRoom = TakesRoom(caption) ? caption.width + Gap : 0;
  return {captionRoom + control.width, std::max(caption.height, control.height)};
}

TSize ElementSize(const TLayoutElement& element);

TSize GroupSize(const TLayoutGroup& group) {
  TSize total;
  for (const TLayoutElement* child : group.Children()) {
    const TSize size = ElementSize(*child);
    if (!TakesRoom(size)) continue;
    if (group.Direction() == TDirection::Vertical) {
      total.width = std::max(total.width, size.width);
      total.height += size.height + Gap;
    } else {
      total.width += size.width + Gap;
      total.height = std::max(total.height, size.height);
    }
  }
  if (!TakesRoom(total)) return {};
  const TSize caption = CaptionSize(group);
  return {std::max(total.width, caption.width) + 2 * Gap, total.height + caption.height + 2 * Gap};
}

TSize ElementSize(const TLayoutElement& element) {
  if (!element.Visible()) return {};
  if (const auto* group = dynamic_cast<const TLayoutGroup*>(&element)) return GroupSize(*group);
  return ItemSize(static_cast<const TLayoutItem&>(element));
}

}  // namespace

TSize TLayoutControl::ContentSize() const {
  TSize total;
  for (const TLayoutGroup* group : FTopGroups) {
    const TSize size = ElementSize(*group);
    total.width += size.width;
    total.height = std::max(total.height, size.height);
  }
  return total;
}

}  // namespace algo::forms
