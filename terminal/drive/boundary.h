#pragma once

// Calls into the module. A module lets no exception out; one that comes out all the same is the module's
// fault, and the answer says so.

#include <exception>
#include <string>
#include <utility>

#include "terminal/drive/json.h"

namespace algo::terminal::drive {

/// Runs `call`, which leads into the module, and returns what it returns. Throws ECommandError for whatever
/// comes out.
template <class TCall>
decltype(auto) CallModule(TCall&& call) {
  const std::string crossed = "exception crossed the boundary: ";
  try {
    return std::forward<TCall>(call)();
  } catch (const std::exception& error) {
    throw ECommandError(crossed + error.what());
  } catch (...) {
    throw ECommandError(crossed + "it has no text");
  }
}

}  // namespace algo::terminal::drive
