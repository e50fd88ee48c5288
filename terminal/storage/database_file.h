#pragma once

// What can be told of a file before SQLite opens it. SQLite mends and tidies what it opens, which is not ours
// to do to the file of somebody else.

#include <cstdint>
#include <string>

namespace algo::terminal::storage {

/// The mark of this terminal's databases in their header: "AOE1" as a number.
inline constexpr std::uint32_t DatabaseMark = 0x414F4531;

/// The absolute path of the file, with which SQLite gives no name a meaning of its own. Throws EStorageError
/// when its folder does not exist, or when it is there and is neither empty nor a database of this terminal.
/// With no effect on the file.
std::string UsableDatabaseFile(const std::string& file);

}  // namespace algo::terminal::storage
