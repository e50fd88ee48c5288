#include "terminal/paper/paper_order.h"

#include <cmath>

#include "terminal/host/order_status.h"
#include "text/number_text.h"

namespace algo::terminal::paper {

double TOutcome::Average() const { return filled > 0 ? value / filled : 0; }

TOutcome TOutcome::WithStatus(std::int32_t newStatus) const { return {filled, value, newStatus}; }

TOutcome TOutcome::WithProgress(double quantity) const {
  if (IsDone(status) || filled <= 0) return *this;
  return WithStatus(filled >= quantity ? status::Filled : status::PartlyFilled);
}

bool TTerms::Match(const host::TCustomClientOrder& order) const {
  return symbol == order.symbol && side == order.side && quantity == order.quantity && price == order.price &&
         text == order.TextProperty(host::AlgoTextProperty);
}

TPaperOrder::TPaperOrder(const host::TCustomClientOrder& storedOrder)
    : order(storedOrder), outcome(StoredOutcome()) {}

bool TPaperOrder::IsParent() const { return (order.flags & host::WorkParentMark) != 0; }

bool TPaperOrder::IsChildOf(const TPaperOrder& parent) const {
  return this != &parent && parent.IsParent() && (order.flags & host::WorkChildMark) != 0 &&
         order.parentNo == parent.order.orderNo;
}

bool TPaperOrder::IsWorkedHere() const {
  return IsParent() || !order.TextProperty(host::AlgoTextProperty).empty();
}

TOutcome TPaperOrder::StoredOutcome() const {
  const double average = text::NumberOr(order.NamedText(AveragePriceProperty), order.price);
  return {order.filled, order.filled * average, order.status};
}

bool TPaperOrder::DiffersFromStored() const {
  // An average that was parsed from its text may differ in the last digit.
  constexpr double Slack = 1e-12;
  const double average = outcome.Average();
  const double shown = text::NumberOr(order.NamedText(AveragePriceProperty), 0);
  return order.filled != outcome.filled || order.status != outcome.status ||
         order.quantity < outcome.filled || std::abs(shown - average) > Slack * average;
}

}  // namespace algo::terminal::paper
