#pragma once

// What stops an operation on the terminal's database, told to the person whose database it is.

#include <string>
#include <string_view>

#include "text/errors.h"

namespace algo::terminal::storage {

/// The text names the file, says what is wrong with it, and what to do about it.
class EStorageError : public EError {
 public:
  /// `trouble` goes on after "The database 'file' "; `advice` is a sentence of its own.
  EStorageError(const std::string& file, std::string_view trouble, std::string_view advice);
};

/// The error for a result code of SQLite, extended or not. `detail`, SQLite's own words, goes at the end in
/// brackets unless it is empty.
EStorageError StorageErrorOf(const std::string& file, int code, std::string_view detail);

}  // namespace algo::terminal::storage
