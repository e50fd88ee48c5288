#pragma once

// Commands that are carried out in the middle of a service call: a real host may do anything while it is
// asked something, and the module has to bear it.

#include <cstdint>
#include <vector>

#include "terminal/drive/command_stack.h"
#include "terminal/drive/execute.h"

namespace algo::terminal::drive {

/// The entries of a command's `inside`; none without it. Throws ECommandError if it is not a list of entries
/// as they have to be.
std::vector<TInsideEntry> InsideEntries(const TCommandJson& command);

class TInsideCalls {
 public:
  TInsideCalls(TCommandStack& stack, TExecute execute);

  /// Counts a call of the operation for the innermost command and carries out what that command has for it
  /// before its work. Returns the call's number.
  std::uint32_t CallBegins(TServiceOperation operation);
  /// Carries out what the innermost command has for the call with that number after its work.
  void CallEnds(TServiceOperation operation, std::uint32_t number);

  /// Whether commands are being carried out so.
  bool Running() const { return FRunningEntries > 0; }

 private:
  void CarryOut(TServiceOperation operation, std::uint32_t number, bool after);

  TCommandStack& FRunning;
  TExecute FExecute;
  int FRunningEntries = 0;
};

}  // namespace algo::terminal::drive
