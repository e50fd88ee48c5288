#pragma once

// The tables of the database, and how an older database comes to have them.

#include <span>

#include "terminal/storage/connection.h"

namespace algo::terminal::storage {

/// Step n, counted from 0, leads from version n to version n + 1; version 0 is the empty file. A step that
/// was once delivered is never changed again.
std::span<const char* const> Migrations();

/// Checks that the database is whole, and carries out the steps that it lacks, all of them or none. Throws
/// EStorageError, with no effect on the database, when it is damaged, has had more steps than are given here,
/// or a step fails.
void BringUpToDate(TConnection& connection, std::span<const char* const> migrations);

}  // namespace algo::terminal::storage
