#pragma once

// Orders as rows: each property of an order a column, its text properties in tables beside it.

#include <memory>
#include <vector>

#include "plugin/host_contract/orders.h"
#include "terminal/storage/statement.h"

namespace algo::terminal::storage {

class TOrderRows {
 public:
  /// The connection outlives it, and has the tables of the schema.
  explicit TOrderRows(TConnection& connection);

  /// Writes the order under its key, in place of what was there. Several statements, so that the caller has a
  /// transaction open. Throws EStorageError.
  void Keep(const host::TCustomClientOrder& order);

  /// All orders, in the order in which their keys first came. Throws EStorageError.
  std::vector<std::unique_ptr<host::TCustomClientOrder>> All();

 private:
  TStatement FKeep;
  TStatement FForgetNumbered;
  TStatement FForgetNamed;
  TStatement FKeepNumbered;
  TStatement FKeepNamed;
  TStatement FAll;
  TStatement FNumbered;
  TStatement FNamed;
};

}  // namespace algo::terminal::storage
