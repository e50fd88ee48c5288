#pragma once

// What the tests of opening ask: what was said, and what is in the folder then.

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
  /// What is in the folder, and nothing but: no logs left over either.
  std::vector<std::string> FileNames() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder.Path())) {
      names.push_back(entry.path().filename());
    }
    return names;
  }
};

}  // namespace algo::terminal::storage::tests
