#pragma once

// The driver's main loop: reads one command per line and writes one answer per line.

#include <iosfwd>
#include <string_view>

#include "terminal/drive/json.h"

namespace algo::terminal::drive {

class TSession;

/// The line as a command. Throws ECommandError if the line is not a JSON object or is nested too deeply.
TCommandJson ParseCommand(std::string_view line);

/// Executes the commands of `script` one after the other; each answer is flushed before the next line is
/// read. Ends with the script, or when `answers` cannot be written any more.
void Drive(TSession& session, std::istream& script, std::ostream& answers);

}  // namespace algo::terminal::drive
