// Market data of symbols, and spread tables.

#include <array>
#include <charconv>

#include "terminal/drive/call_module.h"
#include "terminal/drive/command_table.h"
#include "terminal/drive/session.h"

namespace algo::terminal::drive {

namespace {

std::int32_t FieldNumber(const std::string& text) {
  std::int32_t number = 0;
  const auto end = std::from_chars(text.data(), text.data() + text.size(), number);
  if (text.empty() || end.ec != std::errc() || end.ptr != text.data() + text.size()) {
    throw ECommandError("'" + text + "' is not a field number");
  }
  return number;
}

TFieldChanges FieldChanges(const TArguments& arguments) {
  TFieldChanges changes;
  const TCommandJson* fields = arguments.Find("fields");
  if (fields == nullptr) return changes;
  for (const auto& [number, value] : AsTable("fields", *fields).items()) {
    auto& change = changes[FieldNumber(number)];
    if (!value.is_null()) change = AsText(number, value);
  }
  return changes;
}

void Market(TSession& session, const TArguments& arguments, TAnswerJson& /*answer*/) {
  const auto& symbol = arguments.Text("symbol");
  std::optional<std::int32_t> state;
  if (arguments.Has("state")) state = arguments.Integer("state");
  const auto changes = FieldChanges(arguments);
  const bool notify = arguments.BooleanOr("notify", true);
  const bool others = arguments.BooleanOr("others", false);
  const auto notice = !notify  ? TMarketNotice::None
                      : others ? TMarketNotice::OtherItems
                               : TMarketNotice::Item;
  CallModule([&] { session.Host().SetMarket(symbol, state, changes, notice); });
}

void Spread(TSession& session, const TArguments& arguments, TAnswerJson& /*answer*/) {
  const auto codes = AsTexts("codes", arguments.Required("codes"));
  CallModule([&] { session.Host().NotifySpreadChanged(codes); });
}

constexpr std::array Commands{TCommand{"market", Market}, TCommand{"spread", Spread}};

}  // namespace

std::span<const TCommand> MarketCommands() { return Commands; }

}  // namespace algo::terminal::drive
