#include "terminal/host/editor_service.h"

#include <functional>
#include <string>
#include <utility>

#include "text/text.h"

namespace algo::terminal {

namespace {

forms::TStepGrid GridFor(const TStepGridOf& gridOf, std::string_view symbol) {
  return gridOf ? gridOf(symbol) : forms::TStepGrid();
}

}  // namespace

void TMemoryEditorManager::RegisterAccountEditor(forms::TTextEdit& control, std::string_view groupId,
                                                 std::int32_t /*mode*/, std::int32_t /*options*/) {
  Register(TEditorKind::Account, control, groupId,
           [&control] { control.SetText(std::string(text::Trim(control.Text()))); });
}

void TMemoryEditorManager::RegisterSymbolEditor(forms::TTextEdit& control, std::string_view groupId,
                                                std::int32_t /*mode*/, std::int32_t /*options*/) {
  Register(TEditorKind::Symbol, control, groupId, [this, &control] { LookUpSymbol(control); });
}

void TMemoryEditorManager::RegisterPriceEditor(forms::TSpinEdit& control, std::string_view groupId) {
  Register(TEditorKind::Price, control, groupId, {});
}

void TMemoryEditorManager::RegisterQuantityEditor(forms::TSpinEdit& control, std::string_view groupId) {
  Register(TEditorKind::Quantity, control, groupId, {});
}

void TMemoryEditorManager::RemoveAccountEditor(forms::TTextEdit& control) {
  Remove(TEditorKind::Account, control, {});
}

void TMemoryEditorManager::RemoveSymbolEditor(forms::TTextEdit& control) {
  Remove(TEditorKind::Symbol, control, {});
}

void TMemoryEditorManager::RemovePriceEditor(forms::TSpinEdit& control) {
  Remove(TEditorKind::Price, control, [&control] { control.SetStepGrid({}); });
}

void TMemoryEditorManager::RemoveQuantityEditor(forms::TSpinEdit& control) {
  Remove(TEditorKind::Quantity, control, [&control] { control.SetStepGrid({}); });
}

void TMemoryEditorManager::SetPriceSymbol(forms::TSpinEdit& control, std::string_view symbol) {
  SetSymbol(TEditorKind::Price, control, symbol, FHost.data.priceGrid);
}

void TMemoryEditorManager::SetQuantitySymbol(forms::TSpinEdit& control, std::string_view symbol) {
  SetSymbol(TEditorKind::Quantity, control, symbol, FHost.data.quantityGrid);
}

void TMemoryEditorManager::SetAccountLayoutAccount(forms::TTextEdit& control, std::string_view account) {
  FHost.Call(TServiceOperation::EditorAccount, [&] {
    FHost.events.LayoutAccountSet(control, account);
    control.SetText(account);
    control.Commit();
  });
}

void TMemoryEditorManager::Register(TEditorKind kind, forms::TControl& control, std::string_view groupId,
                                    std::function<void()> reaction) {
  FHost.Call(TServiceOperation::EditorRegister, [&] {
    control.SetHostEditor(std::move(reaction));
    FHost.events.EditorRegistered(kind, control, groupId);
  });
}

void TMemoryEditorManager::Remove(TEditorKind kind, forms::TControl& control,
                                  const std::function<void()>& restore) {
  FHost.Call(TServiceOperation::EditorRemove, [&] {
    if (restore) restore();
    control.SetHostEditor({});
    FHost.events.EditorRemoved(kind, control);
  });
}

void TMemoryEditorManager::SetSymbol(TEditorKind kind, forms::TSpinEdit& control, std::string_view symbol,
                                     const TStepGridOf& gridOf) {
  FHost.Call(TServiceOperation::EditorSymbol, [&] {
    FHost.events.EditorSymbolSet(kind, control, symbol);
    control.SetStepGrid(GridFor(gridOf, symbol));
  });
}

void TMemoryEditorManager::LookUpSymbol(forms::TTextEdit& control) const {
  const std::string symbol(text::Trim(control.Text()));
  const bool known = FHost.data.instruments.contains(symbol);
  if (known) control.SetText(symbol);
  control.SetHint(known ? symbol : std::string());
}

}  // namespace algo::terminal
