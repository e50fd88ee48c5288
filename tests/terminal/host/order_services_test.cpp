#include <gtest/gtest.h>

#include "plugin/host_contract/channel_manager.h"
#include "plugin/host_contract/order_action_manager.h"
#include "plugin/host_contract/order_adapter.h"
#include "terminal/host/memory_host.h"
#include "tests/terminal/host/event_notes.h"

namespace algo::terminal::tests {
namespace {

using host::TOrderAction;

struct TOrderServicesTest : testing::Test {
  TOrderServicesTest() {
    order.key = "K1";
    order.orderNo = "O1";
    order.flags = 0x10000001;
    order.quantity = 500;
  }
  bool Take(TOrderAction action) {
    return host::TCustomOrderActionManager::GetInstance().TakeAction(nullptr, &order, action, 1);
  }
  host::TCustomClientOrder& Put(const char* key) {
    auto stored = std::make_unique<host::TCustomClientOrder>();
    stored->key = key;
    return host.Orders().Add(std::move(stored));
  }

  TEventNotes events;
  TMemoryHost host{events};
  host::TCustomClientOrder order;
  host::TCustomOrderAdapter& adapter = host::TCustomOrderAdapter::GetInstance();
  int owner = 0;
};

TEST_F(TOrderServicesTest, ListsAreConfiguredOrNot) {
  host.Data().lists["ALGO/Exchange"] = {"HK", "CN"};
  std::vector<std::string> values{"left over"};
  EXPECT_TRUE(adapter.GetListSetting("ALGO/Exchange", values));
  EXPECT_EQ(values, (std::vector<std::string>{"HK", "CN"}));
  EXPECT_FALSE(adapter.GetListSetting("ALGO/OrderType/HK", values));
  EXPECT_TRUE(values.empty());
}

TEST_F(TOrderServicesTest, AnOrderThatIsMadeIsInNoStore) {
  const host::TOwnedOrder made = host::MakeClientOrder();
  EXPECT_EQ(made->key, "");
  EXPECT_EQ(adapter.OrderCount(), 0U);
}

TEST_F(TOrderServicesTest, TheStoreIsWalkedByPlace) {
  auto& first = Put("a");
  Put("b");
  EXPECT_EQ(adapter.OrderCount(), 2U);
  EXPECT_EQ(adapter.OrderAt(0), &first);
  EXPECT_EQ(adapter.OrderAt(1)->key, "b");
  EXPECT_EQ(adapter.OrderAt(2), nullptr);
}

TEST_F(TOrderServicesTest, ANewOrderIsCopiedIntoTheStoreUnderTheNextKey) {
  Put("N1");
  EXPECT_TRUE(Take(TOrderAction::New));
  EXPECT_TRUE(Take(TOrderAction::New));
  ASSERT_EQ(host.Orders().All().size(), 3U);
  EXPECT_EQ(host.Orders().All()[1]->key, "N2");
  EXPECT_EQ(host.Orders().All()[1]->orderNo, "N2");
  EXPECT_EQ(host.Orders().All()[1]->quantity, 500);
  EXPECT_EQ(host.Orders().All()[2]->key, "N3");
  EXPECT_EQ(order.key, "K1");
  EXPECT_EQ(events.lines, (TNotes{"action 1 K1 1 yes", "action 1 K1 1 yes"}));
}

TEST_F(TOrderServicesTest, AChangeReplacesTheStoredOrderOfItsKey) {
  const auto& stored = Put("K1");
  EXPECT_TRUE(Take(TOrderAction::Change));
  EXPECT_EQ(stored.quantity, 500);
  EXPECT_EQ(host.Orders().All().size(), 1U);
}

TEST_F(TOrderServicesTest, AChangeReplacesWhatWasFilledTooUnlessTheHostWorksTheOrders) {
  Put("K1").filled = 300;
  order.filled = 100;
  EXPECT_TRUE(Take(TOrderAction::Change));
  EXPECT_EQ(host.Orders().Find("K1")->filled, 100);
  host.Data().worksOrders = true;
  host.Orders().Find("K1")->filled = 300;
  order.quantity = 700;
  EXPECT_TRUE(Take(TOrderAction::Change));
  EXPECT_EQ(host.Orders().Find("K1")->filled, 300);
  EXPECT_EQ(host.Orders().Find("K1")->quantity, 700);
}

TEST_F(TOrderServicesTest, AChangeOfAnOrderThatIsNotStoredStoresNothing) {
  EXPECT_TRUE(Take(TOrderAction::Change));
  EXPECT_TRUE(host.Orders().All().empty());
}

TEST_F(TOrderServicesTest, AWorkOrderAddsAChild) {
  EXPECT_TRUE(Take(TOrderAction::Work));
  const auto* child = host.Orders().Find("N1");
  ASSERT_NE(child, nullptr);
  EXPECT_EQ(child->parentNo, "O1");
  EXPECT_EQ(child->flags, 0x20000000U);
}

TEST_F(TOrderServicesTest, WhatIsNotAcceptedIsTurnedDownAndStoresNothing) {
  host.Data().accept = false;
  EXPECT_FALSE(Take(TOrderAction::New));
  EXPECT_TRUE(host.Orders().All().empty());
  EXPECT_EQ(events.lines, (TNotes{"action 1 K1 1 no"}));
}

TEST_F(TOrderServicesTest, AFailingActionStoresNothing) {
  host.Data().faults.Set({"action.take"});
  EXPECT_THROW(Take(TOrderAction::New), EHostFault);
  EXPECT_TRUE(host.Orders().All().empty());
  EXPECT_EQ(events.lines, TNotes{});
}

struct TChannelServiceTest : TOrderServicesTest {
  host::TCustomGlobalChannelManager& channels = host::TCustomGlobalChannelManager::GetInstance();
  host::TOrderTakeActionRecord record;
};

TEST_F(TChannelServiceTest, APostIsDeliveredBeforeItReturnsAndThenTold) {
  channels.Subscribe(
      18011,
      [this](const void* /*sender*/, host::TChannelRecord* posted) {
        EXPECT_EQ(posted, &record);
        events.lines.emplace_back("delivered");
        record.result = true;
      },
      &owner);
  channels.Post(18011, &record);
  channels.Post(18010, &record);
  EXPECT_EQ(events.lines, (TNotes{"delivered", "post 18011 yes", "post 18010 yes"}));
}

TEST_F(TChannelServiceTest, ThePostsOfTheHostItselfAreNoEvents) {
  int delivered = 0;
  channels.Subscribe(
      18011, [&](const void*, host::TChannelRecord*) { ++delivered; }, &owner);
  host.PostAsHost(18011, record);
  channels.Unsubscribe(18011, &owner);
  host.PostAsHost(18011, record);
  EXPECT_EQ(delivered, 1);
  EXPECT_EQ(events.lines, TNotes{});
}

TEST_F(TChannelServiceTest, ASubscriberMayUnsubscribeWhileItIsServed) {
  int delivered = 0;
  channels.Subscribe(
      18011,
      [&](const void*, host::TChannelRecord*) {
        ++delivered;
        channels.Unsubscribe(18011, &owner);
      },
      &owner);
  channels.Post(18011, &record);
  channels.Post(18011, &record);
  EXPECT_EQ(delivered, 1);
}

TEST_F(TChannelServiceTest, AFailingPostIsNotDelivered) {
  int delivered = 0;
  channels.Subscribe(
      18011, [&](const void*, host::TChannelRecord*) { ++delivered; }, &owner);
  host.Data().faults.Set({"channel.post", "channel.subscribe"});
  EXPECT_THROW(channels.Post(18011, &record), EHostFault);
  EXPECT_THROW(channels.Subscribe(
                   18010, [](const void*, host::TChannelRecord*) {}, &owner),
               EHostFault);
  host.PostAsHost(18011, record);
  EXPECT_EQ(delivered, 1);
  EXPECT_EQ(events.lines, TNotes{});
}

}  // namespace
}  // namespace algo::terminal::tests
