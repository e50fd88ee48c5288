// What holds quantity, percentage and price of a child together, and what is checked before it is cut.

#include <algorithm>
#include <cmath>

#include "model/order_types.h"
#include "plugin/host_contract/account_adapter.h"
#include "text/number_text.h"
#include "views/boundary/flag_scope.h"
#include "views/work/available_quantity.h"
#include "views/work/work_order_frame.h"

namespace algo::views::work {

namespace {

constexpr double PriceLimit = 2000000000;

// Rounded to as many digits as a figure holds whatever was calculated.
double Exact(double figure) { return text::RoundToDigits(figure, 15); }

bool Differs(double left, double right) { return std::abs(left - right) > model::PriceEpsilon; }

}  // namespace

bool TAlgoWorkOrderFrame::HoldsPrice() const {
  return FMyOrder != nullptr && Check(TField::cbLockPrice).Checked() &&
         std::abs(FMyOrder->price) > model::PriceEpsilon;
}

void TAlgoWorkOrderFrame::SetPriceMaxMinValue() {
  auto& price = Spin(TField::edtPrice);
  price.SetMin(-PriceLimit);
  price.SetMax(PriceLimit);
  if (!HoldsPrice()) return;
  if (FMyOrder->side == host::SideSell) price.SetMin(FMyOrder->price);
  if (FMyOrder->side == host::SideBuy) price.SetMax(FMyOrder->price);
}

void TAlgoWorkOrderFrame::ProcessPriceValueUpdate() {
  if (!HoldsPrice()) return;
  auto& editor = Spin(TField::edtPrice);
  const double price = GetSpinEditValue(&editor);
  const bool above = FMyOrder->side == host::SideBuy && price > FMyOrder->price;
  const bool below = FMyOrder->side == host::SideSell && price < FMyOrder->price;
  if (above || below) editor.SetValue(FMyOrder->price);
}

void TAlgoWorkOrderFrame::cbLockPriceChange() {
  SetPriceMaxMinValue();
  ProcessPriceValueUpdate();
}

double TAlgoWorkOrderFrame::GetSpinEditValue(const forms::TSpinEdit* editor) const {
  return editor == nullptr ? 0.0 : editor->Value().value_or(0.0);
}

double TAlgoWorkOrderFrame::GetLotSize() const {
  if (FMyOrder == nullptr) return 1.0;
  const host::TMarketDataItem* item =
      host::TCustomSubscribeAdapter::GetInstance().Subscribe(FMyOrder->symbol, host::PriceDataSet, true);
  if (item == nullptr) return 1.0;
  // The text form, unlike the symbol tracking, which rounds the number.
  const std::int64_t lot = text::ParseWhole(item->FieldText(host::LotSizeField)).value_or(1);
  return static_cast<double>(std::max<std::int64_t>(lot, 1));
}

void TAlgoWorkOrderFrame::edtQtyPropertiesChange() {
  if (FIsUpdating || FMyOrder == nullptr) return;
  const TFlagScope updating(FIsUpdating);
  if (FMyOrder->quantity == 0) return;
  sedtPecentage->SetValue(GetSpinEditValue(&Spin(TField::edtQty)) * 100 / FMyOrder->quantity);
}

void TAlgoWorkOrderFrame::edtPecentagePropertiesChange() {
  if (FIsUpdating || FMyOrder == nullptr) return;
  const TFlagScope updating(FIsUpdating);
  const double lot = GetLotSize();
  if (FMyOrder == nullptr) return;
  // Rounded before the lots are counted: 8.2 percent of 50000 is 4100, not the 4099.999... of binary figures.
  const double quantity = std::floor(Exact(FMyOrder->quantity * GetSpinEditValue(sedtPecentage) / 100));
  Spin(TField::edtQty).SetValue(std::trunc(quantity / lot) * lot);
}

bool TAlgoWorkOrderFrame::CheckInput() {
  const auto failure = FirstFailure();
  if (FMyOrder == nullptr) return false;
  if (failure) Tell(*failure);
  return !failure && CheckOrderValid() && FMyOrder != nullptr;
}

std::optional<model::TRuleFailure> TAlgoWorkOrderFrame::FirstFailure() const {
  using enum model::TMessageSource;
  using TRuleFailure = model::TRuleFailure;
  // The host may let the order go while it is asked; whoever gave it to the form has it until the form ends.
  const host::TCustomOrder& order = *FMyOrder;
  const std::string account = Edit(TField::edtAccount).Text();
  if (account.empty()) return TRuleFailure{HostCode, "DC10013001"};
  if (!host::TCustomAccountAdapter::GetInstance().IsKnown(account))
    return TRuleFailure{HostCode, "DC10013002"};
  if (Edit(TField::edtSymbol).Text().empty()) return TRuleFailure{HostCode, "DC1000001"};
  const double quantity = GetSpinEditValue(&Spin(TField::edtQty));
  if (quantity <= 0) return TRuleFailure{HostCode, "DC1004001"};
  if (quantity > GetWorkParentOrderAvailableQty(&order)) return TRuleFailure{Resource, "Res_QuantityInvalid"};
  if (FConfirmWorkOrdPri && Check(TField::cbLockPrice).Checked() && order.price != 0) {
    // A buying child may be cheaper than its parent; a selling one has the parent's price and no other.
    const double price = GetSpinEditValue(&Spin(TField::edtPrice));
    if (order.side == host::SideBuy && price - order.price > model::PriceEpsilon) {
      return TRuleFailure{Resource, "Res_ChangeUpPrice"};
    }
    if (order.side == host::SideSell && Differs(price, order.price)) {
      return TRuleFailure{Resource, "Res_ChangeDownPrice"};
    }
  }
  const double lot = GetLotSize();
  if (std::floor(quantity / lot) * lot != quantity) return TRuleFailure{Resource, "Res_WorkOddLotWarning"};
  return std::nullopt;
}

}  // namespace algo::views::work
