#pragma once

// The commands that are running: one, or several while dialogs are open or service calls are acted in, since
// what is executed there runs inside the command that led to it. Events belong to the innermost command.

#include <array>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "terminal/drive/json.h"
#include "terminal/host/service_operations.h"

namespace algo::terminal::drive {

/// Commands to carry out in the middle of one call of a service.
struct TInsideEntry {
  TServiceOperation call = TServiceOperation::ConfigRead;
  std::uint32_t nth = 1;  ///< which of the command's calls of the operation
  bool after = false;     ///< after the work of the call, not before it
  const TCommandJson* commands = nullptr;
};

/// One command that is running.
struct TRunningCommand {
  std::vector<const TCommandJson*>
      dialogScripts;  ///< the commands for each dialog that opens, first dialog first
  std::size_t dialogsOpened = 0;
  std::vector<TInsideEntry> insideEntries;
  std::array<std::uint32_t, ServiceOperationCount> calls{};  ///< how many of each operation there were
  TAnswerJson inside = TAnswerJson::array();  ///< the entries that were reached, for the answer
  TAnswerJson events = TAnswerJson::array();
  TAnswerJson dialogs = TAnswerJson::array();  ///< the dialogs that have closed, for the answer
  std::string violation;                       ///< the first contract violation; empty while there is none
};

class TCommandStack {
 public:
  /// Puts a command on top for the lifetime of the object.
  class TPush {
   public:
    TPush(TCommandStack& stack, TRunningCommand& command) : FStack(stack) {
      FStack.FCommands.push_back(&command);
    }
    ~TPush() { FStack.FCommands.pop_back(); }
    TPush(const TPush&) = delete;
    TPush& operator=(const TPush&) = delete;

   private:
    TCommandStack& FStack;
  };

  /// The innermost command. Between commands, and at the end of the script, it is one that nobody asks.
  TRunningCommand& Current() { return FCommands.empty() ? FNone : *FCommands.back(); }

  void AddEvent(TAnswerJson event) { Current().events.push_back(std::move(event)); }

 private:
  std::vector<TRunningCommand*> FCommands;
  TRunningCommand FNone;
};

}  // namespace algo::terminal::drive
