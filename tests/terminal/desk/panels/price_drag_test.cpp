// What is dragged out of the market watch.

#include "terminal/desk/panels/price_drag.h"

#include <gtest/gtest.h>

namespace algo::terminal::desk::tests {
namespace {

TEST(PriceDrag, OtherDataIsNoPrice) {
  QMimeData data;
  data.setText("0005");
  EXPECT_FALSE(panels::ReadPriceData(data).has_value());
  data.setData("application/x-algo-price", "much 0005");
  EXPECT_FALSE(panels::ReadPriceData(data).has_value());
  data.setData("application/x-algo-price", "60");
  EXPECT_FALSE(panels::ReadPriceData(data).has_value());
}

}  // namespace
}  // namespace algo::terminal::desk::tests
