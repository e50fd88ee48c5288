#pragma once

// The strict layer of the shared field editors.

#include <cstddef>
#include <cstdint>
#include <map>
#include <set>
#include <string_view>

#include "plugin/host_contract/checks/violations.h"
#include "plugin/host_contract/editor_manager.h"

namespace algo::host::checks {

class TStrictEditors final : public TEditorManager {
 public:
  TStrictEditors(TEditorManager& inner, const TViolations& violations)
      : FInner(inner), FViolations(violations) {}

  void RegisterAccountEditor(forms::TTextEdit& control, std::string_view groupId, std::int32_t mode,
                             std::int32_t options) override;
  void RegisterSymbolEditor(forms::TTextEdit& control, std::string_view groupId, std::int32_t mode,
                            std::int32_t options) override;
  void RegisterPriceEditor(forms::TSpinEdit& control, std::string_view groupId) override;
  void RegisterQuantityEditor(forms::TSpinEdit& control, std::string_view groupId) override;

  void RemoveAccountEditor(forms::TTextEdit& control) override;
  void RemoveSymbolEditor(forms::TTextEdit& control) override;
  void RemovePriceEditor(forms::TSpinEdit& control) override;
  void RemoveQuantityEditor(forms::TSpinEdit& control) override;

  void SetPriceSymbol(forms::TSpinEdit& control, std::string_view symbol) override;
  void SetQuantitySymbol(forms::TSpinEdit& control, std::string_view symbol) override;
  void SetAccountLayoutAccount(forms::TTextEdit& control, std::string_view account) override;

  /// The controls that are registered, each counted once.
  std::size_t Controls() const { return FKinds.size(); }

 private:
  enum class TKind : std::uint8_t { Account, Symbol, Price, Quantity };

  bool IsRegistered(TKind kind, const forms::TControl& control) const;
  void RequireLookUp(std::int32_t mode, std::int32_t options) const;
  void RequireRegistered(TKind kind, const forms::TControl& control) const;
  template <class TRegister>
  void Register(TKind kind, const forms::TControl& control, TRegister&& pass);
  template <class TRemove>
  void Remove(TKind kind, const forms::TControl& control, TRemove&& remove);

  TEditorManager& FInner;
  const TViolations& FViolations;
  std::map<const forms::TControl*, std::set<TKind>> FKinds;
};

}  // namespace algo::host::checks
