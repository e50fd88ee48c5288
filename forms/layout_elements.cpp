#include "forms/layout_elements.h"

#include <utility>

#include "forms/layout.h"

namespace algo::forms {

TCaptionStyle::TCaptionStyle(TLayoutControl& layout, std::string name)
    : FLayout(layout), FName(std::move(name)) {}

void TCaptionStyle::SetBold(bool bold) {
  if (FFont.bold == bold) return;
  FFont.bold = bold;
  FLayout.Changed();
}

void TCaptionStyle::SetSize(std::int32_t size) {
  if (FFont.size == size) return;
  FFont.size = size;
  FLayout.Changed();
}

TLayoutElement::TLayoutElement(TLayoutControl& layout, std::string name)
    : FLayout(layout), FName(std::move(name)) {}

TLayoutElement::~TLayoutElement() = default;

void TLayoutElement::SetVisible(bool visible) {
  if (FVisible == visible) return;
  FVisible = visible;
  FLayout.Changed();
}

void TLayoutElement::SetEnabled(bool enabled) {
  if (FEnabled == enabled) return;
  FEnabled = enabled;
  FLayout.Changed();
}

bool TLayoutElement::Showing() const {
  for (const TLayoutElement* element = this; element != nullptr; element = element->FParent) {
    if (!element->FVisible) return false;
  }
  return true;
}

bool TLayoutElement::Usable() const {
  for (const TLayoutElement* element = this; element != nullptr; element = element->FParent) {
    if (!element->FEnabled) return false;
  }
  return true;
}

void TLayoutElement::SetCaption(std::string caption) {
  if (FCaption == caption) return;
  FCaption = std::move(caption);
  FLayout.Changed();
}

const TFont& TLayoutElement::Font() const {
  static const TFont plain;
  return FStyle != nullptr ? FStyle->Font() : plain;
}

void TLayoutElement::SetStyle(const TCaptionStyle* style) {
  if (FStyle == style) return;
  FStyle = style;
  FLayout.Changed();
}

TLayoutGroup::TLayoutGroup(TLayoutControl& layout, std::string name, TDirection direction)
    : TLayoutElement(layout, std::move(name)), FDirection(direction) {}

TLayoutGroup::~TLayoutGroup() = default;

TLayoutItem::TLayoutItem(TLayoutControl& layout, std::string name, TControl& control)
    : TLayoutElement(layout, std::move(name)), FControl(control) {}

TLayoutItem::~TLayoutItem() = default;

}  // namespace algo::forms
