#include "forms/layout.h"

#include <algorithm>
#include <cassert>
#include <utility>

#include "forms/frame.h"

namespace algo::forms {

TLayoutControl::TLayoutControl(std::string name) : FName(std::move(name)) {}

TLayoutControl::~TLayoutControl() = default;

TLayoutGroup& TLayoutControl::AddGroup(std::string name, TLayoutGroup* parent, TDirection direction) {
  assert(Find(name) == nullptr);
  auto made = std::make_unique<TLayoutGroup>(*this, std::move(name), direction);
  TLayoutGroup& group = *made;
  FElements.push_back(std::move(made));
  if (parent == nullptr) {
    FTopGroups.push_back(&group);
  } else {
    Move(group, *parent);
  }
  return group;
}

TLayoutItem& TLayoutControl::AddItem(std::string name, TLayoutGroup& parent, TControl& control) {
  assert(Find(name) == nullptr);
  auto made = std::make_unique<TLayoutItem>(*this, std::move(name), control);
  TLayoutItem& item = *made;
  FElements.push_back(std::move(made));
  control.FItem = &item;
  Move(item, parent);
  return item;
}

TCaptionStyle& TLayoutControl::AddStyle(std::string name) {
  return *FStyles.emplace_back(std::make_unique<TCaptionStyle>(*this, std::move(name)));
}

void TLayoutControl::Move(TLayoutElement& element, TLayoutGroup& parent) {
  if (element.FParent != nullptr) {
    std::erase(element.FParent->FChildren, &element);
  } else {
    std::erase(FTopGroups, &element);
  }
  element.FParent = &parent;
  parent.FChildren.push_back(&element);
  Changed();
}

TLayoutElement* TLayoutControl::Find(std::string_view name) const {
  const auto found = std::find_if(FElements.begin(), FElements.end(),
                                  [name](const auto& element) { return element->Name() == name; });
  return found == FElements.end() ? nullptr : found->get();
}

std::size_t TLayoutControl::Position(const TLayoutElement& element) const {
  if (element.FParent == nullptr) {
    return static_cast<std::size_t>(std::find(FTopGroups.begin(), FTopGroups.end(), &element) -
                                    FTopGroups.begin());
  }
  const auto& siblings = element.FParent->FChildren;
  return static_cast<std::size_t>(std::find(siblings.begin(), siblings.end(), &element) - siblings.begin());
}

void TLayoutControl::BeginUpdate() { ++FUpdateDepth; }

void TLayoutControl::EndUpdate() {
  assert(FUpdateDepth > 0);
  // Still inside the update, so that what the leaving changes is drawn along with the rest.
  if (FUpdateDepth == 1 && FFrame != nullptr) FFrame->LeaveUnfocusable();
  if (--FUpdateDepth > 0 || !std::exchange(FChangePending, false)) return;
  if (FFrame != nullptr) FFrame->NotifyLayoutChanged();
}

void TLayoutControl::Changed() {
  FChangePending = true;
  if (FUpdateDepth > 0) return;
  BeginUpdate();
  EndUpdate();
}

}  // namespace algo::forms
