#pragma once

// The driver's outer loop: a command a line in, an answer a line out.

#include <iosfwd>
#include <string_view>

#include "terminal/drive/json.h"

namespace algo::terminal::drive {

class TSession;

/// The line as a command. Throws ECommandError for a line that is no JSON object or is nested too deeply.
TCommandJson ParseCommand(std::string_view line);

/// Carries out the commands of `script` one after the other; each answer is written out before the next line
/// is read. Ends with the script, or when nobody takes the answers any more.
void Drive(TSession& session, std::istream& script, std::ostream& answers);

}  // namespace algo::terminal::drive
