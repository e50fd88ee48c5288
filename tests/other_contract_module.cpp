// A module that was built for a contract which no host has: everything about it fits, but for the version.

#include "plugin/host_contract/module_entry.h"

namespace {

void Nothing() {}

bool SetNoAlgo(algo::host::TViewFrame& /*frame*/, algo::host::TCustomClientOrder& /*order*/) { return false; }

double NoQuantity(algo::host::TCustomOrder* /*parent*/) { return 0; }

constexpr algo::host::TModuleEntry Entry{algo::host::ContractVersion + 1, Nothing, Nothing, SetNoAlgo,
                                         NoQuantity};

}  // namespace

extern "C" ALGO_SHARED const algo::host::TModuleEntry* AlgoOrderEntryModule() { return &Entry; }
