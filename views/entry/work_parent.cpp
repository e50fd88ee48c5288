// The Work button: an order that is not sent to the market in one piece, from which child orders are cut
// later. It carries no algo parameter text; its children do.

#include "plugin/host_contract/order_adapter.h"
#include "views/entry/entry_frame.h"

namespace algo::views::entry {

void TAlgoOrderEntryFrame::btnWorkClick() {
  const host::TOwnedOrder order = host::MakeClientOrder();
  if (!GetWorkOrder(*order)) return;
  SetOrderType(*order);
  WorkOrder(*order);
  SetAlgoOrder(*order);
  SubmitOrder(*order);
}

bool TAlgoOrderEntryFrame::GetWorkOrder(host::TCustomClientOrder& order) {
  if (!Passes(false)) return false;
  FillCommonFields(order);
  return true;
}

void TAlgoOrderEntryFrame::WorkOrder(host::TCustomClientOrder& order) const {
  order.flags |= host::WorkMark;
  order.flags |= host::WorkParentMark;
}

}  // namespace algo::views::entry
