#pragma once

// The tables of the database, and the migration of older databases.

#include <span>

#include "terminal/storage/connection.h"

namespace algo::terminal::storage {

/// The step with index n leads from version n to version n + 1; version 0 is the empty file. A step that was
/// ever released is not changed any more.
std::span<const char* const> Migrations();

/// Checks the integrity of the database, and executes the steps that it lacks, all of them or none. Throws
/// EStorageError, with no effect on the database, if it is damaged, has a later version than these steps lead
/// to, or a step fails.
void Migrate(TConnection& connection, std::span<const char* const> migrations);

}  // namespace algo::terminal::storage
