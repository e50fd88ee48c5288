// The order store, and the posts of the terminal's other views about orders.

#include <array>
#include <memory>

#include "terminal/drive/call_module.h"
#include "terminal/drive/command_table.h"
#include "terminal/drive/lookup.h"
#include "terminal/drive/order_json.h"

namespace algo::terminal::drive {

namespace {

/// An order of the host that is not a client order, which the module has to leave alone.
class TForeignOrder final : public host::TCustomOrder {};

void Order(TSession& session, const TArguments& arguments, TAnswerJson& /*answer*/) {
  const auto& key = arguments.Text("key");
  auto& orders = session.Host().Orders();
  if (host::TCustomClientOrder* stored = orders.Find(key)) {
    ApplyOrderFields(arguments, *stored);
    return;
  }
  auto order = std::make_unique<host::TCustomClientOrder>();
  order->orderNo = key;
  ApplyOrderFields(arguments, *order);
  orders.Add(std::move(order));
}

void Orders(TSession& session, const TArguments& arguments, TAnswerJson& answer) {
  TAnswerJson list = TAnswerJson::array();
  if (arguments.Has("key")) {
    const auto& key = arguments.Text("key");
    const host::TCustomClientOrder* order = session.Host().Orders().Find(key);
    if (order == nullptr) throw ECommandError("there is no order '" + key + "'");
    list.push_back(OrderJson(*order));
  } else {
    for (const auto& order : session.Host().Orders().All()) list.push_back(OrderJson(*order));
  }
  answer["orders"] = std::move(list);
}

/// The order that a post carries, and ownership of it if it exists for the post alone.
struct TPosted {
  host::TCustomOrder* order = nullptr;
  std::unique_ptr<host::TCustomOrder> own;
};

TPosted PostedOrder(TSession& session, const TArguments& arguments) {
  TPosted posted;
  if (arguments.BooleanOr("foreign", false)) {
    posted.own = std::make_unique<TForeignOrder>();
    posted.order = posted.own.get();
  } else {
    posted.order = StoredOrderOf(session, arguments);
  }
  return posted;
}

void PostAction(TSession& session, const TArguments& arguments, TAnswerJson& answer) {
  host::TOrderTakeActionRecord record;
  record.action = arguments.Integer("action");
  record.viewId = arguments.IntegerOr("view", 0);
  TPosted posted = PostedOrder(session, arguments);
  const auto* stored = dynamic_cast<const host::TCustomClientOrder*>(posted.order);
  // The order view passes its own orders, but a copy for a work order.
  if (record.action == static_cast<std::int32_t>(host::TOrderAction::Work) && stored != nullptr) {
    posted.own = std::make_unique<host::TCustomClientOrder>(*stored);
    posted.order = posted.own.get();
  }
  record.order = posted.order;
  const bool besideOthers =
      record.action == static_cast<std::int32_t>(host::TOrderAction::Change) && !session.ChangesAreModal();
  const TFrameLabels::TNewFrameLabels making(
      session.Labels(), {}, besideOthers && stored != nullptr ? "change:" + stored->key : std::string());
  CallModule([&] { session.Host().PostAsHost(host::OrderActionChannel, record); });
  answer["result"] = record.result;
}

void PostCopy(TSession& session, std::int32_t channel, const TArguments& arguments) {
  host::TOrderCopyRecord record;
  record.viewId = arguments.IntegerOr("view", 0);
  record.groupId = arguments.TextOr("group", {});
  const TPosted posted = PostedOrder(session, arguments);
  record.object = posted.order;
  CallModule([&] { session.Host().PostAsHost(channel, record); });
}

void Post(TSession& session, const TArguments& arguments, TAnswerJson& answer) {
  const auto channel = arguments.Integer("channel");
  if (channel == host::OrderActionChannel) {
    PostAction(session, arguments, answer);
  } else if (channel == host::CopyOrderChannel || channel == host::CopyPriceChannel) {
    PostCopy(session, channel, arguments);
  } else {
    throw ECommandError("'channel' must be 18010, 18011 or 18016");
  }
}

void Available(TSession& session, const TArguments& arguments, TAnswerJson& answer) {
  const auto& entry = session.Module().Entry();
  host::TCustomClientOrder* order = StoredOrderOf(session, arguments);
  answer["quantity"] = NumberJson(CallModule([&] { return entry.workParentAvailableQty(order); }));
}

constexpr std::array Commands{TCommand{"order", Order}, TCommand{"orders", Orders}, TCommand{"post", Post},
                              TCommand{"available", Available}};

}  // namespace

std::span<const TCommand> OrderCommands() { return Commands; }

}  // namespace algo::terminal::drive
