#pragma once

// What the desktop's programs have in common: their arguments, the application object, and what they say when
// they cannot start.

#include <functional>
#include <string>

#include "terminal/desk/session/desk_arguments.h"

namespace algo::terminal::desk::window {

struct TDeskProgram {
  std::string name;
  /// Adds the options that the program has beyond the desktop's; may be empty.
  std::function<void(CLI::App&)> addOptions;
  /// Runs the desktop, for which there is an application object, and returns the status to end with.
  std::function<int(const TDeskOptions&)> run;
};

/// Runs the program and returns its status. What it throws is reported in one line on the standard error, and
/// in a message box where somebody can see it.
int RunDeskProgram(const TDeskProgram& program, int argc, char** argv);

}  // namespace algo::terminal::desk::window
