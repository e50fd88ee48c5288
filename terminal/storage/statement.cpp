#include "terminal/storage/statement.h"

#include <sqlite3.h>

#include <cassert>
#include <limits>

namespace algo::terminal::storage {

TStatement::TStatement(TConnection& connection, std::string_view sql) : FConnection(connection) {
  sqlite3_stmt* handle = nullptr;
  const int code = sqlite3_prepare_v3(connection.Handle(), sql.data(), static_cast<int>(sql.size()),
                                      SQLITE_PREPARE_PERSISTENT, &handle, nullptr);
  FHandle.reset(handle);
  if (code != SQLITE_OK) connection.Fail();
}

void TStatement::TFinalize::operator()(sqlite3_stmt* handle) const { sqlite3_finalize(handle); }

TRun::~TRun() { sqlite3_reset(Handle()); }

void TRun::Put(std::string_view value) {
  // A text without an address would be NULL, which an empty text is not.
  const char* const data = value.data() == nullptr ? "" : value.data();
  Check(sqlite3_bind_text64(Handle(), ++FMarks, data, value.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
}

void TRun::Put(double value) { Check(sqlite3_bind_double(Handle(), ++FMarks, value)); }

void TRun::Put(std::int64_t value) { Check(sqlite3_bind_int64(Handle(), ++FMarks, value)); }

bool TRun::Next() {
  assert(FMarks == sqlite3_bind_parameter_count(Handle()));
  FColumns = 0;
  const int code = sqlite3_step(Handle());
  if (code != SQLITE_ROW && code != SQLITE_DONE) FStatement.FConnection.Fail();
  return code == SQLITE_ROW;
}

void TRun::Take(std::string& value) {
  const int column = FColumns++;
  const auto* const data = static_cast<const char*>(sqlite3_column_blob(Handle(), column));
  const auto size = static_cast<std::size_t>(sqlite3_column_bytes(Handle(), column));
  value = data == nullptr ? std::string() : std::string(data, size);
}

void TRun::Take(double& value) {
  const int column = FColumns++;
  const bool none = sqlite3_column_type(Handle(), column) == SQLITE_NULL;
  value = none ? std::numeric_limits<double>::quiet_NaN() : sqlite3_column_double(Handle(), column);
}

void TRun::Take(std::int32_t& value) { value = sqlite3_column_int(Handle(), FColumns++); }

void TRun::Take(std::uint32_t& value) {
  value = static_cast<std::uint32_t>(sqlite3_column_int64(Handle(), FColumns++));
}

void TRun::Take(std::int64_t& value) { value = sqlite3_column_int64(Handle(), FColumns++); }

void TRun::Check(int code) const {
  if (code != SQLITE_OK) FStatement.FConnection.Fail();
}

}  // namespace algo::terminal::storage
