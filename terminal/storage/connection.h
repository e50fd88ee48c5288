#pragma once

// An open database file, alone in its use: a second terminal on the same file would number its orders with
// the keys of the first and write over them.

#include <memory>
#include <string>

struct sqlite3;

namespace algo::terminal::storage {

class TConnection {
 public:
  /// Opens the file, which is made when it is not there, and takes it for this connection alone from the
  /// first access on. Throws EStorageError when it cannot be opened for writing.
  explicit TConnection(const std::string& file);

  /// Carries out statements that answer nothing. Throws EStorageError at the first one that fails.
  void Execute(const char* sql);

  /// Throws EStorageError for what failed last.
  [[noreturn]] void Fail() const;

  const std::string& File() const { return FFile; }
  sqlite3* Handle() const { return FHandle.get(); }

 private:
  struct TClose {
    void operator()(sqlite3* handle) const;
  };

  std::string FFile;
  std::unique_ptr<sqlite3, TClose> FHandle;
};

/// All or nothing of what is written while it lives: undone when it goes without Commit.
class TTransaction {
 public:
  /// Begins to write, and throws EStorageError when that is not possible now.
  explicit TTransaction(TConnection& connection);
  ~TTransaction();
  TTransaction(const TTransaction&) = delete;
  TTransaction& operator=(const TTransaction&) = delete;

  /// Returns when everything is on the disk. Throws EStorageError, with nothing written, when it cannot be.
  void Commit();

 private:
  TConnection& FConnection;
};

}  // namespace algo::terminal::storage
