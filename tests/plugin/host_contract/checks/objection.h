#pragma once

// What a strict host has against a call, for the tests of its layers.

#include <string>

#include "plugin/host_contract/checks/strict_host.h"
#include "text/errors.h"

namespace algo::host::checks::tests {

class EViolation : public EError {
 public:
  using EError::EError;
};

/// Has the host throw at violations, as Objection expects of it.
inline void ThrowViolations(TStrictHost& strict) {
  strict.OnViolation([](const std::string& what) { throw EViolation(what); });
}

/// What the strict host says about the call; empty when it lets it pass.
template <class TCall>
std::string Objection(TCall&& call) {
  try {
    call();
  } catch (const EViolation& violation) {
    return violation.what();
  }
  return {};
}

}  // namespace algo::host::checks::tests
