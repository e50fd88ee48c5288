// Orders and prices picked in other views of the terminal, copied into the form.

#include "model/parameter_text.h"
#include "text/number_text.h"
#include "views/entry/entry_frame.h"

namespace algo::views {

class TAlgoOrderEntryFrame::TCopying {
 public:
  explicit TCopying(bool& copying) : FCopying(copying) { FCopying = true; }
  ~TCopying() { FCopying = false; }
  TCopying(const TCopying&) = delete;
  TCopying& operator=(const TCopying&) = delete;

 private:
  bool& FCopying;
};

const host::TCustomClientOrder* TAlgoOrderEntryFrame::OrderForThisView(
    const host::TChannelRecord* record) const {
  const auto* copied = dynamic_cast<const host::TOrderCopyRecord*>(record);
  if (copied == nullptr || !TakesCopies()) return nullptr;
  const auto* order = dynamic_cast<const host::TCustomClientOrder*>(copied->object);
  if (order == nullptr) return nullptr;
  const bool otherGroup = FGlobalValueUpdateMode >= 0 && !FGroupID.empty() && copied->groupId != FGroupID;
  const bool symbolLocked = !Control(TField::edtSymbol).Enabled() && order->symbol != FCurrentSymbol;
  return otherGroup || symbolLocked ? nullptr : order;
}

void TAlgoOrderEntryFrame::CopyOrder(const void* /*sender*/, host::TChannelRecord* record) {
  if (const auto* order = OrderForThisView(record)) DoCopyOrder(*order);
}

void TAlgoOrderEntryFrame::CopyPrice(const void* /*sender*/, host::TChannelRecord* record) {
  if (const auto* order = OrderForThisView(record)) DoCopyPrice(*order);
}

void TAlgoOrderEntryFrame::CopySymbol(const std::string& symbol) {
  auto& editor = Edit(TField::edtSymbol);
  editor.SetText(symbol);
  editor.SetHint(symbol);
  editor.Commit();
}

void TAlgoOrderEntryFrame::DoCopyOrder(const host::TCustomClientOrder& order) {
  ClearOrder();
  const TCopying copying(FCopying);
  if (Control(TField::edtSymbol).Enabled()) CopySymbol(order.symbol);
  auto& account = Edit(TField::edtAccount);
  if (account.Enabled()) {
    account.SetText(order.account);
    account.Commit();
    FCurrentAccount = order.account;
  }
  auto& quantity = Spin(TField::edtQty);
  if (quantity.Enabled()) quantity.SetValue(static_cast<double>(text::TruncateToWhole(order.quantity)));
  SelectExchange(order.exchange);
  SetDisplayOrderType(order);
  auto& price = Spin(TField::edtPrice);
  if (price.Enabled()) price.SetValue(PriceToShow(order.price, FCurrentItem));
  FPriceSet = true;
  FQtySet = true;
  const std::string algoText = order.TextProperty(host::AlgoTextProperty);
  const model::TSplitText split = model::SplitText(algoText);
  InitializeConfirmView(split.algoId, split.pieces);
}

void TAlgoOrderEntryFrame::DoCopyPrice(const host::TCustomClientOrder& order) {
  {
    const TCopying copying(FCopying);
    const std::string previousSymbol = FCurrentSymbol;
    if (!order.symbol.empty() && Control(TField::edtSymbol).Enabled()) CopySymbol(order.symbol);
    auto& price = Spin(TField::edtPrice);
    if (order.price != 0 && price.Enabled()) price.SetValue(PriceToShow(order.price, FCurrentItem));
    auto& quantity = Spin(TField::edtQty);
    if (order.quantity != 0) {
      if (quantity.Enabled()) quantity.SetValue(static_cast<double>(text::TruncateToWhole(order.quantity)));
      FQtySet = true;
    } else {
      FQtySet = order.symbol == previousSymbol;
    }
    FPriceSet = true;
  }
  UpdateSymbolInfo();
}

}  // namespace algo::views
