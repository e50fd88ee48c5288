#pragma once

// The commands by name. Each subject has a source file of its own with its part of the table.

#include <span>
#include <string_view>

#include "terminal/drive/arguments.h"

namespace algo::terminal::drive {

class TSession;

/// One command. The handler reads the arguments, does the work and writes what the answer has beyond the
/// common members; it throws ECommandError if the command is refused.
struct TCommand {
  std::string_view name;
  void (*handler)(TSession& session, const TArguments& arguments, TAnswerJson& answer);
};

std::span<const TCommand> HostCommands();     ///< host data, and loading the module
std::span<const TCommand> ViewCommands();     ///< the provider and its views
std::span<const TCommand> InputCommands();    ///< the trader's input: typing, clicking, picking, closing
std::span<const TCommand> ControlCommands();  ///< reading controls, and setting them as a program does
std::span<const TCommand> MarketCommands();   ///< market data and spread tables
std::span<const TCommand> OrderCommands();    ///< the order store, posts, available quantity

/// The command of that name. Throws ECommandError if there is none.
const TCommand& FindCommand(std::string_view name);

}  // namespace algo::terminal::drive
