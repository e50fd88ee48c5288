#pragma once

// Failures on demand: which calls of which operations of the host's services fail, and how. They let a test
// see how a module behaves when the host fails.

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "terminal/host/service_operations.h"
#include "text/errors.h"

namespace algo::terminal {

/// Thrown by an operation that was made to fail. The text names the operation.
class EHostFault : public EError {
 public:
  using EError::EError;
};

/// One failure: the calls of an operation that fail, counted from when the failure is set, and how they do.
struct TFault {
  TServiceOperation operation = TServiceOperation::ConfigRead;
  std::uint32_t from = 1;              ///< the first call that fails
  std::optional<std::uint32_t> times;  ///< how many fail from there on; all without it
  TFaultKind kind = TFaultKind::Exception;
};

/// A failure that strikes without a throw: the answer to give instead of doing the work.
struct TFaultAnswer {
  TFaultKind kind = TFaultKind::Empty;
  std::uint32_t turn = 0;  ///< how many calls the same failure has struck before
};

class TFaults {
 public:
  /// Makes every call of exactly these operations throw from now on. The names are in the table.
  void Set(const std::set<std::string, std::less<>>& operations);

  /// Makes exactly these calls fail. Counting starts anew.
  void SetAll(const std::vector<TFault>& faults);

  /// Whether any call may fail.
  bool Any() const { return !FFaults.empty(); }

  /// Counts a call of the operation. Throws EHostFault, or a number, if it is to fail so; returns the answer
  /// to give if it is to fail by a wrong one; nothing if it is to work. Where several failures are set for
  /// one call, the first one strikes.
  std::optional<TFaultAnswer> Strike(TServiceOperation operation);

 private:
  struct TCounted : TFault {
    std::uint32_t calls = 0;
    std::uint32_t struck = 0;
  };

  std::vector<TCounted> FFaults;
};

}  // namespace algo::terminal
