#pragma once

// The commands that are under way: one, or more while dialogs show, since the commands that are carried out
// in a dialog run inside the one that led to it. What the host sees belongs to the innermost.

#include <string>
#include <utility>
#include <vector>

#include "terminal/drive/json.h"

namespace algo::terminal::drive {

/// One command under way.
struct TRun {
  std::vector<const TCommandJson*>
      dialogScripts;  ///< the commands for each dialog that opens, first dialog first
  std::size_t dialogsOpened = 0;
  TAnswerJson events = TAnswerJson::array();
  TAnswerJson dialogs = TAnswerJson::array();  ///< what the answer tells of the dialogs that have closed
  std::string violation;  ///< the first breach of the contract; empty while there is none
};

class TRunStack {
 public:
  /// Puts a run on top for the life of the object.
  class TPush {
   public:
    TPush(TRunStack& stack, TRun& run) : FStack(stack) { FStack.FRuns.push_back(&run); }
    ~TPush() { FStack.FRuns.pop_back(); }
    TPush(const TPush&) = delete;
    TPush& operator=(const TPush&) = delete;

   private:
    TRunStack& FStack;
  };

  /// The innermost command. What happens between commands, at the end of the script, belongs to nobody.
  TRun& Current() { return FRuns.empty() ? FNobody : *FRuns.back(); }

  void AddEvent(TAnswerJson event) { Current().events.push_back(std::move(event)); }

 private:
  std::vector<TRun*> FRuns;
  TRun FNobody;
};

}  // namespace algo::terminal::drive
