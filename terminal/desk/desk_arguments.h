#pragma once

// The command line of the desktop.

#include <optional>
#include <string>

#include "terminal/desk/desk_options.h"

namespace algo::terminal {

/// What is left to do with the arguments: start with `options`, or end with `status` when there are none.
struct TDeskArguments {
  std::optional<TDeskOptions> options;
  int status = 0;
};

/// The status of a program that was given arguments of which it can make nothing.
inline constexpr int UnusableArguments = 2;

/// The folder of the sample market that comes with the program, in the nearest folder above it that has one.
std::string MarketBesideProgram();

/// Reads the command line. Asked for help prints it; arguments that are unusable are told in one line on the
/// standard error.
TDeskArguments ReadDeskArguments(int argc, char** argv);

}  // namespace algo::terminal
