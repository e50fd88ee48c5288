#include "terminal/storage/sqlite_storage.h"

#include <chrono>
#include <utility>

#include "terminal/storage/connection.h"
#include "terminal/storage/database_file.h"
#include "terminal/storage/event_rows.h"
#include "terminal/storage/order_rows.h"
#include "terminal/storage/schema.h"
#include "terminal/storage/statement.h"
#include "terminal/storage/storage_error.h"
#include "text/date_text.h"

namespace algo::terminal::storage {

namespace {

TConnection OpenDatabase(const std::string& file) {
  TConnection connection(UsableDatabaseFile(file));
  Migrate(connection, Migrations());
  // Only after the migration: while the header is still in the log and not in the file, the file could not be
  // recognised as ours.
  if (First<std::string>(connection, "PRAGMA journal_mode=WAL") != "wal") {
    throw EStorageError(connection.File(), "is on a disk that cannot store it safely.",
                        "Choose a file on another disk.");
  }
  return connection;
}

}  // namespace

struct TSqliteStorage::TDatabase {
  explicit TDatabase(const std::string& file) : connection(OpenDatabase(file)) {}

  TConnection connection;
  TOrderRows orders{connection};
  TEventRows events{connection};
  TStatement storeSetting{connection,
                          "INSERT INTO settings (section, key, value) VALUES (?, ?, ?)"
                          " ON CONFLICT (section, key) DO UPDATE SET value = excluded.value"};
  TStatement settings{connection, "SELECT section, key, value FROM settings"};
  TStatement storeWorkspace{connection,
                            "INSERT INTO workspaces (name, text) VALUES (?, ?)"
                            " ON CONFLICT (name) DO UPDATE SET text = excluded.text"};
  TStatement workspace{connection, "SELECT text FROM workspaces WHERE name = ?"};
  TStatement workspaceNames{connection, "SELECT name FROM workspaces ORDER BY name"};
};

std::string UtcNow() {
  const auto now = std::chrono::system_clock::now().time_since_epoch();
  const auto seconds = std::chrono::floor<std::chrono::seconds>(now);
  const auto rest = std::chrono::floor<std::chrono::milliseconds>(now - seconds);
  const std::string digits = std::to_string(1000 + rest.count());
  return text::DateTimeText(text::TDateTime(seconds)) + "." + digits.substr(1);
}

TSqliteStorage::TSqliteStorage(const std::string& file, TClock clock)
    : FDatabase(std::make_unique<TDatabase>(file)), FClock(std::move(clock)) {}

TSqliteStorage::~TSqliteStorage() = default;

void TSqliteStorage::StoreOrder(const TOrderEvent& event, const host::TCustomClientOrder& order) {
  TTransaction transaction(FDatabase->connection);
  FDatabase->orders.Store(order);
  FDatabase->events.Add(FClock(), event, order);
  transaction.Commit();
}

void TSqliteStorage::StoreEvent(const TOrderEvent& event, const host::TCustomClientOrder& order) {
  FDatabase->events.Add(FClock(), event, order);
}

void TSqliteStorage::StoreSetting(std::string_view section, std::string_view key, std::string_view value) {
  Execute(FDatabase->storeSetting, section, key, value);
}

void TSqliteStorage::LoadInto(THostData& data, TOrderStore& orders) {
  // Everything is read before anything is changed, so that a failure leaves both as they were.
  auto storedOrders = FDatabase->orders.All();
  TTextTables config = data.config;
  for (TQuery query(FDatabase->settings); query.Next();) {
    std::string section;
    std::string key;
    query.Read(section);
    query.Read(key);
    query.Read(config[section][key]);
  }
  data.config = std::move(config);
  for (auto& order : storedOrders) orders.Add(std::move(order));
}

std::vector<TStoredEvent> TSqliteStorage::EventsOf(std::string_view orderKey) {
  return FDatabase->events.Of(orderKey);
}

std::vector<TStoredEvent> TSqliteStorage::AllEvents() { return FDatabase->events.All(); }

std::optional<std::string> TSqliteStorage::Workspace(std::string_view name) {
  TQuery query(FDatabase->workspace, name);
  if (!query.Next()) return std::nullopt;
  std::string text;
  query.Read(text);
  return text;
}

void TSqliteStorage::StoreWorkspace(std::string_view name, std::string_view text) {
  Execute(FDatabase->storeWorkspace, name, text);
}

std::vector<std::string> TSqliteStorage::WorkspaceNames() {
  std::vector<std::string> names;
  for (TQuery query(FDatabase->workspaceNames); query.Next();) query.Read(names.emplace_back());
  return names;
}

}  // namespace algo::terminal::storage
