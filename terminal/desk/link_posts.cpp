#include "terminal/desk/link_posts.h"

#include "plugin/host_contract/channel_manager.h"

namespace algo::terminal {

namespace {

void PostCopy(TMemoryHost& host, std::int32_t channel, const TLinkSource& where,
              host::TCustomClientOrder order) {
  host::TOrderCopyRecord record;
  record.object = &order;
  record.viewId = where.viewId;
  record.groupId = where.groupId;
  host.PostAsHost(channel, record);
}

}  // namespace

void PickPrice(TMemoryHost& host, const TLinkSource& where, const std::string& symbol, double price) {
  host::TCustomClientOrder order;
  order.symbol = symbol;
  order.price = price;
  PostCopy(host, host::CopyPriceChannel, where, order);
}

void PickOrder(TMemoryHost& host, const TLinkSource& where, const host::TCustomClientOrder& order) {
  PostCopy(host, host::CopyOrderChannel, where, order);
}

void AskForAction(TMemoryHost& host, const TLinkSource& where, const host::TCustomClientOrder& order,
                  host::TOrderAction action) {
  host::TCustomClientOrder copy(order);
  host::TOrderTakeActionRecord record;
  record.order = &copy;
  record.action = static_cast<std::int32_t>(action);
  record.viewId = where.viewId;
  host.PostAsHost(host::OrderActionChannel, record);
}

}  // namespace algo::terminal
