// How a database is migrated from version to version.

#include "terminal/storage/schema.h"

#include <array>

#include "terminal/storage/connection.h"
#include "terminal/storage/statement.h"
#include "tests/terminal/storage/storage_fixture.h"

namespace algo::terminal::storage::tests {
namespace {

constexpr std::array Old{"CREATE TABLE a (x); INSERT INTO a VALUES ('stored')"};
constexpr std::array Later{Old[0], "ALTER TABLE a ADD COLUMN y DEFAULT 'added'",
                           "CREATE TABLE b AS SELECT x || y AS z FROM a"};
constexpr std::array Broken{Old[0], Later[1], "CREATE TABLE b (z); INSERT INTO b VALUES ('lost'); nonsense"};

struct TSchema : TStorageTest {
  void Bring(std::span<const char* const> migrations) const {
    TConnection connection(file);
    Migrate(connection, migrations);
  }
  template <class TValue>
  TValue Ask(const char* sql) const {
    TConnection connection(file);
    return First<TValue>(connection, sql);
  }
};

TEST_F(TSchema, AnEmptyFileComesToTheVersionOfThisTerminal) {
  Open();
  EXPECT_EQ(Ask<std::int64_t>("PRAGMA user_version"), 1);
  EXPECT_EQ(Ask<std::int64_t>("PRAGMA application_id"), 0x414F4531);
  EXPECT_EQ(Ask<std::string>("PRAGMA journal_mode"), "wal");
  EXPECT_EQ(Ask<std::string>("PRAGMA integrity_check"), "ok");
}

TEST_F(TSchema, ADatabaseOfThisVersionIsNotChangedByOpeningIt) {
  Open()->StoreOrder({"me", "new", "accepted"}, OrderWithKey("K"));
  const std::string bytes = FileBytes(file);
  Open();
  EXPECT_EQ(FileBytes(file), bytes);
}

TEST_F(TSchema, AnOlderDatabaseIsTakenThroughTheStepsThatItLacks) {
  Bring(Old);
  EXPECT_EQ(Ask<std::int64_t>("PRAGMA user_version"), 1);
  Bring(Later);
  EXPECT_EQ(Ask<std::int64_t>("PRAGMA user_version"), 3);
  EXPECT_EQ(Ask<std::string>("SELECT z FROM b"), "storedadded");
  Bring(Later);
  EXPECT_EQ(Ask<std::int64_t>("SELECT count(*) FROM b"), 1);
}

TEST_F(TSchema, AStepThatFailsLeavesTheDatabaseAtItsVersion) {
  Bring(Old);
  const std::string bytes = FileBytes(file);
  EXPECT_NE(MessageOf([this] { Bring(Broken); }), "");
  EXPECT_EQ(FileBytes(file), bytes);
  EXPECT_EQ(Ask<std::int64_t>("PRAGMA user_version"), 1);
}

TEST_F(TSchema, AConnectionIsSetUpForSafety) {
  TConnection connection(file);
  Migrate(connection, Migrations());
  EXPECT_EQ(First<std::int64_t>(connection, "PRAGMA synchronous"), 2);
  EXPECT_EQ(First<std::int64_t>(connection, "PRAGMA foreign_keys"), 1);
  EXPECT_EQ(First<std::string>(connection, "PRAGMA locking_mode"), "exclusive");
}

}  // namespace
}  // namespace algo::terminal::storage::tests
