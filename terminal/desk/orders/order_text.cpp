#include "terminal/desk/orders/order_text.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <string>

#include "plugin/host_contract/flags/order_flags.h"
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
// A basic type is a number in the low bits; everything else is a bit of its own.
constexpr TTypeRow Basic(std::uint32_t type, std::string_view id) {
  return {&host::TCustomOrder::orderTypeFlags, host::flags::BasicTypeMask, type, id};
}
constexpr TTypeRow Bit(TFlags flags, std::uint32_t bit, std::string_view id) { return {flags, bit, bit, id}; }

constexpr TTypeRow TypeRows[] = {
    Basic(host::flags::Market, "Res_OrderType_Market"),
    Basic(host::flags::StopMarket, "Res_OrderType_StopMarket"),
    Bit(&host::TCustomOrder::orderTypeFlags, host::flags::StopLimit, "Res_OrderType_StopLimit"),
    Bit(&host::TCustomOrder::orderTypeFlags, host::flags::AtAuction, "Res_OrderType_AO"),
    Bit(&host::TCustomOrder::orderTypeFlags, host::flags::EnhancedLimit, "Res_OrderType_ELO"),
    Bit(&host::TCustomOrder::auctionFlags, host::flags::MarketAtOpen, "Res_OrderType_MOO"),
    Bit(&host::TCustomOrder::auctionFlags, host::flags::MarketAtClose, "Res_OrderType_MOC"),
    Bit(&host::TCustomOrder::auctionFlags, host::flags::LimitAtClose, "Res_OrderType_LOC"),
    Bit(&host::TCustomOrder::orderTypeFlags, 0, "Res_OrderType_Limit"),
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
