#include "terminal/host/order_rules.h"

#include "terminal/host/order_status.h"

namespace algo::terminal {

namespace {

/// An order that never had an average price gets no empty one.
void SetAveragePrice(host::TCustomClientOrder& order, const std::string& price) {
  if (order.NamedText(AveragePriceProperty) != price) order.SetNamedText(AveragePriceProperty, price);
}

}  // namespace

host::TCustomClientOrder AsNewOrder(const host::TCustomClientOrder& order, const std::string& key) {
  host::TCustomClientOrder added(order);
  added.key = key;
  added.orderNo = key;
  return added;
}

host::TCustomClientOrder AsChildOrder(const host::TCustomClientOrder& parent, const std::string& key) {
  host::TCustomClientOrder child = AsNewOrder(parent, key);
  child.parentNo = parent.orderNo;
  child.flags &= ~(host::WorkParentMark | host::WorkMark);
  child.flags |= host::WorkChildMark;
  child.filled = 0;
  child.status = 0;
  SetAveragePrice(child, {});
  return child;
}

host::TCustomClientOrder AsChangedOrder(const host::TCustomClientOrder& stored,
                                        const host::TCustomClientOrder& wanted) {
  host::TCustomClientOrder changed(wanted);
  changed.filled = stored.filled;
  changed.status = stored.status;
  SetAveragePrice(changed, stored.NamedText(AveragePriceProperty));
  return changed;
}

}  // namespace algo::terminal
