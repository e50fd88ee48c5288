#pragma once

// The error of a failed operation on the terminal's database, worded for the user.

#include <string>
#include <string_view>

#include "text/errors.h"

namespace algo::terminal::storage {

/// The text names the file and says what is wrong with it and what to do about it.
class EStorageError : public EError {
 public:
  /// `problem` continues "The database 'file' "; `advice` is a sentence of its own.
  EStorageError(const std::string& file, std::string_view problem, std::string_view advice);
};

/// The error for a result code of SQLite, extended or not. `detail`, SQLite's own message, is appended in
/// brackets unless it is empty.
EStorageError StorageErrorOf(const std::string& file, int code, std::string_view detail);

}  // namespace algo::terminal::storage
