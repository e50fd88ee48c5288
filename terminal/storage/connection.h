#pragma once

// An open database file, for exclusive use: a second terminal on the same file would number its orders with
// the keys of the first and overwrite them.

#include <cstdint>
#include <memory>
#include <string>

struct sqlite3;

namespace algo::terminal::storage {

class TConnection {
 public:
  /// Opens the file, which is created if it does not exist; a transaction that keeps its lock locks other
  /// programs out. Throws EStorageError if it cannot be opened for writing.
  explicit TConnection(const std::string& file);

  /// Executes statements that return no rows. Throws EStorageError at the first one that fails.
  void Execute(const char* sql);

  /// Throws EStorageError for the last failure of SQLite.
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

/// What becomes of the file's lock when a transaction ends.
enum class TLock : std::uint8_t {
  AsBefore,
  Kept,  ///< other programs are locked out for as long as the connection lasts
};

/// A transaction of everything that is written during its lifetime: rolled back if it ends without Commit.
class TTransaction {
 public:
  /// Begins the transaction; throws EStorageError if that is not possible now.
  explicit TTransaction(TConnection& connection, TLock lock = TLock::AsBefore);
  ~TTransaction();
  TTransaction(const TTransaction&) = delete;
  TTransaction& operator=(const TTransaction&) = delete;

  /// Returns when everything is on the disk. Throws EStorageError, with nothing written, if that fails.
  void Commit();

 private:
  TConnection& FConnection;
};

}  // namespace algo::terminal::storage
