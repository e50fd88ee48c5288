#pragma once

// What belongs to the platform about showing windows.

namespace algo::terminal {

/// Whether windows can be shown; asked before there is an application, which would end the program without a
/// word.
bool HasWindowSystem();

/// Whether what the application shows is seen by anybody, and so can be answered.
bool SomebodyLooks();

}  // namespace algo::terminal
