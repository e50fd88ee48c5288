#pragma once

// Orders as rows: a column for each property of an order, its text properties in tables of their own.

#include <memory>
#include <vector>

#include "plugin/host_contract/orders.h"
#include "terminal/storage/statement.h"

namespace algo::terminal::storage {

class TOrderRows {
 public:
  /// The connection outlives the object, and its database has the tables of the schema.
  explicit TOrderRows(TConnection& connection);

  /// Writes the order under its key, replacing what was there. Executes several statements, so the caller has
  /// to open a transaction. Throws EStorageError.
  void Store(const host::TCustomClientOrder& order);

  /// All orders, in the order in which their keys were first stored. Throws EStorageError.
  std::vector<std::unique_ptr<host::TCustomClientOrder>> All();

 private:
  TStatement FStore;
  TStatement FDeleteNumbered;
  TStatement FDeleteNamed;
  TStatement FStoreNumbered;
  TStatement FStoreNamed;
  TStatement FAll;
  TStatement FNumbered;
  TStatement FNamed;
};

}  // namespace algo::terminal::storage
