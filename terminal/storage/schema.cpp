#include "terminal/storage/schema.h"

#include <sqlite3.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

#include "terminal/storage/statement.h"
#include "terminal/storage/storage_error.h"

namespace algo::terminal::storage {

namespace {

// Figures may be NULL, which is how SQLite stores NaN. An event has no foreign key to orders, since refused
// orders are on record too and never became an order.
constexpr std::array Steps{
    R"(
PRAGMA application_id = 1095714097;

CREATE TABLE orders (
  place            INTEGER PRIMARY KEY,  -- in which they came
  key              TEXT NOT NULL UNIQUE,
  order_no         TEXT NOT NULL,
  parent_no        TEXT NOT NULL,
  account          TEXT NOT NULL,
  symbol           TEXT NOT NULL,
  exchange         TEXT NOT NULL,
  user             TEXT NOT NULL,
  side             INTEGER NOT NULL,
  quantity         REAL,
  filled           REAL,
  committed        REAL,
  price            REAL,
  stop_price       REAL,
  status           INTEGER NOT NULL,
  order_type_flags INTEGER NOT NULL,
  auction_flags    INTEGER NOT NULL,
  algo_flags       INTEGER NOT NULL,
  flags            INTEGER NOT NULL
) STRICT;

CREATE TABLE numbered_texts (
  place  INTEGER NOT NULL REFERENCES orders (place),
  number INTEGER NOT NULL,
  text   TEXT NOT NULL,
  PRIMARY KEY (place, number)
) STRICT, WITHOUT ROWID;

CREATE TABLE named_texts (
  place INTEGER NOT NULL REFERENCES orders (place),
  name  TEXT NOT NULL,
  text  TEXT NOT NULL,
  PRIMARY KEY (place, name)
) STRICT, WITHOUT ROWID;

CREATE TABLE events (
  sequence  INTEGER PRIMARY KEY AUTOINCREMENT,
  time      TEXT NOT NULL,  -- UTC
  who       TEXT NOT NULL,
  what      TEXT NOT NULL,
  answer    TEXT NOT NULL,
  order_key TEXT NOT NULL,
  quantity  REAL,           -- here and below: of the order, then
  filled    REAL,
  price     REAL,
  status    INTEGER NOT NULL
) STRICT;
CREATE INDEX events_of_order ON events (order_key);
CREATE TRIGGER events_are_not_changed BEFORE UPDATE ON events
  BEGIN SELECT RAISE(ABORT, 'events are not changed'); END;
CREATE TRIGGER events_are_not_deleted BEFORE DELETE ON events
  BEGIN SELECT RAISE(ABORT, 'events are not deleted'); END;

CREATE TABLE settings (
  section TEXT NOT NULL,
  key     TEXT NOT NULL,
  value   TEXT NOT NULL,
  PRIMARY KEY (section, key)
) STRICT, WITHOUT ROWID;

CREATE TABLE workspaces (
  name TEXT NOT NULL PRIMARY KEY,
  text TEXT NOT NULL
) STRICT, WITHOUT ROWID;
)",
};

}  // namespace

std::span<const char* const> Migrations() { return Steps; }

void Migrate(TConnection& connection, std::span<const char* const> migrations) {
  // Begun before anything is read, so that of several terminals that start at once only one migrates and the
  // others find the file in use.
  TTransaction transaction(connection, TLock::Kept);
  const auto finding = First<std::string>(connection, "PRAGMA quick_check(1)");
  if (finding != "ok") throw StorageErrorOf(connection.File(), SQLITE_CORRUPT, finding);

  auto version = static_cast<std::size_t>(First<std::int64_t>(connection, "PRAGMA user_version"));
  if (version > migrations.size()) {
    throw EStorageError(connection.File(), "was last used by a newer version of the terminal.",
                        "Start that version, or choose another file.");
  }
  while (version < migrations.size()) {
    connection.Execute(migrations[version]);
    // Not a value from outside but the number of the step; SQLite takes no placeholder here.
    connection.Execute(("PRAGMA user_version=" + std::to_string(++version)).c_str());
  }
  transaction.Commit();
}

}  // namespace algo::terminal::storage
