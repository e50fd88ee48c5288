#include "terminal/storage/storage_error.h"

#include <sqlite3.h>

#include <algorithm>
#include <array>

namespace algo::terminal::storage {

namespace {

struct TProblem {
  int code;
  std::string_view problem;
  std::string_view advice;
};

constexpr std::string_view Busy = "is in use by another program.";
constexpr std::string_view BusyAdvice = "Close that program, then try again.";
constexpr std::string_view Damaged = "is damaged.";
constexpr std::string_view DamagedAdvice =
    "Put a copy of it back, or move it away to begin with an empty one.";
constexpr std::string_view NotWritable = "cannot be written.";
constexpr std::string_view NotWritableAdvice =
    "Make the file and its folder writable for you, then try again.";

constexpr std::array Problems{
    TProblem{SQLITE_BUSY, Busy, BusyAdvice},
    TProblem{SQLITE_LOCKED, Busy, BusyAdvice},
    TProblem{SQLITE_CORRUPT, Damaged, DamagedAdvice},
    TProblem{SQLITE_NOTADB, Damaged, DamagedAdvice},
    TProblem{SQLITE_READONLY, NotWritable, NotWritableAdvice},
    TProblem{SQLITE_CANTOPEN, NotWritable, NotWritableAdvice},
    TProblem{SQLITE_PERM, NotWritable, NotWritableAdvice},
    TProblem{SQLITE_FULL, "has no room left on its disk.", "Make room on that disk, then try again."},
    TProblem{SQLITE_IOERR, "could not be read or written.", "Check the disk that it is on, then try again."},
    TProblem{SQLITE_TOOBIG, "does not take texts as long as that.", "Shorten the text, then try again."},
};

constexpr TProblem AnyOther{SQLITE_ERROR, "did not do what the terminal asked it for.",
                            "Start the terminal again; if that does not help, put a copy of the file back."};

}  // namespace

EStorageError::EStorageError(const std::string& file, std::string_view problem, std::string_view advice)
    : EError("The database '" + file + "' " + std::string(problem) + " " + std::string(advice)) {}

EStorageError StorageErrorOf(const std::string& file, int code, std::string_view detail) {
  // The low byte is the kind of problem; the higher bytes tell variants of it apart.
  const auto* const found = std::find_if(Problems.begin(), Problems.end(),
                                         [code](const TProblem& row) { return row.code == (code & 0xff); });
  const TProblem& row = found == Problems.end() ? AnyOther : *found;
  std::string advice(row.advice);
  if (!detail.empty()) advice.append(" (").append(detail).append(")");
  return {file, row.problem, advice};
}

}  // namespace algo::terminal::storage
