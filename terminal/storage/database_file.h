#pragma once

// Checks a file before SQLite opens it. SQLite repairs and cleans up what it opens, which must not happen to
// somebody else's file.

#include <cstdint>
#include <string>

namespace algo::terminal::storage {

/// The application id of this terminal's databases in their header: "AOE1" as a number.
inline constexpr std::uint32_t ApplicationId = 0x414F4531;

/// The absolute path of the file, since SQLite gives some relative names a special meaning. Throws
/// EStorageError if its folder does not exist, or if the file exists and is neither empty nor a database of
/// this terminal. Does not change the file.
std::string UsableDatabaseFile(const std::string& file);

}  // namespace algo::terminal::storage
