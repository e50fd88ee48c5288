// The module's entry: the one symbol that a host looks up after loading it.

#include <memory>
#include <utility>

#include "plugin/host_contract/class_registry.h"
#include "plugin/host_contract/module_entry.h"
#include "plugin/view_provider.h"
#include "views/boundary/boundary.h"
#include "views/work/available_quantity.h"

namespace algo::plugin {

namespace {

int starts = 0;
bool registered = false;  ///< by this copy of the module

std::unique_ptr<host::TIBaseView> MakeProvider(const void* owner) {
  return views::AtHostBoundary(
      std::unique_ptr<host::TIBaseView>(),
      [owner]() -> std::unique_ptr<host::TIBaseView> { return std::make_unique<TIAlgoEntryOrder>(owner); });
}

void Start() {
  if (starts++ > 0) return;
  registered = host::TClassRegistry::GetInstance().Register(ProviderClassName, MakeProvider);
}

void Stop() {
  if (starts == 0 || --starts > 0) return;
  // Another copy may have been first; what it registered is its own.
  if (std::exchange(registered, false)) host::TClassRegistry::GetInstance().Unregister(ProviderClassName);
}

bool SetOrderAlgo(host::TViewFrame& frame, host::TCustomClientOrder& order) {
  const auto* entry = dynamic_cast<const views::entry::TAlgoOrderEntryFrame*>(&frame);
  if (entry == nullptr) return false;
  return views::AtHostBoundary(false, [&] {
    entry->SetOrderAlgo(order);
    return true;
  });
}

double WorkParentAvailableQty(host::TCustomOrder* parent) {
  return views::AtHostBoundary(0.0, [parent] { return views::work::GetWorkParentOrderAvailableQty(parent); });
}

constexpr host::TModuleEntry Entry{host::ContractVersion, Start, Stop, SetOrderAlgo, WorkParentAvailableQty};

}  // namespace

}  // namespace algo::plugin

extern "C" ALGO_SHARED const algo::host::TModuleEntry* AlgoOrderEntryModule() { return &algo::plugin::Entry; }
