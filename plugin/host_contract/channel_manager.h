#pragma once

// Notifications between views that know nothing of each other. A post is delivered to every subscriber of the
// channel before it returns, and a subscriber may write into the record.

#include <cstdint>
#include <functional>
#include <string>

#include "plugin/host_contract/orders.h"
#include "plugin/host_contract/service.h"

namespace algo::host {

inline constexpr std::int32_t CopyOrderChannel =
    18010;  ///< TOrderCopyRecord: an order was picked in another view
inline constexpr std::int32_t OrderActionChannel =
    18011;  ///< TOrderTakeActionRecord: something is to be done with an order
inline constexpr std::int32_t CopyPriceChannel =
    18016;  ///< TOrderCopyRecord: a price was picked in another view

/// What is posted. Each channel has its record class; a subscriber checks the class before use.
class ALGO_SHARED TChannelRecord {
 public:
  virtual ~TChannelRecord();
};

/// Asks whoever made an order to show it and to take an action on it.
class ALGO_SHARED TOrderTakeActionRecord : public TChannelRecord {
 public:
  ~TOrderTakeActionRecord() override;

  TCustomOrder* order = nullptr;  ///< the poster's; held by no receiver after the post
  std::int32_t action = 0;        ///< a TOrderAction code
  std::int32_t viewId = 0;        ///< the view that posts
  bool result = false;            ///< set by the receiver: the order was passed on and accepted
};

/// An order, or a price in the form of an order, that was picked in another view.
class ALGO_SHARED TOrderCopyRecord : public TChannelRecord {
 public:
  ~TOrderCopyRecord() override;

  TCustomOrder* object = nullptr;  ///< the poster's; held by no receiver after the post
  std::int32_t viewId = 0;         ///< the view in which it was picked
  std::string groupId;             ///< that view's link group
};

class ALGO_SHARED TCustomGlobalChannelManager : public THostService<TCustomGlobalChannelManager> {
 public:
  /// [host → module, while it is registered]
  using THandler = std::function<void(const void* sender, TChannelRecord* record)>;

  virtual ~TCustomGlobalChannelManager();

  /// Calls `handler` for each post on the channel, in the order of subscription, until the owner
  /// unsubscribes. An owner has at most one handler on a channel. A handler may subscribe, unsubscribe and
  /// post.
  /// [module → host, while a provider lives]
  virtual void Subscribe(std::int32_t channel, THandler handler, TOwner owner) = 0;
  /// [module → host, while it is registered]
  virtual void Unsubscribe(std::int32_t channel, TOwner owner) = 0;

  /// Delivers `record` to every subscriber of the channel, then returns.
  /// [module → host, while a provider lives]
  virtual void Post(std::int32_t channel, TChannelRecord* record) = 0;
};

}  // namespace algo::host
