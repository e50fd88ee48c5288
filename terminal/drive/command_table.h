#pragma once

// The commands by name. Each subject has its own source with its part of the table.

#include <span>
#include <string_view>

#include "terminal/drive/arguments.h"

namespace algo::terminal::drive {

class TSession;

/// One command: reads its arguments, does its work and writes what the answer has beyond the common members.
/// Throws ECommandError when the command is refused.
struct TCommand {
  std::string_view name;
  void (*handler)(TSession& session, const TArguments& arguments, TAnswerJson& answer);
};

std::span<const TCommand> HostCommands();     ///< host data, and loading the module
std::span<const TCommand> ViewCommands();     ///< the provider and its views
std::span<const TCommand> TraderCommands();   ///< typing, clicking, picking, closing
std::span<const TCommand> LookingCommands();  ///< reading, and the program's own hand on controls
std::span<const TCommand> MarketCommands();   ///< market data and spread tables
std::span<const TCommand> OrderCommands();    ///< the order store, posts, available quantity

/// The command of that name. Throws ECommandError when there is none.
const TCommand& FindCommand(std::string_view name);

}  // namespace algo::terminal::drive
