#pragma once

// Prepared statements. Values are bound to placeholders and never become part of the SQL; a query binds them,
// and reads columns, in the order in which the SQL names them.

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "terminal/storage/connection.h"

struct sqlite3_stmt;

namespace algo::terminal::storage {

class TStatement {
 public:
  /// Throws EStorageError if the database lacks what the statement names. The connection outlives it.
  TStatement(TConnection& connection, std::string_view sql);

 private:
  friend class TQuery;
  struct TFinalize {
    void operator()(sqlite3_stmt* handle) const;
  };

  TConnection& FConnection;
  std::unique_ptr<sqlite3_stmt, TFinalize> FHandle;
};

/// One execution of a statement, which must have no other at that time. It releases its locks when destroyed.
class TQuery {
 public:
  template <class... TValues>
  explicit TQuery(TStatement& statement, const TValues&... values) : FStatement(statement) {
    (Bind(values), ...);
  }
  ~TQuery();
  TQuery(const TQuery&) = delete;
  TQuery& operator=(const TQuery&) = delete;

  /// Binds a value to the next placeholder. Texts keep every byte, NUL included; NaN becomes NULL.
  void Bind(std::string_view value);
  void Bind(double value);
  void Bind(std::int32_t value) { Bind(std::int64_t{value}); }
  void Bind(std::uint32_t value) { Bind(std::int64_t{value}); }
  void Bind(std::int64_t value);

  /// Goes to the next row; false if there is none and the statement is finished. Throws EStorageError.
  bool Next();

  /// Reads the next column of the row, as Bind wrote it.
  void Read(std::string& value);
  void Read(double& value);
  void Read(std::int32_t& value);
  void Read(std::uint32_t& value);
  void Read(std::int64_t& value);

 private:
  void Check(int code) const;
  sqlite3_stmt* Handle() const { return FStatement.FHandle.get(); }

  TStatement& FStatement;
  int FBound = 0;
  int FColumns = 0;
};

/// Executes a statement that returns no rows. Throws EStorageError if it fails.
template <class... TValues>
void Execute(TStatement& statement, const TValues&... values) {
  TQuery query(statement, values...);
  while (query.Next()) {
  }
}

/// The first column of the first row; zero or empty if there is no row. Throws EStorageError.
template <class TValue>
TValue First(TConnection& connection, std::string_view sql) {
  TStatement statement(connection, sql);
  TQuery query(statement);
  TValue value{};
  if (query.Next()) query.Read(value);
  return value;
}

}  // namespace algo::terminal::storage
