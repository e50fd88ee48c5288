#pragma once

// Prepared statements. Values go in by marks and never become part of the SQL; a run puts them in, and takes
// columns out, in the order in which the SQL names them.

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "terminal/storage/connection.h"

struct sqlite3_stmt;

namespace algo::terminal::storage {

class TStatement {
 public:
  /// Throws EStorageError when the database has not what the statement names. The connection outlives it.
  TStatement(TConnection& connection, std::string_view sql);

 private:
  friend class TRun;
  struct TFinalize {
    void operator()(sqlite3_stmt* handle) const;
  };

  TConnection& FConnection;
  std::unique_ptr<sqlite3_stmt, TFinalize> FHandle;
};

/// One run of a statement, which has no other at that time. What it holds of the database is let go with it.
class TRun {
 public:
  template <class... TValues>
  explicit TRun(TStatement& statement, const TValues&... values) : FStatement(statement) {
    (Put(values), ...);
  }
  ~TRun();
  TRun(const TRun&) = delete;
  TRun& operator=(const TRun&) = delete;

  /// Puts a value in for the next mark. Texts keep every byte, NUL included; a number that is none is NULL.
  void Put(std::string_view value);
  void Put(double value);
  void Put(std::int32_t value) { Put(std::int64_t{value}); }
  void Put(std::uint32_t value) { Put(std::int64_t{value}); }
  void Put(std::int64_t value);

  /// Goes to the next row; false when there is none, and the statement is carried out. Throws EStorageError.
  bool Next();

  /// Takes the next column of the row, as Put wrote it.
  void Take(std::string& value);
  void Take(double& value);
  void Take(std::int32_t& value);
  void Take(std::uint32_t& value);
  void Take(std::int64_t& value);

 private:
  void Check(int code) const;
  sqlite3_stmt* Handle() const { return FStatement.FHandle.get(); }

  TStatement& FStatement;
  int FMarks = 0;
  int FColumns = 0;
};

/// Carries out a statement that answers nothing. Throws EStorageError when it fails.
template <class... TValues>
void Run(TStatement& statement, const TValues&... values) {
  TRun run(statement, values...);
  while (run.Next()) {
  }
}

/// The first column of the first row; zero or empty when there is no row. Throws EStorageError.
template <class TValue>
TValue First(TConnection& connection, std::string_view sql) {
  TStatement statement(connection, sql);
  TRun run(statement);
  TValue value{};
  if (run.Next()) run.Take(value);
  return value;
}

}  // namespace algo::terminal::storage
