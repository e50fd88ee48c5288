#include "terminal/host/order_storage.h"

namespace algo::terminal {

TOrderStorage::~TOrderStorage() = default;

void TOrderStorage::KeepOrder(const TOrderEvent& /*event*/, const host::TCustomClientOrder& /*order*/) {}

void TOrderStorage::KeepEvent(const TOrderEvent& /*event*/, const host::TCustomClientOrder& /*order*/) {}

void TOrderStorage::KeepSetting(std::string_view /*section*/, std::string_view /*key*/,
                                std::string_view /*value*/) {}

}  // namespace algo::terminal
