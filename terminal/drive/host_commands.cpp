// The host's data, and the module in it.

#include <array>

#include "terminal/drive/call_module.h"
#include "terminal/drive/command_table.h"
#include "terminal/drive/host_merge.h"
#include "terminal/drive/session.h"

namespace algo::terminal::drive {

namespace {

void Host(TSession& session, const TArguments& arguments, TAnswerJson& /*answer*/) {
  TCommandJson changes = arguments.All();
  // What is left are the changes to the host's data.
  for (const char* common : {"do", "id", "modal", "inside"}) changes.erase(common);
  MergeHostData(changes, session.Host().Data());
}

void ConfigChanged(TSession& session, const TArguments& /*arguments*/, TAnswerJson& /*answer*/) {
  CallModule([&] { session.Host().NotifyConfigChanged(); });
}

void DropProvider(TSession& session, const TArguments& /*arguments*/, TAnswerJson& /*answer*/) {
  session.DropProvider();
}

void Load(TSession& session, const TArguments& /*arguments*/, TAnswerJson& /*answer*/) { session.Load(); }

void Unload(TSession& session, const TArguments& /*arguments*/, TAnswerJson& answer) {
  const host::checks::TLeftBehind left = session.Unload();
  answer["left"] = {{"channels", left.channels},
                    {"config_listeners", left.configListeners},
                    {"market_listeners", left.marketListeners},
                    {"subscriptions", left.subscriptions},
                    {"editors", left.editors},
                    {"skin_listeners", left.skinListeners},
                    {"orders", left.orders},
                    {"forms", left.forms}};
}

constexpr std::array Commands{TCommand{"host", Host}, TCommand{"config_changed", ConfigChanged},
                              TCommand{"load", Load}, TCommand{"drop_provider", DropProvider},
                              TCommand{"unload", Unload}};

}  // namespace

std::span<const TCommand> HostCommands() { return Commands; }

}  // namespace algo::terminal::drive
