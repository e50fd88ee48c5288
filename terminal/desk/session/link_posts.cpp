#include "terminal/desk/session/link_posts.h"

#include "plugin/host_contract/channel_manager.h"

namespace algo::terminal::desk {

namespace {

void PostCopy(TMemoryHost& host, std::int32_t channel, const TLinkSource& source,
              host::TCustomClientOrder order) {
  host::TOrderCopyRecord record;
  record.object = &order;
  record.viewId = source.viewId;
  record.groupId = source.groupId;
  host.PostAsHost(channel, record);
}

}  // namespace

void PostPrice(TMemoryHost& host, const TLinkSource& source, const std::string& symbol, double price) {
  host::TCustomClientOrder order;
  order.symbol = symbol;
  order.price = price;
  PostCopy(host, host::CopyPriceChannel, source, order);
}

void PostOrder(TMemoryHost& host, const TLinkSource& source, const host::TCustomClientOrder& order) {
  PostCopy(host, host::CopyOrderChannel, source, order);
}

void PostOrderAction(TMemoryHost& host, const TLinkSource& source, const host::TCustomClientOrder& order,
                     host::TOrderAction action) {
  host::TCustomClientOrder copy(order);
  host::TOrderTakeActionRecord record;
  record.order = &copy;
  record.action = static_cast<std::int32_t>(action);
  record.viewId = source.viewId;
  host.PostAsHost(host::OrderActionChannel, record);
}

}  // namespace algo::terminal::desk
