#include "terminal/storage/database_file.h"

#include <array>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <system_error>

#include "terminal/storage/storage_error.h"

namespace algo::terminal::storage {

namespace {

namespace fs = std::filesystem;

// How every SQLite file begins, and where in its header the application id is.
constexpr std::string_view FormatName("SQLite format 3\0", 16);
constexpr std::size_t ApplicationIdOffset = 68;
constexpr std::size_t HeaderSize = 100;

std::uint32_t ApplicationIdOf(const std::array<char, HeaderSize>& header) {
  std::uint32_t id = 0;
  for (std::size_t i = 0; i < 4; ++i)
    id = id << 8U | static_cast<unsigned char>(header[ApplicationIdOffset + i]);
  return id;
}

void RefuseForeign(const std::string& file) {
  std::array<char, HeaderSize> header{};
  std::ifstream in(file, std::ios::binary);
  if (!in) throw EStorageError(file, "cannot be read.", "Make the file readable for you, then try again.");
  in.read(header.data(), header.size());
  if (in.bad()) {
    throw EStorageError(file, "could not be read.", "Check the disk that it is on, then try again.");
  }
  if (in.gcount() == 0) return;
  if (!std::string_view(header.data(), header.size()).starts_with(FormatName)) {
    throw EStorageError(file, "is not a database.",
                        "Choose another file, or put a copy of the database back.");
  }
  if (ApplicationIdOf(header) != ApplicationId) {
    throw EStorageError(file, "belongs to another program.", "Choose another file.");
  }
}

}  // namespace

std::string UsableDatabaseFile(const std::string& file) {
  std::error_code failure;
  const fs::path path = fs::absolute(file, failure);
  if (failure || file.empty()) {
    throw EStorageError(file, "has no name that a file can have.", "Choose another file.");
  }
  if (!fs::is_directory(path.parent_path(), failure)) {
    throw EStorageError(path.string(), "cannot be made, because its folder does not exist.",
                        "Make the folder, or choose another file.");
  }
  if (fs::exists(path, failure)) {
    if (!fs::is_regular_file(path, failure)) {
      throw EStorageError(path.string(), "is not a file.", "Choose another file.");
    }
    RefuseForeign(path.string());
  }
  return path.string();
}

}  // namespace algo::terminal::storage
