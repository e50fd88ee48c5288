#include "views/work/available_quantity.h"

#include <algorithm>
#include <string>

#include "plugin/host_contract/order_adapter.h"
#include "text/errors.h"

namespace algo::views::work {

namespace {

// No store holds more.
constexpr std::size_t MostOrders = 100'000'000;

// The status codes in which what is unfilled of a child no longer counts: 3, 4 and 7 as a mask over 0 to 7,
// and -1.
constexpr std::uint32_t DoneStatuses = 0x98;

bool IsDone(std::int32_t status) {
  if (status == -1) return true;
  return status >= 0 && status <= 7 && (DoneStatuses >> static_cast<std::uint32_t>(status) & 1U) != 0;
}

bool IsChildOf(const host::TCustomOrder& order, const host::TCustomOrder& parent) {
  return order.parentNo == parent.orderNo && (order.flags & host::WorkChildMark) != 0 &&
         order.orderNo != parent.orderNo;
}

double UsedByChildren(const host::TCustomOrder& parent, std::size_t count) {
  auto& store = host::TCustomOrderAdapter::GetInstance();
  double used = 0;
  for (std::size_t i = 0; i < count; ++i) {
    const host::TCustomOrder* order = store.OrderAt(i);
    if (order == nullptr || !IsChildOf(*order, parent)) continue;
    used += IsDone(order->status) ? order->filled : order->quantity;
  }
  return used;
}

}  // namespace

double GetWorkParentOrderAvailableQty(const host::TCustomOrder* parent) {
  if (parent == nullptr) return 0;
  const std::size_t count = host::TCustomOrderAdapter::GetInstance().OrderCount();
  // Walked through, a count like this would never end; cut short, it would give away what children hold.
  if (count > MostOrders) throw EConversionError(std::to_string(count), "a number of orders");
  const bool workParent = (parent->flags & host::WorkParentMark) != 0;
  const double used = workParent ? UsedByChildren(*parent, count) : parent->filled + parent->committed;
  return std::max(parent->quantity - used, 0.0);
}

}  // namespace algo::views::work
