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

TQuery::~TQuery() { sqlite3_reset(Handle()); }

void TQuery::Bind(std::string_view value) {
  // A null pointer would be bound as NULL, which an empty text is not.
  const char* const data = value.data() == nullptr ? "" : value.data();
  Check(sqlite3_bind_text64(Handle(), ++FBound, data, value.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
}

void TQuery::Bind(double value) { Check(sqlite3_bind_double(Handle(), ++FBound, value)); }

void TQuery::Bind(std::int64_t value) { Check(sqlite3_bind_int64(Handle(), ++FBound, value)); }

bool TQuery::Next() {
  assert(FBound == sqlite3_bind_parameter_count(Handle()));
  FColumns = 0;
  const int code = sqlite3_step(Handle());
  if (code != SQLITE_ROW && code != SQLITE_DONE) FStatement.FConnection.Fail();
  return code == SQLITE_ROW;
}

void TQuery::Read(std::string& value) {
  const int column = FColumns++;
  const auto* const data = static_cast<const char*>(sqlite3_column_blob(Handle(), column));
  const auto size = static_cast<std::size_t>(sqlite3_column_bytes(Handle(), column));
  value = data == nullptr ? std::string() : std::string(data, size);
}

void TQuery::Read(double& value) {
  const int column = FColumns++;
  const bool none = sqlite3_column_type(Handle(), column) == SQLITE_NULL;
  value = none ? std::numeric_limits<double>::quiet_NaN() : sqlite3_column_double(Handle(), column);
}

void TQuery::Read(std::int32_t& value) { value = sqlite3_column_int(Handle(), FColumns++); }

void TQuery::Read(std::uint32_t& value) {
  value = static_cast<std::uint32_t>(sqlite3_column_int64(Handle(), FColumns++));
}

void TQuery::Read(std::int64_t& value) { value = sqlite3_column_int64(Handle(), FColumns++); }

void TQuery::Check(int code) const {
  if (code != SQLITE_OK) FStatement.FConnection.Fail();
}

}  // namespace algo::terminal::storage
