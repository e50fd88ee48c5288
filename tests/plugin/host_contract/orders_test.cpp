#include "plugin/host_contract/orders.h"

#include <gtest/gtest.h>

namespace algo::host {
namespace {

TEST(Orders, ListTheTextPropertiesThatWereSetEmptyOnesIncluded) {
  TCustomClientOrder order;
  EXPECT_TRUE(order.NumberedTexts().empty());
  EXPECT_TRUE(order.NamedTexts().empty());
  order.SetTextProperty(440, "a");
  order.SetTextProperty(-1, "");
  order.SetNamedText("Original", "b");
  order.SetNamedText("", "");
  EXPECT_EQ(order.TextProperty(7), "");
  EXPECT_EQ(order.NamedText("never set"), "");

  TCustomClientOrder copy;
  copy.SetNamedText("of its own", "gone");
  copy.AssignContent(order);
  EXPECT_EQ(copy.NumberedTexts(), (std::map<std::int32_t, std::string>{{-1, ""}, {440, "a"}}));
  EXPECT_EQ(copy.NamedTexts(),
            (std::map<std::string, std::string, std::less<>>{{"", ""}, {"Original", "b"}}));
}

}  // namespace
}  // namespace algo::host
