#pragma once

// Failures on demand: which operations of the host's services throw when they are called. They let a test see
// what a module does when the host cannot do what it is asked for.

#include <set>
#include <string>
#include <string_view>

#include "text/errors.h"

namespace algo::terminal {

/// What an operation throws that was told to fail. The text names the operation.
class EHostFault : public EError {
 public:
  using EError::EError;
};

class TFaults {
 public:
  /// Whether an operation of that name can be told to fail.
  static bool IsKnown(std::string_view operation);

  /// Makes exactly these operations fail from now on.
  void Set(std::set<std::string, std::less<>> operations);

  /// Throws EHostFault when the operation is to fail; with no effect otherwise.
  void Check(std::string_view operation) const;

 private:
  std::set<std::string, std::less<>> FOperations;
};

}  // namespace algo::terminal
