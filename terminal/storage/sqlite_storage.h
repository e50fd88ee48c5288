#pragma once

// Stores what must outlive the terminal in one SQLite file: orders, the audit trail of what was done to them,
// settings and workspaces. What an operation stored is on the disk when it returns, and survives even a
// sudden end of the program.

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "terminal/host/host_data.h"
#include "terminal/host/order_storage.h"
#include "terminal/host/order_store.h"
#include "terminal/storage/stored_event.h"

namespace algo::terminal::storage {

/// The time now, UTC, as "YYYY-MM-DD HH:MM:SS.mmm".
using TClock = std::function<std::string()>;
std::string UtcNow();

/// Every operation throws EStorageError (storage_error.h) when it fails, and has then changed nothing.
class TSqliteStorage final : public TOrderStorage {
 public:
  /// Opens the database, which is created if the file is missing or empty, and locks it for its lifetime.
  /// Leaves the file unchanged if it is damaged, belongs to another program, comes from a newer terminal, is
  /// in use, or cannot be written; creates no folder.
  explicit TSqliteStorage(const std::string& file, TClock clock = UtcNow);
  ~TSqliteStorage() override;

  void StoreOrder(const TOrderEvent& event, const host::TCustomClientOrder& order) override;
  void StoreEvent(const TOrderEvent& event, const host::TCustomClientOrder& order) override;
  void StoreSetting(std::string_view section, std::string_view key, std::string_view value) override;

  /// Puts the stored settings into data.config, replacing those with the same keys, and adds the stored
  /// orders to `orders`, which has none of their keys, in the order in which they were first stored.
  void LoadInto(THostData& data, TOrderStore& orders);

  /// The audit trail, oldest first: of the order with that key, or of all orders.
  std::vector<TStoredEvent> EventsOf(std::string_view orderKey);
  std::vector<TStoredEvent> AllEvents();

  /// What was last stored under the name; nothing if nothing was.
  std::optional<std::string> Workspace(std::string_view name);
  void StoreWorkspace(std::string_view name, std::string_view text);
  /// In the order of their bytes.
  std::vector<std::string> WorkspaceNames();

 private:
  struct TDatabase;
  std::unique_ptr<TDatabase> FDatabase;
  TClock FClock;
};

}  // namespace algo::terminal::storage
