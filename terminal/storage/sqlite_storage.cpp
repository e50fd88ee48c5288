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
  BringUpToDate(connection, Migrations());
  // Not before the tables are there: what a log holds back is not in the file's header yet, and by its header
  // the file is known as ours.
  if (First<std::string>(connection, "PRAGMA journal_mode=WAL") != "wal") {
    throw EStorageError(connection.File(), "is on a disk that cannot keep it safely.",
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
  TStatement keepSetting{connection,
                         "INSERT INTO settings (section, key, value) VALUES (?, ?, ?)"
                         " ON CONFLICT (section, key) DO UPDATE SET value = excluded.value"};
  TStatement settings{connection, "SELECT section, key, value FROM settings"};
  TStatement keepWorkspace{connection,
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

void TSqliteStorage::KeepOrder(const TOrderEvent& event, const host::TCustomClientOrder& order) {
  TTransaction transaction(FDatabase->connection);
  FDatabase->orders.Keep(order);
  FDatabase->events.Keep(FClock(), event, order);
  transaction.Commit();
}

void TSqliteStorage::KeepEvent(const TOrderEvent& event, const host::TCustomClientOrder& order) {
  FDatabase->events.Keep(FClock(), event, order);
}

void TSqliteStorage::KeepSetting(std::string_view section, std::string_view key, std::string_view value) {
  Run(FDatabase->keepSetting, section, key, value);
}

void TSqliteStorage::LoadInto(THostData& data, TOrderStore& orders) {
  // Everything is read before anything is put in, so that a failure leaves both as they were.
  auto keptOrders = FDatabase->orders.All();
  TTextTables config = data.config;
  for (TRun run(FDatabase->settings); run.Next();) {
    std::string section;
    std::string key;
    run.Take(section);
    run.Take(key);
    run.Take(config[section][key]);
  }
  data.config = std::move(config);
  for (auto& order : keptOrders) orders.Add(std::move(order));
}

std::vector<TStoredEvent> TSqliteStorage::EventsOf(std::string_view orderKey) {
  return FDatabase->events.Of(orderKey);
}

std::vector<TStoredEvent> TSqliteStorage::AllEvents() { return FDatabase->events.All(); }

std::optional<std::string> TSqliteStorage::Workspace(std::string_view name) {
  TRun run(FDatabase->workspace, name);
  if (!run.Next()) return std::nullopt;
  std::string text;
  run.Take(text);
  return text;
}

void TSqliteStorage::KeepWorkspace(std::string_view name, std::string_view text) {
  Run(FDatabase->keepWorkspace, name, text);
}

std::vector<std::string> TSqliteStorage::WorkspaceNames() {
  std::vector<std::string> names;
  for (TRun run(FDatabase->workspaceNames); run.Next();) run.Take(names.emplace_back());
  return names;
}

}  // namespace algo::terminal::storage
