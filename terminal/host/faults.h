#pragma once

// Failures on demand: which operations of the host's services throw when they are called. They let a test see
// how a module behaves when the host fails.

#include <set>
#include <string>
#include <string_view>

#include "text/errors.h"

namespace algo::terminal {

/// Thrown by an operation that was made to fail. The text names the operation.
class EHostFault : public EError {
 public:
  using EError::EError;
};

class TFaults {
 public:
  /// Whether there is an operation of that name that can be made to fail.
  static bool IsKnown(std::string_view operation);

  /// Makes exactly these operations fail from now on.
  void Set(std::set<std::string, std::less<>> operations);

  /// Throws EHostFault if the operation is to fail; otherwise without effect.
  void Check(std::string_view operation) const;

 private:
  std::set<std::string, std::less<>> FOperations;
};

}  // namespace algo::terminal
