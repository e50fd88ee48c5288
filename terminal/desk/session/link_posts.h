#pragma once

// What the desktop's own views post to the module's views when the trader picks something in them.

#include <cstdint>
#include <string>

#include "plugin/host_contract/orders.h"
#include "terminal/host/memory_host.h"

namespace algo::terminal::desk {

/// The numbers by which the desktop's own views name themselves in what they post.
namespace view_id {
inline constexpr std::int32_t MarketWatch = 201;
inline constexpr std::int32_t OrderBlotter = 202;
}  // namespace view_id

/// Where something was picked: the view's number and its link group.
struct TLinkSource {
  std::int32_t viewId = 0;
  std::string groupId;
};

/// Posts the symbol and its price, as the market knows it, to the entry views of the group; 0 posts the
/// symbol alone.
void PostPrice(TMemoryHost& host, const TLinkSource& source, const std::string& symbol, double price);

/// Posts the whole order to the entry views of the group.
void PostOrder(TMemoryHost& host, const TLinkSource& source, const host::TCustomClientOrder& order);

/// Asks whoever made the order to open it for the action. They are given a copy: while they show it, the
/// market goes on with the order itself.
void PostOrderAction(TMemoryHost& host, const TLinkSource& source, const host::TCustomClientOrder& order,
                     host::TOrderAction action);

}  // namespace algo::terminal::desk
