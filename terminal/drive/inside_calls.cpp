#include "terminal/drive/inside_calls.h"

#include <string>
#include <utility>

#include "terminal/drive/arguments.h"
#include "terminal/drive/operation_argument.h"

namespace algo::terminal::drive {

namespace {

TInsideEntry EntryOf(const TCommandJson& json) {
  if (!json.is_object()) throw ECommandError("'inside' must be a list of tables");
  const TArguments arguments(json);
  TInsideEntry entry;
  entry.call = AsServiceOperation("call", arguments.Required("call")).operation;
  if (const TCommandJson* nth = arguments.Find("nth")) entry.nth = AsCount("nth", *nth);
  entry.after = arguments.BooleanOr("after", false);
  entry.commands = &arguments.Required("commands");
  if (!entry.commands->is_array()) throw ECommandError("'commands' must be a list of commands");
  return entry;
}

}  // namespace

std::vector<TInsideEntry> InsideEntries(const TCommandJson& command) {
  std::vector<TInsideEntry> entries;
  const auto inside = command.find("inside");
  if (inside == command.end()) return entries;
  if (!inside->is_array()) throw ECommandError("'inside' must be a list of tables");
  for (const auto& json : *inside) entries.push_back(EntryOf(json));
  return entries;
}

TInsideCalls::TInsideCalls(TCommandStack& stack, TExecute execute)
    : FRunning(stack), FExecute(std::move(execute)) {}

std::uint32_t TInsideCalls::CallBegins(TServiceOperation operation) {
  const std::uint32_t number = ++FRunning.Current().calls[static_cast<std::size_t>(operation)];
  CarryOut(operation, number, false);
  return number;
}

void TInsideCalls::CallEnds(TServiceOperation operation, std::uint32_t number) {
  CarryOut(operation, number, true);
}

void TInsideCalls::CarryOut(TServiceOperation operation, std::uint32_t number, bool after) {
  TRunningCommand& running = FRunning.Current();
  for (const TInsideEntry& entry : running.insideEntries) {
    if (entry.call != operation || entry.nth != number || entry.after != after) continue;
    TAnswerJson answers = TAnswerJson::array();
    ++FRunningEntries;
    for (const auto& command : *entry.commands) answers.push_back(FExecute(command));
    --FRunningEntries;
    running.inside.push_back(
        {{"call", RowOf(operation).name}, {"nth", number}, {"answers", std::move(answers)}});
  }
}

}  // namespace algo::terminal::drive
