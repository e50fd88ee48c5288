#pragma once

// Helpers for the tests of opening: the error message, and the files in the folder.

#include <filesystem>
#include <string>
#include <vector>

#include "tests/terminal/storage/storage_fixture.h"

namespace algo::terminal::storage::tests {

struct TOpening : TStorageTest {
  std::string Refusal() const {
    return MessageOf([this] { Open(); });
  }
  std::string FullMessage(const std::string& rest) const { return "The database '" + file + "' " + rest; }
  /// The names of all files in the folder, which shows that no logs are left over.
  std::vector<std::string> FileNames() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path())) {
      names.push_back(entry.path().filename());
    }
    return names;
  }
};

}  // namespace algo::terminal::storage::tests
