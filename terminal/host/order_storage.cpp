#include "terminal/host/order_storage.h"

namespace algo::terminal {

TOrderStorage::~TOrderStorage() = default;

void TOrderStorage::StoreOrder(const TOrderEvent& /*event*/, const host::TCustomClientOrder& /*order*/) {}

void TOrderStorage::StoreEvent(const TOrderEvent& /*event*/, const host::TCustomClientOrder& /*order*/) {}

void TOrderStorage::StoreSetting(std::string_view /*section*/, std::string_view /*key*/,
                                 std::string_view /*value*/) {}

}  // namespace algo::terminal
