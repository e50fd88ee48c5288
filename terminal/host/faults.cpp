#include "terminal/host/faults.h"

#include <algorithm>
#include <array>
#include <utility>

namespace algo::terminal {

namespace {

constexpr std::array<std::string_view, 24> Operations{
    "config.read",      "config.store",      "language.text", "profile.right",     "profile.data",
    "orders.list",      "orders.new",        "orders.count",  "orders.at",         "action.take",
    "channel.post",     "channel.subscribe", "market.listen", "market.instrument", "subscribe.add",
    "subscribe.remove", "skin.color",        "account.known", "message.text",      "message.code",
    "editor.register",  "editor.symbol",     "form.make",     "view.notify"};

}  // namespace

bool TFaults::IsKnown(std::string_view operation) {
  return std::find(Operations.begin(), Operations.end(), operation) != Operations.end();
}

void TFaults::Set(std::set<std::string, std::less<>> operations) { FOperations = std::move(operations); }

void TFaults::Check(std::string_view operation) const {
  if (FOperations.contains(operation)) {
    throw EHostFault("The host fails at " + std::string(operation));
  }
}

}  // namespace algo::terminal
