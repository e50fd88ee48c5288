#pragma once

// A folder for the files of one test, which is deleted with all its files when the test ends.

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace algo::terminal::tests {

class TTemporaryFolder {
 public:
  TTemporaryFolder() : FPath((std::filesystem::temp_directory_path() / "algo-test-XXXXXX").string()) {
    if (mkdtemp(FPath.data()) == nullptr) throw std::filesystem::filesystem_error("mkdtemp", FPath, {});
  }
  ~TTemporaryFolder() { std::filesystem::remove_all(FPath); }
  TTemporaryFolder(const TTemporaryFolder&) = delete;
  TTemporaryFolder& operator=(const TTemporaryFolder&) = delete;

  const std::string& Path() const { return FPath; }
  std::string Path(const std::string& name) const { return FPath + "/" + name; }

 private:
  std::string FPath;
};

/// The content of the file; empty if it cannot be read.
inline std::string FileBytes(const std::string& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

inline void WriteFileBytes(const std::string& file, const std::string& bytes) {
  std::ofstream(file, std::ios::binary) << bytes;
}

}  // namespace algo::terminal::tests
