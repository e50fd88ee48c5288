#pragma once

// How the parts of a session carry out commands that stand inside others.

#include <functional>

#include "terminal/drive/json.h"

namespace algo::terminal::drive {

/// Executes one command and returns its answer. Throws nothing.
using TExecute = std::function<TAnswerJson(const TCommandJson& command)>;

}  // namespace algo::terminal::drive
