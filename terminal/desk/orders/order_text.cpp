#include "terminal/desk/orders/order_text.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>

#include "terminal/host/order_status.h"
#include "text/text.h"

namespace algo::terminal::desk::orders {

namespace {

using TFlags = std::uint32_t host::TCustomOrder::*;

// The first row whose masked flags have the wanted value gives the type.
struct TTypeRow {
  TFlags flags;
  std::uint32_t mask;
  std::uint32_t wanted;
  std::string_view id;
};
constexpr TTypeRow TypeRows[] = {
    {&host::TCustomOrder::orderTypeFlags, 0x1F, 1, "Res_OrderType_Market"},
    {&host::TCustomOrder::orderTypeFlags, 0x1F, 4, "Res_OrderType_StopMarket"},
    {&host::TCustomOrder::orderTypeFlags, 0x800, 0x800, "Res_OrderType_StopLimit"},
    {&host::TCustomOrder::orderTypeFlags, 0x200, 0x200, "Res_OrderType_AO"},
    {&host::TCustomOrder::orderTypeFlags, 0x400, 0x400, "Res_OrderType_ELO"},
    {&host::TCustomOrder::auctionFlags, 0x4000, 0x4000, "Res_OrderType_MOO"},
    {&host::TCustomOrder::auctionFlags, 0x8000, 0x8000, "Res_OrderType_MOC"},
    {&host::TCustomOrder::auctionFlags, 0x1000, 0x1000, "Res_OrderType_LOC"},
    {&host::TCustomOrder::orderTypeFlags, 0, 0, "Res_OrderType_Limit"},
};

constexpr double NoPrice = 1e-7;

struct TStatusRow {
  std::int32_t status;
  std::string_view key;
};
constexpr TStatusRow StatusRows[] = {
    {status::Accepted, "Accepted"}, {status::Working, "Working"},     {status::PartlyFilled, "Partly filled"},
    {status::Filled, "Filled"},     {status::Cancelled, "Cancelled"}, {status::Expired, "Expired"},
    {status::Rejected, "Rejected"},
};

}  // namespace

std::string AlgorithmOf(const host::TCustomOrder& order) {
  constexpr std::string_view Mark = "AlgoId=";
  const std::string text = order.TextProperty(host::AlgoTextProperty);
  const std::size_t start = text.find(Mark);
  if (start == std::string::npos) return {};
  const std::size_t from = start + Mark.size();
  return text.substr(from, text.find_first_of(",;", from) - from);
}

std::string_view OrderTypeId(const host::TCustomOrder& order) {
  const auto found = std::find_if(std::begin(TypeRows), std::end(TypeRows), [&order](const TTypeRow& row) {
    return (order.*row.flags & row.mask) == row.wanted;
  });
  // Both auction types carry one bit; a limit makes the difference.
  if (found->id == "Res_OrderType_AO" && std::abs(order.price) > NoPrice) return "Res_OrderType_ALO";
  return found->id;
}

std::string_view StatusKey(std::int32_t status) {
  const auto found = std::find_if(std::begin(StatusRows), std::end(StatusRows),
                                  [status](const TStatusRow& row) { return row.status == status; });
  return found == std::end(StatusRows) ? "Unknown" : found->key;
}

double FilledPart(const host::TCustomOrder& order) {
  return order.quantity > 0 ? std::clamp(order.filled / order.quantity, 0.0, 1.0) : 0.0;
}

}  // namespace algo::terminal::desk::orders
