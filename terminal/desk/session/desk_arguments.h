#pragma once

// The command line of the desktop's programs.

#include <functional>
#include <optional>
#include <string>

#include "terminal/desk/session/desk_options.h"

namespace CLI {  // NOLINT(readability-identifier-naming): the library's own name
class App;
}

namespace algo::terminal::desk {

/// What is left to do with the arguments: start with `options`, or end with `status` when there are none.
struct TDeskArguments {
  std::optional<TDeskOptions> options;
  int status = 0;
};

/// The status of a program that was given arguments of which it can make nothing.
inline constexpr int UnusableArguments = 2;

/// The folder of the sample market that comes with the program, in the nearest folder above it that has one.
std::string MarketBesideProgram();

/// Reads the command line of the program of that name; `addOptions`, unless empty, adds those that it has
/// beyond the desktop's. Asked for help prints it; unusable arguments are reported in one line on the
/// standard error.
TDeskArguments ReadDeskArguments(const std::string& program, int argc, char** argv,
                                 const std::function<void(CLI::App&)>& addOptions = {});

}  // namespace algo::terminal::desk
