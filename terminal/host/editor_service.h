#pragma once

// The shared field editors: how the account and the symbol editor react to being left, and along which grid
// the prices and quantities of a symbol step, if the host has been given one. Which symbol they serve is told
// as an event too.

#include <cstdint>
#include <functional>
#include <string_view>

#include "plugin/host_contract/editor_manager.h"
#include "terminal/host/host_context.h"

namespace algo::terminal {

class TMemoryEditorManager final : public host::TEditorManager {
 public:
  explicit TMemoryEditorManager(const THostContext& host) : FHost(host) {}

  /// On leaving, the text is trimmed.
  void RegisterAccountEditor(forms::TTextEdit& control, std::string_view groupId, std::int32_t mode,
                             std::int32_t options) override;
  /// On leaving, the trimmed text is looked up: a known symbol becomes text and hint, any other text clears
  /// the hint.
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

 private:
  void Register(TEditorKind kind, forms::TControl& control, std::string_view groupId,
                std::function<void()> reaction);
  void Remove(TEditorKind kind, forms::TControl& control, const std::function<void()>& restore);
  void SetSymbol(TEditorKind kind, forms::TSpinEdit& control, std::string_view symbol,
                 const TStepGridOf& gridOf);
  void LookUpSymbol(forms::TTextEdit& control) const;

  const THostContext& FHost;
};

}  // namespace algo::terminal
