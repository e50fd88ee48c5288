#include "plugin/host_contract/checks/strict_provider.h"

#include <algorithm>

namespace algo::host::checks {

namespace {

template <class TItems, class TField>
bool Lists(const TItems& items, TField field, std::int32_t value) {
  return std::any_of(items.begin(), items.end(), [&](const auto& item) { return item.*field == value; });
}

}  // namespace

TInstanceHandle TStrictProvider::OpenNewInstance() {
  const std::weak_ptr alive(FAlive);
  const TInstanceHandle instance = FInner->OpenNewInstance();
  if (alive.expired()) return 0;
  FViolations.Require(instance == 0 || FInner->ContainView(instance),
                      "a provider gives the handle of an instance that it does not have");
  return instance;
}

void TStrictProvider::HandleCaptionButtonClick(TInstanceHandle instance, std::int32_t button) {
  TIBaseView& inner = Opened(instance, "HandleCaptionButtonClick");
  FViolations.Require(Lists(inner.GetViewCaptionButtons(instance), &TCaptionButton::id, button),
                      "a caption button is clicked that the instance does not have");
  inner.HandleCaptionButtonClick(instance, button);
}

std::vector<TShortcut> TStrictProvider::GetShortCutList() {
  FViolations.Require(FShortcutsMade, "the shortcuts are asked for before InitializeShortcut");
  return FInner->GetShortCutList();
}

bool TStrictProvider::ExecuteShortcutAction(TInstanceHandle instance, std::int32_t action) {
  TIBaseView& inner = Opened(instance, "ExecuteShortcutAction");
  FViolations.Require(FShortcutsMade && Lists(inner.GetShortCutList(), &TShortcut::action, action),
                      "a shortcut is executed that the provider does not have");
  return inner.ExecuteShortcutAction(instance, action);
}

bool TStrictProvider::SetLanguage(TInstanceHandle instance, std::int32_t language) {
  return (instance == 0 ? *FInner : Opened(instance, "SetLanguage")).SetLanguage(instance, language);
}

void TStrictProvider::InitializeShortcut() {
  FViolations.Require(!FShortcutsMade, "InitializeShortcut is called twice");
  FInner->InitializeShortcut();
  FShortcutsMade = true;
}

TIBaseView& TStrictProvider::Opened(TInstanceHandle instance, const char* operation) const {
  if (!FInner->ContainView(instance)) {
    FViolations.Report(std::string(operation) + " is called for an instance that is not open");
  }
  return *FInner;
}

}  // namespace algo::host::checks
