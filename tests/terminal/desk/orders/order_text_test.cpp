// What an order is called in words.

#include "terminal/desk/orders/order_text.h"

#include <gtest/gtest.h>

namespace algo::terminal::desk::tests {
namespace {

TEST(OrderText, TheAlgorithmIsReadFromTheParameterText) {
  host::TCustomClientOrder order;
  EXPECT_EQ(orders::AlgorithmOf(order), "");
  order.SetTextProperty(440, "TMLO:AlgoId=TVOL Threshold,VolPct=20;");
  EXPECT_EQ(orders::AlgorithmOf(order), "TVOL Threshold");
  order.SetTextProperty(440, "TMLO:AlgoId=TVOL;");
  EXPECT_EQ(orders::AlgorithmOf(order), "TVOL");
  order.SetTextProperty(440, "TMLO:AlgoId=MOC");
  EXPECT_EQ(orders::AlgorithmOf(order), "MOC");
  order.SetTextProperty(440, "no such thing");
  EXPECT_EQ(orders::AlgorithmOf(order), "");
}

TEST(OrderText, TheOrderTypeIsReadFromTheFlags) {
  const struct {
    std::uint32_t type, auction;
    double price;
    const char* id;
  } Rows[] = {{0, 0, 1, "Res_OrderType_Limit"},
              {1, 0, 0, "Res_OrderType_Market"},
              {4, 0, 0, "Res_OrderType_StopMarket"},
              {0x800, 0, 1, "Res_OrderType_StopLimit"},
              {0x800800, 0, 1, "Res_OrderType_StopLimit"},
              {0x200, 0, 0, "Res_OrderType_AO"},
              {0x200, 0, 1, "Res_OrderType_ALO"},
              {0x400, 0, 1, "Res_OrderType_ELO"},
              {0, 0x4000, 0, "Res_OrderType_MOO"},
              {0, 0x8000, 0, "Res_OrderType_MOC"},
              {0, 0x1000, 1, "Res_OrderType_LOC"}};
  for (const auto& row : Rows) {
    host::TCustomClientOrder order;
    order.orderTypeFlags = row.type;
    order.auctionFlags = row.auction;
    order.price = row.price;
    EXPECT_EQ(orders::OrderTypeId(order), row.id);
  }
}

TEST(OrderText, AStatusOfNobodyIsUnknown) {
  EXPECT_EQ(orders::StatusKey(0), "Accepted");
  EXPECT_EQ(orders::StatusKey(1), "Working");
  EXPECT_EQ(orders::StatusKey(2), "Partly filled");
  EXPECT_EQ(orders::StatusKey(3), "Filled");
  EXPECT_EQ(orders::StatusKey(4), "Cancelled");
  EXPECT_EQ(orders::StatusKey(7), "Expired");
  EXPECT_EQ(orders::StatusKey(-1), "Rejected");
  EXPECT_EQ(orders::StatusKey(99), "Unknown");
}

TEST(OrderText, TheFilledPartStaysBetweenNothingAndAll) {
  host::TCustomClientOrder order;
  EXPECT_EQ(orders::FilledPart(order), 0);
  order.quantity = 400;
  order.filled = 100;
  EXPECT_EQ(orders::FilledPart(order), 0.25);
  order.filled = 500;
  EXPECT_EQ(orders::FilledPart(order), 1);
}

}  // namespace
}  // namespace algo::terminal::desk::tests
