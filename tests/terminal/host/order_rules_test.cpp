#include "terminal/host/order_rules.h"

#include <gtest/gtest.h>

#include "terminal/host/order_store.h"
#include "terminal/host/setting_text.h"

namespace algo::terminal::tests {
namespace {

host::TCustomClientOrder Parent() {
  host::TCustomClientOrder order;
  order.key = "K1";
  order.orderNo = "O1";
  order.parentNo = "O0";
  order.account = "A";
  order.quantity = 1000;
  order.filled = 300;
  order.status = 2;
  order.flags = 0x10000005;
  order.SetTextProperty(440, "text");
  return order;
}

std::unique_ptr<host::TCustomClientOrder> Keyed(const char* key) {
  auto order = std::make_unique<host::TCustomClientOrder>();
  order->key = key;
  return order;
}

TEST(OrderRules, ANewOrderIsNumberedByItsKey) {
  const auto added = AsNewOrder(Parent(), "N1");
  EXPECT_EQ(added.key, "N1");
  EXPECT_EQ(added.orderNo, "N1");
  EXPECT_EQ(added.parentNo, "O0");
  EXPECT_EQ(added.filled, 300);
  EXPECT_EQ(added.status, 2);
  EXPECT_EQ(added.flags, 0x10000005U);
  EXPECT_EQ(added.TextProperty(440), "text");
}

TEST(OrderRules, AChildIsCutFromItsParent) {
  const auto child = AsChildOrder(Parent(), "N1");
  EXPECT_EQ(child.key, "N1");
  EXPECT_EQ(child.orderNo, "N1");
  EXPECT_EQ(child.parentNo, "O1");
  EXPECT_EQ(child.account, "A");
  EXPECT_EQ(child.quantity, 1000);
  EXPECT_EQ(child.filled, 0);
  EXPECT_EQ(child.status, 0);
  EXPECT_EQ(child.flags, 0x20000004U);
  EXPECT_EQ(child.TextProperty(440), "text");
}

TEST(OrderRules, AChildHasNoAveragePriceYet) {
  auto parent = Parent();
  parent.SetNamedText("AveragePrice", "60.5");
  EXPECT_EQ(AsChildOrder(parent, "N1").NamedText("AveragePrice"), "");
}

TEST(OrderRules, AChangeTakesBackNothingThatTheMarketDid) {
  auto stored = Parent();
  stored.SetNamedText("AveragePrice", "60.5");
  auto wanted = Parent();
  wanted.quantity = 1200;
  wanted.price = 61;
  wanted.filled = 100;
  wanted.status = 1;
  wanted.SetNamedText("AveragePrice", "60");
  wanted.SetTextProperty(440, "other text");
  const auto changed = AsChangedOrder(stored, wanted);
  EXPECT_EQ(changed.key, "K1");
  EXPECT_EQ(changed.quantity, 1200);
  EXPECT_EQ(changed.price, 61);
  EXPECT_EQ(changed.TextProperty(440), "other text");
  EXPECT_EQ(changed.filled, 300);
  EXPECT_EQ(changed.status, 2);
  EXPECT_EQ(changed.NamedText("AveragePrice"), "60.5");
}

TEST(OrderStore, KeepsOrdersInTheirOrderAndFindsThemByKey) {
  TOrderStore store;
  const auto& b = store.Add(Keyed("b"));
  const auto& a = store.Add(Keyed("a"));
  ASSERT_EQ(store.All().size(), 2U);
  EXPECT_EQ(store.All()[0].get(), &b);
  EXPECT_EQ(store.All()[1].get(), &a);
  EXPECT_EQ(store.Find("a"), &a);
  EXPECT_EQ(store.Find("b"), &b);
  EXPECT_EQ(store.Find("c"), nullptr);
}

TEST(OrderStore, NumbersPassOverKeysInUse) {
  TOrderStore store;
  store.Add(Keyed("N1"));
  store.Add(Keyed("N3"));
  EXPECT_EQ(store.NextFreeKey(), "N2");
  EXPECT_EQ(store.NextFreeKey(), "N4");
}

TEST(SettingText, FiveTextsAreTrue) {
  for (const char* text : {"Y", "y", "1", "true", "True"}) EXPECT_TRUE(IsTrueText(text)) << text;
  for (const char* text : {"", "N", "0", "TRUE", "yes", "Yes", " Y", "2"})
    EXPECT_FALSE(IsTrueText(text)) << text;
}

TEST(SettingText, WhatIsNoNumberOf32BitsIsZero) {
  EXPECT_EQ(WholeNumberOf("150"), 150);
  EXPECT_EQ(WholeNumberOf("-7"), -7);
  EXPECT_EQ(WholeNumberOf(""), 0);
  EXPECT_EQ(WholeNumberOf("1.5"), 0);
  EXPECT_EQ(WholeNumberOf("many"), 0);
  EXPECT_EQ(WholeNumberOf("2147483647"), 2147483647);
  EXPECT_EQ(WholeNumberOf("2147483648"), 0);
  EXPECT_EQ(WholeNumberOf("-2147483648"), -2147483647 - 1);
}

}  // namespace
}  // namespace algo::terminal::tests
