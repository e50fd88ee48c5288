#include "terminal/host/keeper.h"

namespace algo::terminal {

TKeeper::~TKeeper() = default;

void TKeeper::KeepOrder(const TOrderEvent& /*event*/, const host::TCustomClientOrder& /*order*/) {}

void TKeeper::KeepEvent(const TOrderEvent& /*event*/, const host::TCustomClientOrder& /*order*/) {}

void TKeeper::KeepSetting(std::string_view /*section*/, std::string_view /*key*/,
                          std::string_view /*value*/) {}

}  // namespace algo::terminal
