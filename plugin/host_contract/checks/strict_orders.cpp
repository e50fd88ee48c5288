#include "plugin/host_contract/checks/strict_orders.h"

#include <algorithm>
#include <string>
#include <utility>

namespace algo::host::checks {

namespace {

constexpr std::size_t KeptAfterwards = 64;

}  // namespace

bool TOrderJournal::WasGivenBack(const TCustomOrder* order) const {
  return std::find(givenBack.begin(), givenBack.end(), order) != givenBack.end();
}

TStrictOrders::~TStrictOrders() {
  while (!FJournal.givenBack.empty()) {
    try {
      FreeOldest();
    } catch (...) {  // NOLINT(bugprone-empty-catch): the module gave them back in good order
    }
  }
}

TCustomClientOrder* TStrictOrders::NewClientOrder() {
  TCustomClientOrder* order = FInner.NewClientOrder();
  if (order != nullptr) FJournal.held.insert(order);
  return order;
}

void TStrictOrders::FreeClientOrder(TCustomClientOrder* order) {
  FViolations.Require(!FJournal.WasGivenBack(order), "an order is given back twice");
  FViolations.Require(FJournal.held.contains(order), "an order is given back that the adapter did not make");
  FJournal.givenBack.push_back(order);
  FJournal.held.erase(order);
  order->AssignContent(TCustomClientOrder());
  if (FJournal.givenBack.size() > KeptAfterwards) FreeOldest();
}

void TStrictOrders::FreeOldest() {
  TCustomClientOrder* oldest = FJournal.givenBack.front();
  FJournal.givenBack.pop_front();
  FInner.FreeClientOrder(oldest);
}

bool TStrictActions::TakeAction(const void* sender, TCustomClientOrder* order, TOrderAction action,
                                std::int32_t argument) {
  FViolations.Require(sender == nullptr, "an order action names a sender");
  FViolations.Require(argument == 1, "an order action has another argument than 1");
  FViolations.Require(order != nullptr, "an order action has no order");
  FViolations.Require(!FJournal.WasGivenBack(order),
                      "an action is to be taken on an order that was given back");
  return FInner.TakeAction(sender, order, action, argument);
}

void TStrictChannels::Subscribe(std::int32_t channel, THandler handler, TOwner owner) {
  OwnersOf(channel).Add(handler, owner, [&] { FInner.Subscribe(channel, std::move(handler), owner); });
}

void TStrictChannels::Unsubscribe(std::int32_t channel, TOwner owner) {
  OwnersOf(channel).Remove(owner, [&] { FInner.Unsubscribe(channel, owner); });
}

void TStrictChannels::Post(std::int32_t channel, TChannelRecord* record) {
  FViolations.Require(record != nullptr, "a post has no record");
  FViolations.Require(!FJournal.WasGivenBack(OrderIn(channel, *record)),
                      "a post carries an order that was given back");
  FInner.Post(channel, record);
}

std::size_t TStrictChannels::Handlers() const {
  std::size_t handlers = 0;
  for (const auto& [channel, owners] : FOwners) handlers += owners.Count();
  return handlers;
}

TListenerRegistry& TStrictChannels::OwnersOf(std::int32_t channel) {
  return FOwners.try_emplace(channel, FViolations, "channel " + std::to_string(channel)).first->second;
}

const TCustomOrder* TStrictChannels::OrderIn(std::int32_t channel, const TChannelRecord& record) const {
  const auto* action = dynamic_cast<const TOrderTakeActionRecord*>(&record);
  const auto* copy = dynamic_cast<const TOrderCopyRecord*>(&record);
  FViolations.Require(channel != OrderActionChannel || action != nullptr,
                      "a post on the channel of order actions carries another record");
  FViolations.Require((channel != CopyOrderChannel && channel != CopyPriceChannel) || copy != nullptr,
                      "a post on a channel of copies carries another record");
  if (action != nullptr) return action->order;
  return copy != nullptr ? copy->object : nullptr;
}

}  // namespace algo::host::checks
