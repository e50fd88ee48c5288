#pragma once

// The place where the layers of the strict host report a call that the contract forbids.

#include <string>
#include <utility>

#include "plugin/host_contract/checks/strict_host.h"

namespace algo::host::checks {

class TViolations {
 public:
  void SetHandler(TStrictHost::TViolationHandler handler) { FHandler = std::move(handler); }

  /// Reports what is wrong. A handler that returns in spite of its contract ends the program.
  [[noreturn]] void Report(const std::string& what) const;

  /// Reports `what` unless it holds.
  void Require(bool holds, const char* what) const {
    if (!holds) Report(what);
  }

 private:
  TStrictHost::TViolationHandler FHandler;
};

}  // namespace algo::host::checks
