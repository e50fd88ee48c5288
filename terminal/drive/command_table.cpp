#include "terminal/drive/command_table.h"

#include <algorithm>

namespace algo::terminal::drive {

const TCommand& FindCommand(std::string_view name) {
  for (const auto& part : {HostCommands(), ViewCommands(), InputCommands(), ControlCommands(),
                           MarketCommands(), OrderCommands()}) {
    const auto found = std::ranges::find(part, name, &TCommand::name);
    if (found != part.end()) return *found;
  }
  throw ECommandError("there is no command '" + std::string(name) + "'");
}

}  // namespace algo::terminal::drive
