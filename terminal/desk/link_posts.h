#pragma once

// What the desktop's views post when the trader picks something in them.

#include <cstdint>
#include <string>

#include "plugin/host_contract/orders.h"
#include "terminal/host/memory_host.h"

namespace algo::terminal {

/// Where something was picked: the view's number and its link group.
struct TLinkSource {
  std::int32_t viewId = 0;
  std::string groupId;
};

/// Sends the price of the symbol, as the market knows it, to the entry views of the group; 0 sends the symbol
/// alone.
void PickPrice(TMemoryHost& host, const TLinkSource& where, const std::string& symbol, double price);

/// Sends the whole order to the entry views of the group.
void PickOrder(TMemoryHost& host, const TLinkSource& where, const host::TCustomClientOrder& order);

/// Asks whoever made the order to show it for the action. They are given a copy: while they show it the
/// market goes on with the order itself.
void AskForAction(TMemoryHost& host, const TLinkSource& where, const host::TCustomClientOrder& order,
                  host::TOrderAction action);

}  // namespace algo::terminal
