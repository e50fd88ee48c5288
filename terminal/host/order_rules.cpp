#include "terminal/host/order_rules.h"

namespace algo::terminal {

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
  return child;
}

}  // namespace algo::terminal
