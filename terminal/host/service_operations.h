#pragma once

// The operations of the host's services by the names that scripts use for them, and how each of them can be
// made to fail. Every operation passes one point (host_context.h), where a failure strikes and where whoever
// runs the host may act in the middle of the call.

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace algo::terminal {

enum class TServiceOperation : std::uint8_t {
  ConfigRead,
  ConfigStore,
  ConfigListen,
  ConfigUnlisten,
  LanguageText,
  ProfileRight,
  ProfileData,
  AccountKnown,
  OrdersList,
  OrdersNew,
  OrdersFree,
  OrdersCount,
  OrdersAt,
  ActionTake,
  ChannelPost,
  ChannelSubscribe,
  ChannelUnsubscribe,
  MarketItem,  ///< an item that is only looked at
  MarketInstrument,
  MarketListen,
  MarketUnlisten,
  SubscribeAdd,  ///< an item that is to be followed
  SubscribeListen,
  SubscribeRemove,
  SkinColor,
  SkinListen,
  SkinUnlisten,
  MessageText,
  MessageCode,
  EditorRegister,
  EditorRemove,
  EditorSymbol,
  EditorAccount,
  FormMake,
  FormShow,
  FormHide,
  FormClose,
  FormCaption,
  FormFront,
  ViewNotify,
};

/// How a call fails: it throws, or it gives an answer that a working host would not give.
enum class TFaultKind : std::uint8_t {
  Exception,  ///< an EHostFault is thrown
  Int,        ///< a number is thrown
  Empty,
  Wild,  ///< far outside of what is usual
  False,
  Null,
};

/// A set of fault kinds.
using TFaultKinds = std::uint8_t;
constexpr TFaultKinds Bit(TFaultKind kind) {
  return static_cast<TFaultKinds>(1U << static_cast<unsigned>(kind));
}

struct TServiceOperationRow {
  TServiceOperation operation;
  std::string_view name;
  TFaultKinds answers = 0;  ///< the kinds beside the thrown ones

  constexpr bool CanFailAs(TFaultKind kind) const {
    return ((answers | Bit(TFaultKind::Exception) | Bit(TFaultKind::Int)) & Bit(kind)) != 0;
  }
};

inline constexpr std::size_t ServiceOperationCount =
    static_cast<std::size_t>(TServiceOperation::ViewNotify) + 1;

/// The row of the operation.
const TServiceOperationRow& RowOf(TServiceOperation operation);

/// The row of the operation with that name; nullptr if there is none.
const TServiceOperationRow* FindServiceOperation(std::string_view name);

/// The kind with that name ("exception", "int", "empty", …), if there is one.
std::optional<TFaultKind> FindFaultKind(std::string_view name);

}  // namespace algo::terminal
