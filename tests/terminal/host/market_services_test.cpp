#include <gtest/gtest.h>

#include <array>

#include "plugin/host_contract/checks/strict_host.h"
#include "plugin/host_contract/market_data.h"
#include "terminal/host/memory_host.h"
#include "tests/terminal/host/event_notes.h"

namespace algo::terminal::tests {
namespace {

struct TMarketTest : testing::Test {
  /// Listens to the item and records each notification: the price, or that only other items changed.
  void Listen(host::TMarketDataItem* item) {
    subscriptions.AddListener(
        item,
        [this, item](const void* /*sender*/, const host::TItemDictionary* items) {
          ASSERT_EQ(items->Count(), 1U);
          const auto* found = items->Find(item->Symbol());
          notified.emplace_back(found == nullptr ? "others" : std::string(found->FieldText(3)));
        },
        &owner);
  }

  TEventNotes events;
  TMemoryHost host{events};
  host::TCustomSubscribeAdapter& subscriptions = host::TCustomSubscribeAdapter::GetInstance();
  host::TCustomMarketAdapter& market = host::TCustomMarketAdapter::GetInstance();
  int owner = 0;
  TNotes notified;
};

TEST_F(TMarketTest, ASymbolWithoutDataHasAnItemInStateZero) {
  const auto* item = subscriptions.Subscribe("S", "PRCDDS", true);
  EXPECT_EQ(item->Symbol(), "S");
  EXPECT_EQ(item->State(), 0);
  EXPECT_FALSE(item->HasField(3));
  EXPECT_EQ(item->FieldNumber(3), 0);
  EXPECT_EQ(item->FieldText(3), "");
  EXPECT_EQ(events.lines, (TNotes{"subscribe S PRCDDS live"}));
}

TEST_F(TMarketTest, FieldsAreTextsAndTheNumbersThatTheyShow) {
  host.SetMarket("S", 1, {{3, "10.5"}, {73, "01x"}, {24, "1e400"}}, TMarketNotice::None);
  const auto* item = subscriptions.Subscribe("S", "PRCDDS", true);
  EXPECT_EQ(item->State(), 1);
  EXPECT_EQ(item->FieldNumber(3), 10.5);
  EXPECT_EQ(item->FieldText(73), "01x");
  EXPECT_EQ(item->FieldNumber(73), 0);
  EXPECT_TRUE(item->HasField(24));
  EXPECT_EQ(item->FieldNumber(24), 0);
}

TEST_F(TMarketTest, ChangesMergeAndTakeFieldsOut) {
  auto* item = subscriptions.Subscribe("S", "PRCDDS", true);
  host.SetMarket("S", 1, {{3, "10"}, {24, "100"}}, TMarketNotice::None);
  host.SetMarket("S", std::nullopt, {{3, "11"}, {24, std::nullopt}}, TMarketNotice::None);
  EXPECT_EQ(item->State(), 1);
  EXPECT_EQ(item->FieldText(3), "11");
  EXPECT_FALSE(item->HasField(24));
}

TEST_F(TMarketTest, ListenersAreToldOfTheirItemAlone) {
  Listen(subscriptions.Subscribe("S", "PRCDDS", true));
  host.SetMarket("S", 1, {{3, "10"}}, TMarketNotice::Item);
  host.SetMarket("T", 1, {{3, "20"}}, TMarketNotice::Item);
  host.SetMarket("S", 1, {{3, "11"}}, TMarketNotice::None);
  host.SetMarket("S", 1, {}, TMarketNotice::Item);
  EXPECT_EQ(notified, (TNotes{"10", "11"}));
}

TEST_F(TMarketTest, TheNewsMayBeOfOtherItems) {
  Listen(subscriptions.Subscribe("S", "PRCDDS", true));
  host.SetMarket("S", 1, {}, TMarketNotice::OtherItems);
  EXPECT_EQ(notified, (TNotes{"others"}));
}

TEST_F(TMarketTest, AnOwnerThatUnsubscribedIsNotNotifiedAnyMore) {
  auto* item = subscriptions.Subscribe("S", "PRCDDS", true);
  Listen(item);
  subscriptions.Unsubscribe(item, &owner);
  host.SetMarket("S", 1, {}, TMarketNotice::Item);
  EXPECT_EQ(notified, TNotes{});
  EXPECT_EQ(events.lines, (TNotes{"subscribe S PRCDDS live", "unsubscribe S"}));
}

TEST_F(TMarketTest, AListenerMayUnsubscribeWhileItIsTold) {
  auto* item = subscriptions.Subscribe("S", "PRCDDS", true);
  subscriptions.AddListener(
      item,
      [&](const void* /*sender*/, const host::TItemDictionary* /*items*/) {
        notified.emplace_back("notified");
        subscriptions.Unsubscribe(item, &owner);
      },
      &owner);
  host.SetMarket("S", 1, {}, TMarketNotice::Item);
  host.SetMarket("S", 1, {}, TMarketNotice::Item);
  EXPECT_EQ(notified, (TNotes{"notified"}));
}

TEST_F(TMarketTest, AFailingUnsubscribeLeavesTheListener) {
  const host::checks::TStrictHost strict;
  auto& checked = host::TCustomSubscribeAdapter::GetInstance();
  auto* item = checked.Subscribe("S", "PRCDDS", true);
  checked.AddListener(
      item, [this](const void*, const host::TItemDictionary*) { notified.emplace_back("notified"); }, &owner);
  host.Data().faults.Set({"subscribe.remove"});
  EXPECT_THROW(checked.Unsubscribe(item, &owner), EHostFault);
  EXPECT_EQ(strict.LeftBehind().subscriptions, 1U);
  host.SetMarket("S", 1, {}, TMarketNotice::Item);
  EXPECT_EQ(notified, (TNotes{"notified"}));
  host.Data().faults.Set({});
  checked.Unsubscribe(item, &owner);
  EXPECT_EQ(strict.LeftBehind().subscriptions, 0U);
}

TEST_F(TMarketTest, AFailingSubscribeIsNoEvent) {
  host.Data().faults.Set({"subscribe.add"});
  EXPECT_THROW(subscriptions.Subscribe("S", "PRCDDS", true), EHostFault);
  EXPECT_EQ(events.lines, TNotes{});
}

TEST_F(TMarketTest, KnowsInstrumentsBySymbol) {
  host.Data().instruments["S"] = {"S", "100"};
  ASSERT_NE(market.FindInstrument("S"), nullptr);
  EXPECT_EQ(market.FindInstrument("S")->lotText, "100");
  EXPECT_EQ(market.FindInstrument("T"), nullptr);
}

TEST_F(TMarketTest, TellsOfSpreadTablesByCode) {
  market.AddSpreadListener(
      [this](const void* /*sender*/, const host::TSpreadDictionary* changed) {
        for (const char* code : {"01", "02", ""}) {
          if (changed->Contains(code)) notified.emplace_back(code);
        }
      },
      &owner);
  host.NotifySpreadChanged(std::array<std::string, 2>{"02", "03"});
  EXPECT_EQ(notified, (TNotes{"02"}));
  market.RemoveSpreadListener(&owner);
  host.NotifySpreadChanged(std::array<std::string, 1>{"01"});
  EXPECT_EQ(notified, (TNotes{"02"}));
}

}  // namespace
}  // namespace algo::terminal::tests
