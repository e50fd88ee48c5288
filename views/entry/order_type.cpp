// Between the chosen host order type and an order's flag words. Bits are only ever added to an order.

#include <algorithm>

#include "model/order_types.h"
#include "views/entry/entry_frame.h"

namespace algo::views {

void TAlgoOrderEntryFrame::SetOrderType(host::TCustomClientOrder& order) const {
  const model::TOrderTypeRow* row = model::FindOrderTypeById(Chosen().orderType);
  if (row == nullptr) return;
  if (!row->keepsPrice) order.price = 0;
  switch (row->word) {
    case model::TFlagWord::OrderType:
      order.orderTypeFlags |= row->bits;
      break;
    case model::TFlagWord::Auction:
      order.auctionFlags |= row->bits;
      break;
    case model::TFlagWord::None:
      break;
  }
  if (row->autoTrigger) order.orderTypeFlags |= GetAutoTrigger(order);
}

std::uint32_t TAlgoOrderEntryFrame::GetAutoTrigger(const host::TCustomClientOrder& order) const {
  if (FCurrentItem == nullptr) return 0;
  return model::AutoTriggerBits(
      order.orderTypeFlags, order.stopPrice, FCurrentItem->FieldText(host::PriceField),
      FCurrentItem->FieldText(host::SecondPriceField), FCurrentItem->FieldText(host::ReferencePriceField));
}

void TAlgoOrderEntryFrame::SetNativeAlgo(host::TCustomClientOrder* order) const {
  if (order != nullptr) order->algoFlags |= model::NativeAlgoBit;
}

void TAlgoOrderEntryFrame::SetAlgoOrder(host::TCustomClientOrder& order) const {
  order.SetNamedText(host::OriginalProperty, std::string(AlgoEntryOrigin));
}

void TAlgoOrderEntryFrame::SetDisplayOrderType(const host::TCustomOrder& order) {
  const std::string_view id = model::DisplayOrderType(order.orderTypeFlags, order.auctionFlags, order.price);
  const auto found = std::find(FOrderTypeList.begin(), FOrderTypeList.end(), id);
  auto& combo = Combo(TField::cmbMType);
  const auto index = static_cast<std::int32_t>(found - FOrderTypeList.begin());
  if (found != FOrderTypeList.end() && index < combo.Count()) {
    combo.SetIndex(index);
  } else {
    combo.SelectFirst();
  }
}

}  // namespace algo::views
