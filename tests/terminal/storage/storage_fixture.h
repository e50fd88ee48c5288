#pragma once

// A database in a folder of its own, with helpers to fill and inspect it.

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "terminal/storage/sqlite_storage.h"
#include "terminal/storage/storage_error.h"
#include "tests/terminal/temporary_folder.h"

namespace algo::terminal::storage::tests {

using terminal::tests::FileBytes;
using terminal::tests::TTemporaryFolder;
using terminal::tests::WriteFileBytes;

inline constexpr const char* FixedTime = "2024-02-29 23:59:59.007";

/// The message of the error that the operation throws; empty if it succeeds.
template <class TOperation>
std::string MessageOf(TOperation&& operation) {
  try {
    operation();
  } catch (const EStorageError& error) {
    return error.what();
  }
  return {};
}

inline host::TCustomClientOrder OrderWithKey(const std::string& key, double quantity = 0) {
  host::TCustomClientOrder order;
  order.key = key;
  order.quantity = quantity;
  return order;
}

struct TStorageTest : testing::Test {
  std::unique_ptr<TSqliteStorage> Open() const {
    return std::make_unique<TSqliteStorage>(file, [] { return std::string(FixedTime); });
  }

  /// Opens the database again and loads its content.
  void Load() {
    const auto storage = Open();
    storage->LoadInto(data, orders);
    events = storage->AllEvents();
  }

  std::vector<std::string> LoadedKeys() const {
    std::vector<std::string> keys;
    for (const auto& order : orders.All()) keys.push_back(order->key);
    return keys;
  }

  TTemporaryFolder folder;
  std::string file = folder.Path("terminal.db");
  THostData data;
  TOrderStore orders;
  std::vector<TStoredEvent> events;
};

}  // namespace algo::terminal::storage::tests
