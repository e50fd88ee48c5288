#include "terminal/host/service_operations.h"

#include <algorithm>

namespace algo::terminal {

namespace {

using enum TServiceOperation;

constexpr TFaultKinds Empty = Bit(TFaultKind::Empty);
constexpr TFaultKinds Wild = Bit(TFaultKind::Wild);
constexpr TFaultKinds False = Bit(TFaultKind::False);
constexpr TFaultKinds Null = Bit(TFaultKind::Null);

constexpr std::array Rows{
    TServiceOperationRow{ConfigRead, "config.read", Empty | Wild},
    TServiceOperationRow{ConfigStore, "config.store"},
    TServiceOperationRow{ConfigListen, "config.listen"},
    TServiceOperationRow{ConfigUnlisten, "config.unlisten"},
    TServiceOperationRow{LanguageText, "language.text", Empty | Wild},
    TServiceOperationRow{ProfileRight, "profile.right", False},
    TServiceOperationRow{ProfileData, "profile.data", Empty | Wild},
    TServiceOperationRow{AccountKnown, "account.known", False},
    TServiceOperationRow{OrdersList, "orders.list", Null | Empty | Wild},
    TServiceOperationRow{OrdersNew, "orders.new", Null},
    TServiceOperationRow{OrdersFree, "orders.free"},
    TServiceOperationRow{OrdersCount, "orders.count", Wild},
    TServiceOperationRow{OrdersAt, "orders.at", Null},
    TServiceOperationRow{ActionTake, "action.take", False},
    TServiceOperationRow{ChannelPost, "channel.post"},
    TServiceOperationRow{ChannelSubscribe, "channel.subscribe"},
    TServiceOperationRow{ChannelUnsubscribe, "channel.unsubscribe"},
    TServiceOperationRow{MarketItem, "market.item", Null},
    TServiceOperationRow{MarketInstrument, "market.instrument", Null},
    TServiceOperationRow{MarketListen, "market.listen"},
    TServiceOperationRow{MarketUnlisten, "market.unlisten"},
    TServiceOperationRow{SubscribeAdd, "subscribe.add", Null},
    TServiceOperationRow{SubscribeListen, "subscribe.listen"},
    TServiceOperationRow{SubscribeRemove, "subscribe.remove"},
    TServiceOperationRow{SkinColor, "skin.color", Wild},
    TServiceOperationRow{SkinListen, "skin.listen"},
    TServiceOperationRow{SkinUnlisten, "skin.unlisten"},
    TServiceOperationRow{MessageText, "message.text"},
    TServiceOperationRow{MessageCode, "message.code"},
    TServiceOperationRow{EditorRegister, "editor.register"},
    TServiceOperationRow{EditorRemove, "editor.remove"},
    TServiceOperationRow{EditorSymbol, "editor.symbol"},
    TServiceOperationRow{EditorAccount, "editor.account"},
    TServiceOperationRow{FormMake, "form.make", Null},
    TServiceOperationRow{FormShow, "form.show"},
    TServiceOperationRow{FormHide, "form.hide"},
    TServiceOperationRow{FormClose, "form.close"},
    TServiceOperationRow{FormCaption, "form.caption"},
    TServiceOperationRow{FormFront, "form.front"},
    TServiceOperationRow{ViewNotify, "view.notify"},
};
static_assert(Rows.size() == ServiceOperationCount);

constexpr bool StandInTheirPlaces() {
  for (std::size_t i = 0; i < Rows.size(); ++i) {
    if (static_cast<std::size_t>(Rows[i].operation) != i) return false;
  }
  return true;
}
static_assert(StandInTheirPlaces());

constexpr std::array<std::string_view, 6> KindNames{"exception", "int", "empty", "wild", "false", "null"};

}  // namespace

const TServiceOperationRow& RowOf(TServiceOperation operation) {
  return Rows[static_cast<std::size_t>(operation)];
}

const TServiceOperationRow* FindServiceOperation(std::string_view name) {
  const auto found = std::ranges::find(Rows, name, &TServiceOperationRow::name);
  return found == Rows.end() ? nullptr : &*found;
}

std::optional<TFaultKind> FindFaultKind(std::string_view name) {
  const auto found = std::ranges::find(KindNames, name);
  if (found == KindNames.end()) return std::nullopt;
  return static_cast<TFaultKind>(found - KindNames.begin());
}

}  // namespace algo::terminal
