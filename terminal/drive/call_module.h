#pragma once

// Calls into the module. A module must not let an exception out; if one comes out nevertheless, the answer
// says that the module is at fault.

#include <exception>
#include <string>
#include <utility>

#include "terminal/drive/json.h"

namespace algo::terminal::drive {

/// Runs `call`, which calls into the module, and returns its result. Throws ECommandError for any exception.
template <class TCall>
decltype(auto) CallModule(TCall&& call) {
  const std::string crossed = "exception crossed the boundary: ";
  try {
    return std::forward<TCall>(call)();
  } catch (const ECommandError&) {
    // The driver's own, for instance because the provider has gone in the middle.
    throw;
  } catch (const std::exception& error) {
    throw ECommandError(crossed + error.what());
  } catch (...) {
    throw ECommandError(crossed + "it has no text");
  }
}

}  // namespace algo::terminal::drive
