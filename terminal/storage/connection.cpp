#include "terminal/storage/connection.h"

#include <sqlite3.h>

#include "terminal/storage/storage_error.h"

namespace algo::terminal::storage {

namespace {

// Long enough for a terminal that is just closing, or for a backup program that copies the file.
constexpr int BusyMilliseconds = 1000;

}  // namespace

void TConnection::TClose::operator()(sqlite3* handle) const { sqlite3_close(handle); }

TConnection::TConnection(const std::string& file) : FFile(file) {
  constexpr int Flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_EXRESCODE;
  sqlite3* handle = nullptr;
  const int code = sqlite3_open_v2(file.c_str(), &handle, Flags, nullptr);
  FHandle.reset(handle);
  if (code != SQLITE_OK) throw StorageErrorOf(FFile, code, sqlite3_errstr(code));
  // SQLite opens a file for reading if it cannot be written.
  if (sqlite3_db_readonly(handle, "main") != 0) throw StorageErrorOf(FFile, SQLITE_READONLY, {});
  sqlite3_busy_timeout(handle, BusyMilliseconds);
  Execute("PRAGMA synchronous=FULL; PRAGMA foreign_keys=ON;");
}

void TConnection::Execute(const char* sql) {
  if (sqlite3_exec(Handle(), sql, nullptr, nullptr, nullptr) != SQLITE_OK) Fail();
}

void TConnection::Fail() const {
  throw StorageErrorOf(FFile, sqlite3_extended_errcode(Handle()), sqlite3_errmsg(Handle()));
}

TTransaction::TTransaction(TConnection& connection, TLock lock) : FConnection(connection) {
  // A lock is kept only once it is had whole: programs that start together and keep what they have of it
  // while they wait for the rest would all wait in vain.
  FConnection.Execute(lock == TLock::Kept ? "BEGIN EXCLUSIVE; PRAGMA locking_mode=EXCLUSIVE"
                                          : "BEGIN IMMEDIATE");
}

TTransaction::~TTransaction() {
  // Some failures end the transaction by themselves; then there is nothing to roll back.
  if (sqlite3_get_autocommit(FConnection.Handle()) == 0) {
    sqlite3_exec(FConnection.Handle(), "ROLLBACK", nullptr, nullptr, nullptr);
  }
}

void TTransaction::Commit() { FConnection.Execute("COMMIT"); }

}  // namespace algo::terminal::storage
