#pragma once

// The terminal's shared field editors: what looks up accounts and symbols, and steps prices and quantities by
// the instrument's tick and lot. A module registers its own controls; the host attaches its behaviour to them
// and puts its reaction to leaving the control into TControl::SetHostEditor, the grid that it steps along
// into TSpinEdit::SetStepGrid.

#include <cstdint>
#include <string_view>

#include "forms/spin_edit.h"
#include "forms/text_edit.h"
#include "plugin/host_contract/service.h"

namespace algo::host {

class ALGO_SHARED TEditorManager : public THostService<TEditorManager> {
 public:
  virtual ~TEditorManager();

  /// Attaches the host's behaviour to the control in that link group. Registering a control again moves it to
  /// the new group. `mode` and `options` of the look-up editors are 0 and 1 in this module: look up on
  /// leaving, and offer the list of matches.
  /// [module → host, while a provider lives]
  virtual void RegisterAccountEditor(forms::TTextEdit& control, std::string_view groupId, std::int32_t mode,
                                     std::int32_t options) = 0;
  virtual void RegisterSymbolEditor(forms::TTextEdit& control, std::string_view groupId, std::int32_t mode,
                                    std::int32_t options) = 0;
  virtual void RegisterPriceEditor(forms::TSpinEdit& control, std::string_view groupId) = 0;
  virtual void RegisterQuantityEditor(forms::TSpinEdit& control, std::string_view groupId) = 0;

  /// Detach it again. The control is alive; nothing of it is used afterwards.
  /// [module → host, while it is registered]
  virtual void RemoveAccountEditor(forms::TTextEdit& control) = 0;
  virtual void RemoveSymbolEditor(forms::TTextEdit& control) = 0;
  virtual void RemovePriceEditor(forms::TSpinEdit& control) = 0;
  virtual void RemoveQuantityEditor(forms::TSpinEdit& control) = 0;

  /// Says which symbol a price or quantity editor serves; empty for none.
  /// [module → host, while it is registered]
  virtual void SetPriceSymbol(forms::TSpinEdit& control, std::string_view symbol) = 0;
  virtual void SetQuantitySymbol(forms::TSpinEdit& control, std::string_view symbol) = 0;

  /// Puts an account from a saved layout into an account editor, as text, and leaves the editor.
  /// [module → host, while it is registered]
  virtual void SetAccountLayoutAccount(forms::TTextEdit& control, std::string_view account) = 0;
};

}  // namespace algo::host
