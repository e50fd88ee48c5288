#pragma once

// Keeps what must outlive the terminal in one SQLite file: orders, the audit trail of what was done to them,
// settings and workspaces. What an operation kept is on the disk when it returns, and survives the end of the
// program however sudden.

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
  /// Opens the database, which is made when the file is not there or empty, and keeps everybody else out of
  /// it as long as it lives. With no effect on the file when it is damaged, belongs to another program, comes
  /// from a newer terminal, is in use, or cannot be written; and makes no folder.
  explicit TSqliteStorage(const std::string& file, TClock clock = UtcNow);
  ~TSqliteStorage() override;

  void KeepOrder(const TOrderEvent& event, const host::TCustomClientOrder& order) override;
  void KeepEvent(const TOrderEvent& event, const host::TCustomClientOrder& order) override;
  void KeepSetting(std::string_view section, std::string_view key, std::string_view value) override;

  /// Puts the kept settings into data.config, over those with the same keys, and adds the kept orders to
  /// `orders`, which has none of their keys, in the order in which they came.
  void LoadInto(THostData& data, TOrderStore& orders);

  /// The audit trail, oldest first: of the order with that key, or all of it.
  std::vector<TStoredEvent> EventsOf(std::string_view orderKey);
  std::vector<TStoredEvent> AllEvents();

  /// What was last kept under the name; nothing when nothing was.
  std::optional<std::string> Workspace(std::string_view name);
  void KeepWorkspace(std::string_view name, std::string_view text);
  /// In the order of their bytes.
  std::vector<std::string> WorkspaceNames();

 private:
  struct TDatabase;
  std::unique_ptr<TDatabase> FDatabase;
  TClock FClock;
};

}  // namespace algo::terminal::storage
