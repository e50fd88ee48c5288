#include "plugin/host_contract/checks/strict_editors.h"

namespace algo::host::checks {

void TStrictEditors::RegisterAccountEditor(forms::TTextEdit& control, std::string_view groupId,
                                           std::int32_t mode, std::int32_t options) {
  RequireLookUp(mode, options);
  Register(TKind::Account, control, [&] { FInner.RegisterAccountEditor(control, groupId, mode, options); });
}

void TStrictEditors::RegisterSymbolEditor(forms::TTextEdit& control, std::string_view groupId,
                                          std::int32_t mode, std::int32_t options) {
  RequireLookUp(mode, options);
  Register(TKind::Symbol, control, [&] { FInner.RegisterSymbolEditor(control, groupId, mode, options); });
}

void TStrictEditors::RegisterPriceEditor(forms::TSpinEdit& control, std::string_view groupId) {
  Register(TKind::Price, control, [&] { FInner.RegisterPriceEditor(control, groupId); });
}

void TStrictEditors::RegisterQuantityEditor(forms::TSpinEdit& control, std::string_view groupId) {
  Register(TKind::Quantity, control, [&] { FInner.RegisterQuantityEditor(control, groupId); });
}

void TStrictEditors::RemoveAccountEditor(forms::TTextEdit& control) {
  Remove(TKind::Account, control, [&] { FInner.RemoveAccountEditor(control); });
}

void TStrictEditors::RemoveSymbolEditor(forms::TTextEdit& control) {
  Remove(TKind::Symbol, control, [&] { FInner.RemoveSymbolEditor(control); });
}

void TStrictEditors::RemovePriceEditor(forms::TSpinEdit& control) {
  Remove(TKind::Price, control, [&] { FInner.RemovePriceEditor(control); });
}

void TStrictEditors::RemoveQuantityEditor(forms::TSpinEdit& control) {
  Remove(TKind::Quantity, control, [&] { FInner.RemoveQuantityEditor(control); });
}

void TStrictEditors::SetPriceSymbol(forms::TSpinEdit& control, std::string_view symbol) {
  RequireRegistered(TKind::Price, control);
  FInner.SetPriceSymbol(control, symbol);
}

void TStrictEditors::SetQuantitySymbol(forms::TSpinEdit& control, std::string_view symbol) {
  RequireRegistered(TKind::Quantity, control);
  FInner.SetQuantitySymbol(control, symbol);
}

void TStrictEditors::SetAccountLayoutAccount(forms::TTextEdit& control, std::string_view account) {
  RequireRegistered(TKind::Account, control);
  FInner.SetAccountLayoutAccount(control, account);
}

bool TStrictEditors::IsRegistered(TKind kind, const forms::TControl& control) const {
  const auto kinds = FKinds.find(&control);
  return kinds != FKinds.end() && kinds->second.contains(kind);
}

void TStrictEditors::RequireLookUp(std::int32_t mode, std::int32_t options) const {
  FViolations.Require(mode == 0 && options == 1,
                      "a look-up editor is registered with other arguments than 0 and 1");
}

void TStrictEditors::RequireRegistered(TKind kind, const forms::TControl& control) const {
  if (!IsRegistered(kind, control)) {
    FViolations.Report(control.Name() + " is used as an editor that it is not registered as");
  }
}

template <class TRegister>
void TStrictEditors::Register(TKind kind, const forms::TControl& control, TRegister&& pass) {
  pass();
  FKinds[&control].insert(kind);
}

template <class TRemove>
void TStrictEditors::Remove(TKind kind, const forms::TControl& control, TRemove&& remove) {
  // Only the address is looked at: whether the control still exists is what is in question.
  FViolations.Require(IsRegistered(kind, control), "an editor is removed that is not registered");
  // Out of the register first: in the middle of the call the control may be registered anew.
  const auto kinds = FKinds.find(&control);
  kinds->second.erase(kind);
  if (kinds->second.empty()) FKinds.erase(kinds);
  try {
    remove();
  } catch (...) {
    FKinds[&control].insert(kind);
    throw;
  }
}

}  // namespace algo::host::checks
